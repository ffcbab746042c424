// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/PsdHandler.h"

#include "photo/IccProfile.h"

#include <QColorSpace>
#include <QImage>
#include <QVariant>
#include <QtEndian>
#include <algorithm>
#include <bit>
#include <optional>
#include <vector>

namespace {

constexpr int headerSize = 26;
constexpr qint64 paletteSize = 768;
constexpr qint64 largestProfile = 64 << 20; ///< bytes; those in use have a few millions

enum Mode { bitmap = 0, grey = 1, indexed = 2, rgb = 3, cmyk = 4, duotone = 8, lab = 9 };

struct Header {
    bool big; ///< a PSB: larger sides, wider counts
    int channels, width, height, bits, mode;

    bool isGrey() const { return mode == bitmap || mode == grey || mode == duotone; }
    int colours() const { return mode == rgb || mode == lab ? 3 : mode == cmyk ? 4 : 1; }
    bool isDeep() const { return bits > 8 && (mode == rgb || isGrey()); }
    QImage::Format format() const { return isDeep() ? QImage::Format_RGBA64 : QImage::Format_RGBA8888; }
    qint64 rowBytes() const { return (qint64(width) * bits + 7) / 8; }
};

template <class Number> Number number(const char* bytes)
{
    return qFromBigEndian<Number>(bytes);
}

/// A big-endian number of the file; 0 beyond its end, which the next section's size then shows.
template <class Number> Number readNumber(QIODevice& device)
{
    char bytes[sizeof(Number)] = {};
    device.read(bytes, sizeof bytes);
    return number<Number>(bytes);
}

std::optional<Header> parse(const QByteArray& b)
{
    if (b.size() < headerSize || !b.startsWith("8BPS"))
        return {};
    const int version = number<quint16>(b.constData() + 4), most = version == 2 ? 300000 : 30000;
    const auto height = number<quint32>(b.constData() + 14), width = number<quint32>(b.constData() + 18);
    if (version < 1 || version > 2 || width < 1 || height < 1 || width > quint32(most) || height > quint32(most))
        return {};
    const Header header = {version == 2, number<quint16>(b.constData() + 12), int(width), int(height),
        number<quint16>(b.constData() + 22), number<quint16>(b.constData() + 24)};
    const bool knownMode =
        header.isGrey() || header.mode == indexed || header.mode == rgb || header.mode == cmyk || header.mode == lab;
    const bool knownBits = header.mode == bitmap ? header.bits == 1
        : header.mode == indexed                 ? header.bits == 8
                                                 : header.bits == 8 || header.bits == 16 || header.bits == 32;
    if (!knownMode || !knownBits || header.channels < header.colours() || header.channels > 56)
        return {};
    return header;
}

std::optional<Header> headerOf(QIODevice* device)
{
    return device ? parse(device->peek(headerSize)) : std::nullopt;
}

/// What stands between the header and the picture.
struct Sections {
    QByteArray palette; ///< 256 reds, greens and blues of an indexed picture
    QByteArray profile;
    PhotoMetadata metadata;
};

/// Takes what is of use of the resources, which end at `end`.
void readResources(QIODevice& device, qint64 end, Sections& sections)
{
    enum { iptc = 0x0404, iccProfile = 0x040f, exif = 0x0422, xmp = 0x0424 };
    const auto take = [&device](QByteArray& block, qint64 size, qint64 largest) {
        if (block.isEmpty() && size <= largest)
            block = device.read(size);
    };
    // Each begins with the four letters of who made it.
    while (device.pos() + 12 <= end && !device.read(4).contains('\0')) {
        const int id = readNumber<quint16>(device);
        const int nameLength = readNumber<quint8>(device);
        device.skip((nameLength + 2) / 2 * 2 - 1);
        const qint64 size = readNumber<quint32>(device);
        if (size > end - device.pos())
            return;
        const qint64 next = device.pos() + size + size % 2;
        if (id == iccProfile)
            take(sections.profile, size, largestProfile);
        else if (id == exif)
            take(sections.metadata.exif, size, longestBlock);
        else if (id == xmp)
            take(sections.metadata.xmp, size, longestBlock);
        else if (id == iptc)
            take(sections.metadata.iptc, size, longestBlock);
        device.seek(next);
    }
}

/// Reads up to the picture's data; nothing when the file ends before.
std::optional<Sections> readSections(QIODevice& device, const Header& header)
{
    Sections sections;
    device.skip(headerSize);
    const auto fits = [&device](qint64 size) { return size >= 0 && size <= device.size() - device.pos(); };
    const qint64 palette = readNumber<quint32>(device);
    if (!fits(palette))
        return {};
    const qint64 afterPalette = device.pos() + palette;
    sections.palette = device.read(std::min(palette, paletteSize));
    device.seek(afterPalette);
    const qint64 resources = readNumber<quint32>(device);
    if (!fits(resources))
        return {};
    const qint64 afterResources = device.pos() + resources;
    readResources(device, afterResources, sections);
    device.seek(afterResources);
    const qint64 layers = header.big ? readNumber<qint64>(device) : qint64(readNumber<quint32>(device));
    if (!fits(layers))
        return {};
    return device.seek(device.pos() + layers) ? std::optional(sections) : std::nullopt;
}

/// Gives the rows of the picture's channels one after the other.
class Rows {
public:
    Rows(QIODevice& device, const Header& header)
        : m_device(device)
        , m_size(header.rowBytes())
        , m_rows(qint64(header.channels) * header.height)
    {
        const int compression = readNumber<quint16>(device);
        const qint64 rest = device.size() - device.pos(), countBytes = header.big ? 4 : 2;
        m_runLength = compression == 1;
        // A run of two bytes gives 128 at most.
        const qint64 fewest = m_runLength ? m_rows * (countBytes + (m_size + 127) / 128 * 2) : m_rows * m_size;
        m_holds = compression <= 1 && rest >= fewest;
        if (!m_holds || !m_runLength)
            return;
        m_counts = device.read(m_rows * countBytes);
        m_countBytes = int(countBytes);
    }

