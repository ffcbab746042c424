#include "photo/PhotoLoader.h"

#include "photo/ColorProfile.h"
#include "photo/FreeMemory.h"
#include "photo/JpegMarkers.h"
#include "photo/OnWhite.h"
#include "photo/formats/PngColourKey.h"
#include "photo/formats/PsdHandler.h"
#include "photo/formats/TgaHandler.h"

#include <QFile>
#include <QImageIOHandler>
#include <QImageReader>
#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

namespace {

LoadedPhoto refusal(const QString& reason)
{
    LoadedPhoto refused;
    refused.reason = reason;
    return refused;
}

QString openFailure(int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return QStringLiteral("The file does not exist.");
    case EACCES:
    case EPERM:
        return QStringLiteral("There is no permission to read the file.");
    default:
        return QStringLiteral("The file cannot be opened: %1.").arg(qt_error_string(error));
    }
}

/// Opens a regular file that is not empty; gives the reason otherwise. Never waits for a pipe or a device.
QString openRegularFile(const QByteArray& path, QFile& file)
{
    const int descriptor = open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0)
        return openFailure(errno);
    struct stat status = {};
    const bool known = fstat(descriptor, &status) == 0;
    if (!known || !S_ISREG(status.st_mode) || status.st_size == 0) {
        close(descriptor);
        if (known && S_ISREG(status.st_mode))
            return QStringLiteral("The file is empty.");
        return S_ISDIR(status.st_mode) ? QStringLiteral("It is a folder, not a picture.")
                                       : QStringLiteral("It is not a file with a picture.");
    }
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        close(descriptor);
        return openFailure(EIO);
    }
    return {};
}

/// The reader of this project that takes the file, to be asked before the platform's; null when none does.
std::unique_ptr<QImageIOHandler> ownHandler(QIODevice& file)
{
    if (PsdHandler::canRead(file))
        return std::make_unique<PsdHandler>();
    if (TgaHandler::canRead(file))
        return std::make_unique<TgaHandler>();
    return nullptr;
}

int bytesPerPixel(QImage::Format format)
{
    return std::max(QImage::toPixelFormat(format).bitsPerPixel() / 8, 4);
}

/// Why a picture of that size is not decoded; empty when it is. `bytesPerPixel` is what its decoder makes of it.
QString sizeRefusal(const QSize& size, int bytesPerPixel)
{
    const qint64 pixels = qint64(size.width()) * size.height();
    if (pixels > maxPhotoPixels)
        return QStringLiteral("The picture is too large: %1 x %2 pixels. At most %3 megapixels can be opened.")
            .arg(size.width())
            .arg(size.height())
            .arg(maxPhotoPixels / 1000000);
    return pixels * bytesPerPixel > freeMemory() / blocksPerPhoto ? memoryRefusal(size) : QString();
}

/// Formats of the platform that hold drawings and icons rather than photos. The icons' decoder allocates whatever a
/// file claims, and a drawing may take any time to be rendered.
bool isForPhotos(const QByteArray& format)
{
    return format != "icns" && format != "svg" && format != "svgz" && format != "pdf";
}

QString decodeByOwn(QImageIOHandler& handler, QImage& image)
{
    const QString refusal = sizeRefusal(handler.option(QImageIOHandler::Size).toSize(),
        bytesPerPixel(QImage::Format(handler.option(QImageIOHandler::ImageFormat).toInt())));
    if (!refusal.isEmpty())
        return refusal;
    return handler.read(&image) ? QString()
                                : QStringLiteral("The picture is damaged or of a kind that cannot be read.");
}

QString decodeByPlatform(QIODevice& file, QImage& image)
{
    // For decoders that do not tell the size first.
    const qint64 limit = std::min(maxPhotoPixels * 8, freeMemory() / blocksPerPhoto);
    QImageReader::setAllocationLimit(std::max(int(limit >> 20), 1));
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!reader.canRead() || !isForPhotos(reader.format()))
        return QStringLiteral("The file is not a picture of a kind that can be read.");
    const QSize size = reader.size();
    if (size.isValid()) {
        const QString refusal = sizeRefusal(size, bytesPerPixel(reader.imageFormat()));
        if (!refusal.isEmpty())
            return refusal;
    }
    return reader.read(&image) ? QString() : QStringLiteral("The picture is damaged and cannot be read.");
}

/// Decodes the first picture of the file; gives the reason when there is none, and leaves anything in `image`.
QString decode(QIODevice& file, QImage& image)
{
    if (const auto handler = ownHandler(file)) {
        handler->setDevice(&file);
        return decodeByOwn(*handler, image);
    }
    if (const auto key = findPngColourKey(file)) {
        PngWithoutKey png(file, *key);
        const QString reason = decodeByPlatform(png, image);
        if (!reason.isEmpty() || applyColourKey(image, *key))
            return reason;
        return QStringLiteral("The picture is damaged or of a kind that cannot be read.");
    }
    file.seek(0);
    return decodeByPlatform(file, image);
}

LoadedPhoto load(const QByteArray& path)
{
    QFile file;
    QString reason = openRegularFile(path, file);
    if (!reason.isEmpty())
        return refusal(reason);
    LoadedPhoto photo;
    const JpegMarkers markers = readJpegMarkers(file);
    if (markers.scans > maxJpegScans)
        return refusal(QStringLiteral("The picture is damaged: it has too many parts."));
    photo.exif = markers.exif;
    file.seek(0);
    QImage image;
    reason = decode(file, image);
    if (!reason.isEmpty())
        return refusal(reason);
    photo.image = onWhiteInEitherOrder(inSRgb(std::move(image)));
    return photo.image.isNull() ? refusal(QStringLiteral("There is not enough free memory for the picture.")) : photo;
}

} // namespace

LoadedPhoto loadPhoto(const QByteArray& path)
{
    try {
        return load(path);
    } catch (const std::bad_alloc&) {
        return refusal(QStringLiteral("There is not enough free memory for the picture."));
    }
}
