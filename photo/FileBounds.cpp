#include "photo/FileBounds.h"

#include "photo/PhotoLimits.h"

#include <QIODevice>
#include <QtEndian>
#include <algorithm>

namespace {

constexpr qint64 maxSampleBits = 512; ///< of all samples of a pixel, many times what any photo has
constexpr qint64 maxTilePixels = qint64(1) << 24; ///< of a tile that is larger than the picture

QString animationRefusal(const QByteArray& header)
{
    constexpr char isAnimated = 2;
    if (header.size() < 30 || header.mid(8, 8) != "WEBPVP8X" || !(header[20] & isAnimated))
        return {};
    const auto* canvas = reinterpret_cast<const uchar*>(header.constData()) + 24;
    const auto side = [](const uchar* bytes) { return 1 + (bytes[0] | bytes[1] << 8 | bytes[2] << 16); };
    const int width = side(canvas), height = side(canvas + 3);
    if (qint64(width) * height <= maxAnimationPixels)
        return {};
    return QStringLiteral("The animation is too large: %1 x %2 pixels.").arg(width).arg(height);
}

/// The first directory of a TIFF file, of either byte order and either size of its numbers.
class TiffDirectory {
public:
    explicit TiffDirectory(QIODevice& file)
        : m_file(file)
        , m_bigEndian(file.peek(2) == "MM")
    {
        file.seek(2);
        const quint64 version = number(2);
        m_wide = version == 43;
        if (m_wide)
            file.seek(8);
        m_isThere = file.seek(qint64(number(m_wide ? 8 : 4)));
    }

    /// Gives each entry's tag and first value to `take`.
    template <class Take> void read(Take take)
    {
        const quint64 entries = m_isThere ? number(m_wide ? 8 : 2) : 0;
        for (quint64 i = 0; i < std::min<quint64>(entries, 4096); i++) {
            const auto tag = int(number(2)), type = int(number(2));
            const quint64 count = number(m_wide ? 8 : 4);
            const QByteArray value = m_file.read(m_wide ? 8 : 4);
            if (value.size() < (m_wide ? 8 : 4))
                return;
            constexpr int byte = 1, shortNumber = 3, longNumber = 4, longestNumber = 16;
            const int size = type == byte ? 1 : type == shortNumber ? 2 : type == longestNumber ? 8 : 4;
            if (type != byte && type != shortNumber && type != longNumber && type != longestNumber)
                continue;
            // Several values of a pixel's samples stand elsewhere, and are all alike in what can be read.
            if (count * quint64(size) <= quint64(value.size()))
                take(tag, decoded(value.left(size)));
            else
                take(tag, elsewhere(decoded(value), size));
        }
    }

private:
    quint64 decoded(const QByteArray& bytes) const
    {
        quint64 result = 0;
        for (qsizetype i = 0; i < bytes.size(); i++)
            result |= quint64(uchar(bytes[m_bigEndian ? bytes.size() - 1 - i : i])) << (8 * i);
        return result;
    }
    quint64 number(int size) { return decoded(m_file.read(size)); }
    quint64 elsewhere(quint64 place, int size)
    {
        const qint64 here = m_file.pos();
        const quint64 result = m_file.seek(qint64(place)) ? number(size) : 0;
        m_file.seek(here);
        return result;
    }

    QIODevice& m_file;
    bool m_bigEndian, m_wide = false, m_isThere = false;
};

QString tiffRefusal(QIODevice& file)
{
    struct {
        quint64 width = 1, height = 1, bits = 1, samples = 1, tileWidth = 1, tileHeight = 1;
    } told;
    TiffDirectory(file).read([&told](int tag, quint64 value) {
        const quint64 bounded = std::min<quint64>(value, 0x7FFFFFFF); // whose products have room
        switch (tag) {
        case 256:
            told.width = bounded;
            break;
        case 257:
            told.height = bounded;
            break;
        case 258:
            told.bits = bounded;
            break;
        case 277:
            told.samples = bounded;
            break;
        case 322:
            told.tileWidth = bounded;
            break;
        case 323:
            told.tileHeight = bounded;
            break;
        default:
            break;
        }
    });
    if (told.bits * told.samples > quint64(maxSampleBits))
        return QStringLiteral("The picture is of a kind that cannot be read: it has %1 channels of %2 bits.")
            .arg(told.samples)
            .arg(told.bits);
    const quint64 mostOfTile =
        std::max(quint64(maxTilePixels), std::min(told.width * told.height, quint64(maxPhotoPixels)));
    if (told.tileWidth * told.tileHeight > mostOfTile)
        return QStringLiteral("The picture is damaged: it has parts of %1 x %2 pixels.")
            .arg(told.tileWidth)
            .arg(told.tileHeight);
    return {};
}

} // namespace

QString boundsRefusal(QIODevice& file)
{
    file.seek(0);
    const QByteArray header = file.peek(30);
    if (header.startsWith("RIFF"))
        return animationRefusal(header);
    if (header.startsWith(QByteArray("II*\0", 4)) || header.startsWith(QByteArray("MM\0*", 4))
        || header.startsWith(QByteArray("II+\0", 4)) || header.startsWith(QByteArray("MM\0+", 4)))
        return tiffRefusal(file);
    return {};
}