    /// False when the file is too short for the picture, or its data of another kind.
    bool holdsPicture() const { return m_holds; }

    bool next(QByteArray& row)
    {
        if (!m_runLength) {
            row = m_device.read(m_size);
            return row.size() == m_size;
        }
        const char* count = m_counts.constData() + m_row++ * m_countBytes;
        const qint64 size = m_countBytes == 4 ? qint64(number<quint32>(count)) : number<quint16>(count);
        // Twice the row is more than any encoder needs.
        return size <= 2 * m_size + 64 && unpack(m_device.read(size), row);
    }

private:
    bool unpack(const QByteArray& packed, QByteArray& row) const
    {
        row.clear();
        row.reserve(m_size);
        for (qsizetype at = 0; at < packed.size() && row.size() < m_size;) {
            const int run = static_cast<signed char>(packed[at++]);
            if (run >= 0) {
                row.append(packed.constData() + at, std::min<qsizetype>(run + 1, packed.size() - at));
                at += run + 1;
            } else if (run != -128 && at < packed.size()) {
                row.append(1 - run, packed[at++]);
            }
        }
        const bool whole = row.size() >= m_size;
        row.truncate(m_size);
        return whole;
    }

    QIODevice& m_device;
    qint64 m_size, m_rows, m_row = 0;
    QByteArray m_counts;
    int m_countBytes = 0;
    bool m_runLength = false, m_holds = false;
};

/// The samples of a row, whatever their depth, on 0 .. 65535.
void widen(const QByteArray& row, const Header& header, std::vector<quint16>& samples)
{
    const char* b = row.constData();
    for (int x = 0; x < header.width; x++) {
        if (header.bits == 1)
            samples[x] = b[x / 8] >> (7 - x % 8) & 1 ? 0 : 65535;
        else if (header.bits == 8)
            samples[x] = quint16(static_cast<unsigned char>(b[x]) * 257);
        else if (header.bits == 16)
            samples[x] = number<quint16>(b + 2 * x);
        else {
            const float v = std::bit_cast<float>(number<quint32>(b + 4 * x));
            samples[x] = v > 0.0f ? quint16(std::min(v, 1.0f) * 65535.0f + 0.5f) : quint16(0); // also for NaN
        }
    }
}

/// Stores a row of samples as channel `to` of the picture; of a grey picture, as all three colours.
template <class Sample> void store(const std::vector<quint16>& samples, uchar* row, int to, bool isGrey)
{
    auto* pixels = reinterpret_cast<Sample*>(row);
    for (std::size_t x = 0; x < samples.size(); x++) {
        const auto v = Sample(sizeof(Sample) == 2 ? samples[x] : (samples[x] * 255u + 32767u) / 65535u);
        for (int c = to; c <= (isGrey && to == 0 ? 2 : to); c++)
            pixels[4 * x + c] = v;
    }
}

/// Calls `function` with each four-byte pixel.
template <class Function> void forEachPixel(QImage& picture, Function function)
{
    for (int y = 0; y < picture.height(); y++)
        for (uchar *p = picture.scanLine(y), *end = p + qsizetype(picture.width()) * 4; p != end; p += 4)
            function(p);
}

void finish(QImage& picture, const Header& header, const Sections& sections)
{
    const auto& profile = sections.profile;
    if (header.mode == rgb && !profile.isEmpty()) {
        picture.setColorSpace(QColorSpace::fromIccProfile(profile));
    } else if (header.bits == 32 && header.isDeep()) {
        picture.setColorSpace(QColorSpace::SRgbLinear);
    } else if (header.mode == indexed) {
        const auto* colours = reinterpret_cast<const uchar*>(sections.palette.constData());
        forEachPixel(picture, [colours](uchar* p) {
            const int index = p[0];
            for (int c = 0; c < 3; c++)
                p[c] = colours[256 * c + index];
        });
    } else if (header.mode == cmyk) {
        if (!convertInksToSRgb(picture, profile))
            forEachPixel(picture, [](uchar* p) {
                for (int c = 0; c < 3; c++)
                    p[c] = uchar((p[c] * p[3] + 127) / 255);
                p[3] = 255;
            });
    } else if (header.mode == lab) {
        const IccProfile labOfD50(cmsCreateLab4Profile(nullptr));
        convertToSRgb(picture, labOfD50, TYPE_Lab_8 | EXTRA_SH(1), INTENT_RELATIVE_COLORIMETRIC, 0);
    }
}

} // namespace

