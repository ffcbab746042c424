// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/lumora-render/Job.h"

#include "photo/FreeMemory.h"
#include "photo/PhotoReader.h"
#include "photo/Reason.h"
#include "photo/reader/Descriptor.h"
#include "render/Export.h"
#include "render/RenderPipeline.h"
#include "render/Variation.h"
#include "tools/lumora-render/Interrupt.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageWriter>
#include <cerrno>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool writeAll(int descriptor, const QByteArray& data)
{
    for (qsizetype written = 0; written < data.size();) {
        const ssize_t count = write(descriptor, data.constData() + written, std::size_t(data.size() - written));
        if (count < 0 && errno != EINTR)
            return false;
        if (count > 0)
            written += count;
    }
    return true;
}

/// The standard input as a file that can be sought in; none where it cannot be read.
Descriptor standardInput()
{
    Descriptor file(memfd_create("photo", MFD_CLOEXEC));
    QByteArray part(1 << 16, Qt::Uninitialized);
    while (file) {
        const ssize_t count = read(STDIN_FILENO, part.data(), std::size_t(part.size()));
        if (count == 0)
            return file;
        if ((count < 0 && errno != EINTR) || (count > 0 && !writeAll(file.number(), part.first(count))))
            break;
    }
    return {};
}

LoadedPhoto readPhoto(const QByteArray& source)
{
    PhotoReader reader(PhotoReader::Reads::One);
    if (source != "-") {
        reader.begin(source);
        return reader.take();
    }
    const Descriptor input = standardInput();
    if (!input)
        return refusedPhoto(QStringLiteral("The standard input cannot be read."));
    reader.begin("/proc/self/fd/" + QByteArray::number(input.number()));
    return reader.take();
}

QByteArray encodePng(const QImage& picture)
{
    QImage marked = picture;
    marked.setColorSpace(QColorSpace::SRgb);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return QImageWriter(&buffer, "png").write(marked) ? buffer.data() : QByteArray();
}

/// A null picture and a reason where there is no memory for it.
QImage renderInSize(const LoadedPhoto& photo, const Order& order, QString* reason)
{
    order.seed ? varyBy(*order.seed) : useFixedSettings();
    RenderSettings settings;
    settings.filterIDs = &order.looks;
    settings.cropFilter = order.crop;
    settings.borderFilter = order.border;
    settings.strength = order.strength;
    QImage render = renderPhoto(photo.image, settings, {}, reason);
    if (render.isNull() || order.size < 0)
        return render;
    const QSizeF size = scaleForExport(render, order.size);
    if (render.isNull())
        *reason = memoryRefusal(bitmapSize(size));
    return render;
}

QString write(
    const QByteArray& output, const QByteArray& data, const FileNumbers& photos, bool mayReplace, int standardOutput)
{
    if (output == "-")
        return writeAll(standardOutput, data) ? QString() : QStringLiteral("The standard output cannot be written.");
    // Whatever stands there may have come since the photo was begun.
    QString reason = outputRefusal(output, photos, mayReplace);
    if (reason.isEmpty())
        (mayReplace ? writeFileAtomically : writeNewFile)(output, data, &reason, Leftovers::Leave); // main() did that
    return reason;
}

} // namespace

std::optional<FileNumber> fileNumber(const QByteArray& path)
{
    struct stat status = {};
    if (stat(path.constData(), &status) != 0)
        return {};
    return FileNumber(status.st_dev, status.st_ino);
}

QString outputRefusal(const QByteArray& output, const FileNumbers& photos, bool mayReplace)
{
    struct stat status = {};
    if (lstat(output.constData(), &status) != 0)
        return {};
    const std::optional<FileNumber> number = fileNumber(output);
    if (number && photos.contains(*number))
        return Reason::tr("The output would replace a photo that is to be rendered.");
    return mayReplace ? QString() : Reason::tr("There is a file of that name already.");
}

Outcome renderOne(const Task& task, const Order& order, const FileNumbers& photos, int standardOutput)
{
    Outcome outcome;
    LoadedPhoto photo = readPhoto(task.source);
    if (photo.image.isNull()) {
        outcome.reason = photo.reason;
        return outcome;
    }
    const QImage picture = renderInSize(photo, order, &outcome.reason);
    if (picture.isNull())
        return outcome;
    photo.image = {};
    const QByteArray data =
        order.lossless ? encodePng(picture) : encodeJpeg(picture, photo.metadata, order.kept, order.quality);
    if (data.isEmpty()) {
        outcome.reason = order.lossless ? Reason::tr("The picture cannot be encoded.") : jpegRefusal(picture.size());
        return outcome;
    }
    holdInterrupts();
    outcome.reason = write(task.output, data, photos, order.mayReplace, standardOutput);
    if (outcome.reason.isEmpty()) {
        outcome.width = picture.width();
        outcome.height = picture.height();
        outcome.bytes = data.size();
        if (photo.restIsMissing)
            outcome.warning = Reason::tr("The rest of the file is missing.");
    }
    return outcome;
}
