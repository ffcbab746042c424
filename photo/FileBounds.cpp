// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/FileBounds.h"

#include "photo/PhotoLimits.h"
#include "photo/Reason.h"
#include "photo/TiffReader.h"

#include <QIODevice>
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
    return Reason::tr("The animation is too large: %1 x %2 pixels.").arg(width).arg(height);
}

QString tiffRefusal(TiffReader& reader)
{
    struct {
        quint64 width = 1, height = 1, bits = 1, samples = 1, tileWidth = 1, tileHeight = 1;
    } told;
    for (const TiffField& field : reader.fields(reader.firstDirectory())) {
        // Several values of a pixel's samples are all alike in what can be read.
        const QList<quint64> values = reader.numbers(field, 1);
        if (values.isEmpty())
            continue;
        const quint64 bounded = std::min<quint64>(values.first(), 0x7FFFFFFF); // whose products have room
        switch (field.tag) {
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
    }
    if (told.bits * told.samples > quint64(maxSampleBits))
        return Reason::tr("The picture is of a kind that cannot be read: it has %1 channels of %2 bits.")
            .arg(told.samples)
            .arg(told.bits);
    const quint64 mostOfTile =
        std::max(quint64(maxTilePixels), std::min(told.width * told.height, quint64(maxPhotoPixels)));
    if (told.tileWidth * told.tileHeight > mostOfTile)
        return Reason::tr("The picture is damaged: it has parts of %1 x %2 pixels.")
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
    TiffReader tiff(file);
    return tiff.isValid() ? tiffRefusal(tiff) : QString();
}