bool PsdHandler::canRead(QIODevice& device)
{
    return device.peek(4) == "8BPS";
}

bool PsdHandler::canRead() const
{
    return headerOf(device()).has_value();
}

QVariant PsdHandler::option(ImageOption option) const
{
    const auto header = headerOf(device());
    if (!header)
        return {};
    if (option == Size)
        return QSize(header->width, header->height);
    return option == ImageFormat ? QVariant(header->format()) : QVariant();
}

bool PsdHandler::read(QImage* image)
{
    const auto header = headerOf(device());
    const auto sections = header ? readSections(*device(), *header) : std::nullopt;
    if (!sections || (header->mode == indexed && sections->palette.size() < paletteSize))
        return false;
    Rows rows(*device(), *header);
    if (!rows.holdsPicture())
        return false;
    QImage picture(header->width, header->height, header->format());
    if (picture.isNull())
        return false;
    picture.fill(Qt::white);
    QByteArray row;
    std::vector<quint16> samples(std::size_t(header->width));
    // The channels beyond the colours are kept selections, or the transparency of a picture that stands on white
    // already.
    for (int channel = 0; channel < header->colours(); channel++)
        for (int y = 0; y < header->height; y++) {
            if (!rows.next(row))
                return false;
            widen(row, *header, samples);
            if (header->isDeep())
                store<quint16>(samples, picture.scanLine(y), channel, header->isGrey());
            else
                store<uchar>(samples, picture.scanLine(y), channel, header->isGrey());
        }
    finish(picture, *header, *sections);
    picture.reinterpretAsFormat(header->isDeep() ? QImage::Format_RGBX64 : QImage::Format_RGBX8888);
    m_metadata = sections->metadata;
    *image = picture;
    return true;
}
