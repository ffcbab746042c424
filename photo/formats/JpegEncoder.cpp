// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/JpegEncoder.h"

#include <QColorSpace>
#include <csetjmp>
#include <cstdio> // for jpeglib.h
#include <cstdlib>
#include <jpeglib.h>

namespace {

/// The order of Format_RGB32.
constexpr J_COLOR_SPACE nativeColours = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? JCS_EXT_BGRX : JCS_EXT_XRGB;

/// The library's state for one file. The library reports a failure by a call that must not return: it jumps out of
/// write(), and nothing may be owned by a function that it leaves so.
class Encoder {
public:
    Encoder()
    {
        m_info.err = jpeg_std_error(&m_errors);
        m_info.client_data = this;
        m_errors.error_exit = [](j_common_ptr common) {
            std::longjmp(static_cast<Encoder*>(common->client_data)->m_failed, 1);
        };
        m_errors.emit_message = [](j_common_ptr, int) {};
    }
    ~Encoder()
    {
        jpeg_destroy_compress(&m_info);
        std::free(m_bytes);
    }
    Encoder(const Encoder&) = delete;
    Encoder& operator=(const Encoder&) = delete;

    /// Of Format_RGBX8888 or Format_RGB32.
    bool write(const QImage& image, int quality, JpegColours colours, const QByteArray& profile)
    {
        if (setjmp(m_failed) != 0)
            return false;
        jpeg_create_compress(&m_info);
        jpeg_mem_dest(&m_info, &m_bytes, &m_size);
        m_info.image_width = JDIMENSION(image.width());
        m_info.image_height = JDIMENSION(image.height());
        m_info.input_components = 4;
        m_info.in_color_space = image.format() == QImage::Format_RGBX8888 ? JCS_EXT_RGBX : nativeColours;
        jpeg_set_defaults(&m_info);
        jpeg_set_quality(&m_info, quality, TRUE);
        const int pixelsPerColour = colours == JpegColours::OfEachPixel ? 1 : 2; // in each direction
        m_info.comp_info[0].h_samp_factor = m_info.comp_info[0].v_samp_factor = pixelsPerColour;
        jpeg_start_compress(&m_info, TRUE);
        jpeg_write_icc_profile(&m_info, reinterpret_cast<const JOCTET*>(profile.constData()), unsigned(profile.size()));
        while (m_info.next_scanline < m_info.image_height) {
            auto* row = const_cast<JSAMPROW>(image.constScanLine(int(m_info.next_scanline))); // the library only reads
            jpeg_write_scanlines(&m_info, &row, 1);
        }
        jpeg_finish_compress(&m_info);
        return true;
    }

    QByteArray bytes() const { return {reinterpret_cast<const char*>(m_bytes), qsizetype(m_size)}; }

private:
    jpeg_compress_struct m_info = {};
    jpeg_error_mgr m_errors = {};
    unsigned char* m_bytes = nullptr; ///< made and enlarged by the library
    unsigned long m_size = 0;
    std::jmp_buf m_failed;
};

} // namespace

QByteArray encodedPixels(const QImage& image, int quality, JpegColours colours)
{
    const bool isRgbx = image.format() == QImage::Format_RGBX8888;
    const QImage rows = isRgbx ? image : image.convertToFormat(QImage::Format_RGB32);
    const QByteArray profile = QColorSpace(QColorSpace::SRgb).iccProfile();
    Encoder encoder;
    return !rows.isNull() && encoder.write(rows, quality, colours, profile) ? encoder.bytes() : QByteArray();
}
