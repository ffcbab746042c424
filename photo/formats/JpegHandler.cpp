// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/JpegHandler.h"

#include "photo/ColorProfile.h"
#include "photo/IccProfile.h"
#include "photo/PhotoRows.h"

#include <QColorSpace>
#include <QImage>
#include <QVariant>
#include <array>
#include <csetjmp>
#include <cstdio> // for jpeglib.h
#include <cstdlib>
#include <jerror.h>
#include <jpeglib.h>
#include <utility>
#include <vector>

namespace {

/// That of Format_RGBX8888, in which renders are made.
constexpr J_COLOR_SPACE colours = JCS_EXT_RGBA;

constexpr int rowsAtATime = 16; ///< which stay in the processor's cache

/// Makes colours of what is told as the light that each ink lets through, where no profile tells what the inks are.
void paintInks(QImage& picture)
{
    for (int y = 0; y < picture.height(); y++)
        for (uchar *p = picture.scanLine(y), *end = p + qsizetype(picture.width()) * 4; p != end; p += 4) {
            for (int c = 0; c < 3; c++)
                p[c] = uchar(p[c] * p[3] / 255);
            p[3] = 255;
        }
}

} // namespace

/// The library's state for one file. The library reports a failure by a call that must not return: it jumps out of
/// attempt(), and nothing may be owned by a function that it leaves so.
class JpegHandler::Decoder {
public:
    explicit Decoder(QIODevice& device)
        : m_device(device)
    {
        info.err = jpeg_std_error(&m_errors);
        info.client_data = this;
        m_errors.error_exit = [](j_common_ptr common) { std::longjmp(of(common).m_failed, 1); };
        m_errors.emit_message = [](j_common_ptr common, int level) {
            if (level < 0)
                of(common).takeWarning();
        };
        m_source.init_source = [](j_decompress_ptr) {};
        m_source.fill_input_buffer = [](j_decompress_ptr common) { return of(common).fill(); };
        m_source.skip_input_data = [](j_decompress_ptr common, long bytes) { of(common).skip(bytes); };
        m_source.resync_to_restart = jpeg_resync_to_restart;
        m_source.term_source = [](j_decompress_ptr) {};
    }
    ~Decoder() { jpeg_destroy_decompress(&info); }
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;

    /// Whether `step`, which calls the library and owns nothing, came to its end.
    template <class Step> bool attempt(Step step)
    {
        if (setjmp(m_failed) != 0)
            return false;
        step();
        return true;
    }

    bool readHeader()
    {
        return m_hasHeader = attempt([this] {
            jpeg_create_decompress(&info);
            info.src = &m_source;
            jpeg_save_markers(&info, JPEG_APP0 + 2, 0xFFFF); // the profile
            jpeg_read_header(&info, TRUE);
            if (info.num_components == 3)
                info.out_color_space = colours;
        });
    }

    bool hasHeader() const { return m_hasHeader; }
    bool isGrey() const { return info.num_components == 1; }
    bool isOfInks() const { return info.out_color_space == JCS_CMYK; }
    bool isKnown() const { return isGrey() || isOfInks() || info.out_color_space == colours; }
    QSize size() const { return {int(info.image_width), int(info.image_height)}; }
    bool restIsMissing() const { return m_restIsMissing; }

    /// Of what readRows gives; four inks are in the order of Format_RGBA8888.
    QImage::Format format() const
    {
        return isGrey() ? QImage::Format_Grayscale8 : isOfInks() ? QImage::Format_RGBA8888 : QImage::Format_RGBX8888;
    }

    /// Reads all rows of the picture.
    bool readRows(uchar* bits, qsizetype bytesPerRow)
    {
        return attempt([&] {
            jpeg_start_decompress(&info);
            while (info.output_scanline < info.output_height) {
                JSAMPROW row = bits + info.output_scanline * bytesPerRow;
                jpeg_read_scanlines(&info, &row, 1);
            }
            finish();
        });
    }

    /// Reads all rows of a coloured picture.
    bool readRows(PhotoRows& rows)
    {
        const qint64 bytesPerRow = qint64(info.image_width) * 4;
        std::vector<uchar> strip(std::size_t(bytesPerRow * rowsAtATime));
        return attempt([&] {
            jpeg_start_decompress(&info);
            int count = 0;
            while (info.output_scanline < info.output_height) {
                JSAMPROW row = strip.data() + count * bytesPerRow;
                jpeg_read_scanlines(&info, &row, 1);
                if (++count == rowsAtATime || info.output_scanline == info.output_height) {
                    rows.take(strip.data(), count * bytesPerRow);
                    count = 0;
                }
            }
            finish();
        });
    }

