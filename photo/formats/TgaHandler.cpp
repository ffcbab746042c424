// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/TgaHandler.h"

#include <QImage>
#include <QVariant>
#include <QtEndian>
#include <algorithm>
#include <optional>

namespace {

constexpr int headerSize = 18;
constexpr int footerSize = 26;

struct Header {
    int idLength; ///< bytes of free text before the colour map
    bool hasMap, mapped, grey, runLength;
    int mapFirst, mapLength, mapBits; ///< the colours that the map holds, and the index of the first
    int width, height, bits;
    int alphaBits;
    bool fromRight, fromTop;

    int mapBytes() const { return mapLength * ((mapBits + 7) / 8); }
    int pixelBytes() const { return (bits + 7) / 8; }
    qint64 pixels() const { return qint64(width) * height; }
};

struct Pixel {
    unsigned char red, green, blue, alpha;
};

bool isColourDepth(int bits)
{
    return bits == 15 || bits == 16 || bits == 24 || bits == 32;
}

std::optional<Header> parse(const QByteArray& bytes)
{
    if (bytes.size() < headerSize)
        return {};
    const auto* b = reinterpret_cast<const unsigned char*>(bytes.constData());
    const auto word = [b](int at) { return int(qFromLittleEndian<quint16>(b + at)); };
    const int kind = b[2] & 7;
    const bool known = b[1] <= 1 && (b[2] & ~8) == kind && kind >= 1 && kind <= 3;
    const Header header = {b[0], b[1] == 1, kind == 1, kind == 3, (b[2] & 8) != 0, word(3), word(5), b[7], word(12),
        word(14), b[16], b[17] & 15, (b[17] & 16) != 0, (b[17] & 32) != 0};
    const bool mapFits = header.hasMap ? isColourDepth(header.mapBits) && header.mapLength > 0 : !header.mapped;
    const bool depthFits = header.mapped ? header.bits == 8 || header.bits == 16
        : header.grey                    ? header.bits == 8 || header.bits == 16 // with alpha
                                         : isColourDepth(header.bits);
    // The two highest bits once meant interleaved rows, which nobody wrote.
    if (!known || !mapFits || !depthFits || header.width == 0 || header.height == 0 || (b[17] & 192) != 0)
        return {};
    return header;
}

std::optional<Header> headerOf(QIODevice* device)
{
    return device ? parse(device->peek(headerSize)) : std::nullopt;
}

Pixel colourAt(const unsigned char* b, int bits)
{
    if (bits == 24 || bits == 32)
        return {b[2], b[1], b[0], bits == 32 ? b[3] : static_cast<unsigned char>(255)};
    // Five bits a channel; the sixteenth is too often left at 0 in opaque pictures to mean anything.
    const int v = qFromLittleEndian<quint16>(b);
    const auto wide = [](int five) { return static_cast<unsigned char>((five * 255 + 15) / 31); };
    return {wide(v >> 10 & 31), wide(v >> 5 & 31), wide(v & 31), 255};
}

/// What the end of the file says about alpha: its kind, or -1 where it says nothing.
int statedAlpha(QIODevice& device)
{
    constexpr int alphaKindAt = 494;
    if (device.isSequential() || !device.seek(std::max<qint64>(device.size() - footerSize, 0)))
        return -1;
    const QByteArray footer = device.read(footerSize);
    if (footer.size() != footerSize || footer.mid(8, 16) != "TRUEVISION-XFILE")
        return -1;
    const quint32 extension = qFromLittleEndian<quint32>(footer.constData());
    char kind;
    if (extension == 0 || !device.seek(qint64(extension) + alphaKindAt) || !device.getChar(&kind))
        return -1;
    return kind;
}

/// The colours of a mapped picture by their index; those outside the map are black.
class ColourMap {
public:
    ColourMap(const Header& header, const QByteArray& bytes)
        : m_first(header.mapFirst)
    {
        const int size = (header.mapBits + 7) / 8;
        const auto* b = reinterpret_cast<const unsigned char*>(bytes.constData());
        // A file without a map may tell any length of it.
        for (qsizetype at = 0; at < bytes.size(); at += size)
            m_colours.push_back(colourAt(b + at, header.mapBits));
    }

