// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/PhotoDecoder.h"

#include "photo/ColorProfile.h"
#include "photo/EveryPixel.h"
#include "photo/FileBounds.h"
#include "photo/FreeMemory.h"
#include "photo/JpegMarkers.h"
#include "photo/OnWhite.h"
#include "photo/Orientation.h"
#include "photo/Reason.h"
#include "photo/formats/BmpEnd.h"
#include "photo/formats/GifEnd.h"
#include "photo/formats/InkTiff.h"
#include "photo/formats/OwnFormats.h"
#include "photo/formats/PngColourKey.h"
#include "photo/formats/UnsupportedKind.h"
#include "photo/metadata/MetadataReader.h"

#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <new>

namespace {

/// What a picture must fit to.
struct Room {
    qint64 memory; ///< bytes that there are for it
    qint64 fileBytes; ///< bytes that it is told in
};

int bytesPerPixel(QImage::Format format)
{
    return std::max(QImage::toPixelFormat(format).bitsPerPixel() / 8, 4);
}

/// Why a picture of that size is not decoded; empty when it is. `bytesPerPixel` is what its decoder makes of it.
QString sizeRefusal(const QSize& size, int bytesPerPixel, const Room& room)
{
    const qint64 pixels = qint64(size.width()) * size.height();
    if (pixels > maxPhotoPixels)
        return Reason::tr("The picture is too large: %1 x %2 pixels. At most %3 megapixels can be opened.")
            .arg(size.width())
            .arg(size.height())
            .arg(maxPhotoPixels / 1000000);
    if (pixels > maxPixelsOfTinyFile && pixels / maxPixelsPerByte > room.fileBytes)
        return Reason::tr("The picture is damaged: the file is too small for %1 x %2 pixels.")
            .arg(size.width())
            .arg(size.height());
    return pixels * bytesPerPixel > room.memory / blocksPerPhoto ? memoryRefusal(size) : QString();
}

/// Formats of the platform that hold drawings and icons rather than photos. The icons' decoder allocates whatever a
/// file claims, and a drawing may take any time to be rendered.
bool isForPhotos(const QByteArray& format)
{
    constexpr const char* others[] = {"icns", "ico", "cur", "svg", "svgz", "pdf"};
    return std::none_of(std::begin(others), std::end(others), [&](const char* other) { return format == other; });
}

/// What became of a file.
struct Decoded {
    QString reason; ///< why there is no picture; empty where there is one
    QImage image; ///< anything beside a reason
    bool isInRows = false; ///< the picture has gone into the rows
    bool isUpright = false; ///< otherwise it stands as it is stored, which the file's EXIF block may tell
    bool restIsMissing = false; ///< the file ended before the picture did
    PhotoMetadata metadata = {}; ///< where the decoder gives it
};

Decoded refused(const QString& reason)
{
    return {reason, {}};
}

Decoded decodeByOwn(PhotoHandler& handler, const Room& room, PhotoRows* rows)
{
    const QString refusal = sizeRefusal(handler.option(QImageIOHandler::Size).toSize(),
        bytesPerPixel(QImage::Format(handler.option(QImageIOHandler::ImageFormat).toInt())), room);
    if (!refusal.isEmpty())
        return refused(refusal);
    Decoded decoded;
    decoded.isInRows = rows && handler.hasRows();
    if (!(decoded.isInRows ? handler.readRows(*rows) : handler.read(&decoded.image)))
        return refused(Reason::tr("The picture is damaged or of a kind that cannot be read."));
    decoded.isUpright = handler.isUpright();
    decoded.restIsMissing = handler.restIsMissing();
    decoded.metadata = handler.metadata();
    return decoded;
}

Decoded decodeByPlatform(QIODevice& file, const Room& room)
{
    // For decoders that do not tell the size first.
    const qint64 limit = std::min(maxPhotoPixels * 8, room.memory / blocksPerPhoto);
    QImageReader::setAllocationLimit(std::max(int(limit >> 20), 1));
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QByteArray format = reader.format(); // empty once it is read
    if (!reader.canRead() || !isForPhotos(format))
        return refused(Reason::tr("The file is not a picture of a kind that can be read."));
    const QSize size = reader.size();
    if (size.isValid()) {
        const QString refusal = sizeRefusal(size, bytesPerPixel(reader.imageFormat()), room);
        if (!refusal.isEmpty())
            return refused(refusal);
    }
    Decoded decoded;
    if (!readEveryPixel(reader, decoded.image))
        return refused(isUnsupportedKind(file) ? Reason::tr("The picture is of a kind that is not supported.")
                                               : Reason::tr("The picture is damaged and cannot be read."));
    decoded.isUpright = reader.transformation() != QImageIOHandler::TransformationNone;
    decoded.restIsMissing = (format == "gif" && gifBreaksOff(file)) || (format == "bmp" && bmpBreaksOff(file));
    return decoded;
}

/// Decodes the first picture of the file; into the rows, where there are some and its decoder has them.
Decoded decode(QIODevice& file, const Room& room, PhotoRows* rows)
{
    const OwnFormat own = ownFormat(file);
    if (!own.reason.isEmpty())
        return refused(own.reason);
    if (own.handler) {
        own.handler->setDevice(&file);
        return decodeByOwn(*own.handler, room, rows);
    }
    if (const auto key = findPngColourKey(file)) {
        PngWithoutKey png(file, *key);
        Decoded decoded = decodeByPlatform(png, room);
        if (decoded.reason.isEmpty() && !applyColourKey(decoded.image, *key))
            return refused(Reason::tr("The picture is damaged or of a kind that cannot be read."));
        return decoded;
    }
    if (const auto inks = findInkTiff(file)) {
        QBuffer colours;
        colours.setData(toldAsColours(file, *inks));
        colours.open(QIODevice::ReadOnly);
        Decoded decoded = decodeByPlatform(colours, room);
        if (decoded.reason.isEmpty() && convertInks(decoded.image, *inks))
            return decoded;
    }
    file.seek(0);
    return decodeByPlatform(file, room);
}

LoadedPhoto load(QIODevice& file, qint64 memory, PhotoRows* rows)
{
    LoadedPhoto photo;
    const JpegMarkers markers = readJpegMarkers(file);
    const qint64 maxScanPixels =
        std::min(maxJpegScanPixels, maxScanPixelsOfTinyJpeg + file.size() * maxScanPixelsPerByte);
    if (markers.markers > maxJpegMarkers || markers.scans > maxJpegScans
        || markers.scans * std::min(markers.pixels, maxPhotoPixels) > maxScanPixels)
        return refusedPhoto(Reason::tr("The picture is damaged: it has too many parts."));
    const QString refusal = boundsRefusal(file);
    if (!refusal.isEmpty())
        return refusedPhoto(refusal);
    photo.metadata = readMetadata(file, markers);
    file.seek(0);
    const bool isStoredUpright = orientationOf(photo.metadata.exif) == 1;
    Decoded decoded = decode(file, {memory, file.size()}, isStoredUpright ? rows : nullptr);
    if (!decoded.reason.isEmpty())
        return refusedPhoto(decoded.reason);
    photo.restIsMissing = decoded.restIsMissing;
    if (decoded.metadata != PhotoMetadata())
        photo.metadata = std::move(decoded.metadata);
    if (decoded.isInRows)
        return photo;
    photo.image = onWhiteInEitherOrder(inSRgb(std::move(decoded.image)));
    if (!decoded.isUpright)
        photo.image = turnedUpright(photo.image, orientationOf(photo.metadata.exif));
    return photo.image.isNull() ? refusedPhoto(noMemoryForPhoto()) : photo;
}

} // namespace

LoadedPhoto decodePhoto(QIODevice& file, qint64 memory, PhotoRows* rows)
{
    try {
        return load(file, memory, rows);
    } catch (const std::bad_alloc&) {
        return refusedPhoto(noMemoryForPhoto());
    }
}