    QByteArray profile()
    {
        JOCTET* bytes = nullptr;
        unsigned size = 0;
        const bool found = attempt([&] { jpeg_read_icc_profile(&info, &bytes, &size); }) && bytes;
        const QByteArray result =
            found ? QByteArray(reinterpret_cast<const char*>(bytes), qsizetype(size)) : QByteArray();
        std::free(bytes);
        return result;
    }

    jpeg_decompress_struct info = {};

private:
    template <class Common> static Decoder& of(Common common) { return *static_cast<Decoder*>(common->client_data); }

    /// Whether scans of a progressive picture are missing, so that it lacks details.
    bool lacksScans() const
    {
        for (int component = 0; info.coef_bits && component < info.num_components; component++)
            for (const int missingBits : info.coef_bits[component]) // -1: all
                if (missingBits != 0)
                    return true;
        return false;
    }

    void finish()
    {
        m_restIsMissing = m_restIsMissing || lacksScans();
        jpeg_finish_decompress(&info); // up to the end of the file
    }

    void takeWarning()
    {
        // Damage elsewhere moves the end of a picture by some blocks, too.
        const bool brokeOff = m_errors.msg_code == JWRN_HIT_MARKER && info.unread_marker == JPEG_EOI
            && info.input_iMCU_row + 1 < info.total_iMCU_rows;
        m_restIsMissing = m_restIsMissing || brokeOff || m_errors.msg_code == JWRN_JPEG_EOF;
    }

    boolean fill()
    {
        qint64 count = m_device.read(m_buffer.data(), qint64(m_buffer.size()));
        if (count <= 0) { // the end of the file is an end of the picture
            WARNMS(&info, JWRN_JPEG_EOF);
            m_buffer[0] = char(0xFF);
            m_buffer[1] = char(JPEG_EOI);
            count = 2;
        }
        m_source.next_input_byte = reinterpret_cast<const JOCTET*>(m_buffer.data());
        m_source.bytes_in_buffer = std::size_t(count);
        return TRUE;
    }

    void skip(long bytes)
    {
        if (bytes <= 0)
            return;
        const auto there = long(m_source.bytes_in_buffer);
        if (bytes > there) {
            m_device.skip(bytes - there);
            fill();
            return;
        }
        m_source.next_input_byte += bytes;
        m_source.bytes_in_buffer -= std::size_t(bytes);
    }

    QIODevice& m_device;
    jpeg_error_mgr m_errors = {};
    jpeg_source_mgr m_source = {};
    std::jmp_buf m_failed;
    std::array<char, 65536> m_buffer;
    bool m_hasHeader = false, m_restIsMissing = false;
};

JpegHandler::JpegHandler() = default;
JpegHandler::~JpegHandler() = default;

JpegHandler::Decoder* JpegHandler::open() const
{
    if (!m_decoder && device()) {
        m_decoder = std::make_unique<Decoder>(*device());
        m_decoder->readHeader();
    }
    return m_decoder && m_decoder->hasHeader() && m_decoder->isKnown() ? m_decoder.get() : nullptr;
}

bool JpegHandler::canRead(QIODevice& device)
{
    return device.peek(2) == "\xFF\xD8";
}

bool JpegHandler::canRead() const
{
    return open() != nullptr;
}

QVariant JpegHandler::option(ImageOption option) const
{
    const Decoder* jpeg = open();
    if (!jpeg)
        return {};
    return option == Size ? QVariant(jpeg->size()) : option == ImageFormat ? QVariant(jpeg->format()) : QVariant();
}

bool JpegHandler::restIsMissing() const
{
    return m_decoder && m_decoder->restIsMissing();
}

bool JpegHandler::hasRows() const
{
    Decoder* const jpeg = open();
    if (!jpeg || jpeg->isGrey() || jpeg->isOfInks())
        return false;
    const QByteArray profile = jpeg->profile();
    return profile.isEmpty() || isSRgb(QColorSpace::fromIccProfile(profile));
}

bool JpegHandler::readRows(PhotoRows& rows)
{
    Decoder* const jpeg = open();
    if (!jpeg)
        return false;
    rows.begin(jpeg->size());
    return jpeg->readRows(rows);
}

bool JpegHandler::read(QImage* image)
{
    Decoder* jpeg = open();
    if (!jpeg)
        return false;
    QImage picture(jpeg->size(), jpeg->format());
    const QByteArray profile = jpeg->profile();
    if (picture.isNull() || !jpeg->readRows(picture.bits(), picture.bytesPerLine()))
        return false;
    if (jpeg->isOfInks()) {
        if (!convertInksToSRgb(picture, profile))
            paintInks(picture);
        picture.reinterpretAsFormat(QImage::Format_RGBX8888);
    } else if (!profile.isEmpty())
        picture.setColorSpace(QColorSpace::fromIccProfile(profile));
    *image = picture;
    return true;
}