    Pixel at(int index) const
    {
        const qsizetype i = index - m_first;
        return i >= 0 && i < m_colours.size() ? m_colours[i] : Pixel{0, 0, 0, 255};
    }

private:
    QList<Pixel> m_colours;
    int m_first;
};

/// Gives the pixels of a file one by one, in the file's order, out of runs where there are any.
class Pixels {
public:
    Pixels(const Header& header, const ColourMap& map, const QByteArray& data)
        : m_header(header)
        , m_map(map)
        , m_at(reinterpret_cast<const unsigned char*>(data.constData()))
        , m_end(m_at + data.size())
    {
    }

    /// False at the end of the data.
    bool next(Pixel& pixel)
    {
        if (m_header.runLength && m_left == 0) {
            if (m_at == m_end)
                return false;
            m_repeats = (*m_at & 128) != 0;
            m_left = (*m_at++ & 127) + 1;
            m_fresh = true;
        }
        if (!m_header.runLength || !m_repeats || m_fresh) {
            if (m_end - m_at < m_header.pixelBytes())
                return false;
            m_pixel = decoded(m_at);
            m_at += m_header.pixelBytes();
            m_fresh = false;
        }
        m_left--;
        pixel = m_pixel;
        return true;
    }

private:
    Pixel decoded(const unsigned char* b) const
    {
        if (m_header.mapped)
            return m_map.at(m_header.bits == 8 ? b[0] : qFromLittleEndian<quint16>(b));
        if (m_header.grey)
            return {b[0], b[0], b[0], m_header.bits == 16 ? b[1] : static_cast<unsigned char>(255)};
        return colourAt(b, m_header.bits);
    }

    const Header& m_header;
    const ColourMap& m_map;
    const unsigned char* m_at;
    const unsigned char* m_end;
    Pixel m_pixel = {};
    int m_left = 0; ///< pixels of the current run
    bool m_repeats = false, m_fresh = false;
};

/// The fewest bytes that so many pixels can take: a run has at most 128.
qint64 fewestBytes(const Header& header)
{
    return header.runLength ? (header.pixels() + 127) / 128 * (1 + header.pixelBytes())
                            : header.pixels() * header.pixelBytes();
}

qint64 mostBytes(const Header& header)
{
    return header.pixels() * (header.pixelBytes() + (header.runLength ? 1 : 0));
}

} // namespace

bool TgaHandler::canRead(QIODevice& device)
{
    return headerOf(&device).has_value();
}

bool TgaHandler::canRead() const
{
    return headerOf(device()).has_value();
}

QVariant TgaHandler::option(ImageOption option) const
{
    const auto header = headerOf(device());
    if (!header)
        return {};
    if (option == Size)
        return QSize(header->width, header->height);
    return option == ImageFormat ? QVariant(QImage::Format_RGBA8888) : QVariant();
}

bool TgaHandler::read(QImage* image)
{
    const auto header = headerOf(device());
    if (!header)
        return false;
    device()->skip(headerSize + header->idLength);
    const QByteArray mapBytes = device()->read(header->hasMap ? header->mapBytes() : 0);
    if (header->hasMap && mapBytes.size() != header->mapBytes())
        return false;
    const qint64 rest = device()->size() - device()->pos();
    if (rest < fewestBytes(*header))
        return false;
    const QByteArray data = device()->read(std::min(rest, mostBytes(*header)));

    QImage picture(header->width, header->height, QImage::Format_RGBA8888);
    if (picture.isNull())
        return false;
    const ColourMap map(*header, header->mapped ? mapBytes : QByteArray());
    Pixels pixels(*header, map, data);
    int alphas = 0;
    for (int y = 0; y < header->height; y++) {
        auto* row = reinterpret_cast<Pixel*>(picture.scanLine(header->fromTop ? y : header->height - 1 - y));
        for (int x = 0; x < header->width; x++) {
            Pixel& pixel = row[header->fromRight ? header->width - 1 - x : x];
            if (!pixels.next(pixel))
                return false;
            alphas |= pixel.alpha;
        }
    }
    // 0 and 1: the alpha bytes mean nothing. Where nothing is said the header decides, and a picture that would be
    // wholly transparent was never meant to be.
    const int stated = statedAlpha(*device());
    const bool hasAlpha = stated >= 0 ? stated >= 2 : header->alphaBits > 0 && alphas != 0;
    if (!hasAlpha) {
        for (int y = 0; y < header->height; y++) {
            auto* row = reinterpret_cast<Pixel*>(picture.scanLine(y));
            std::for_each(row, row + header->width, [](Pixel& pixel) { pixel.alpha = 255; });
        }
        picture.reinterpretAsFormat(QImage::Format_RGBX8888);
    }
    *image = picture;
    return true;
}
