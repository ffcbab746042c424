#include "photo/PhotoSaver.h"

#include "photo/KeptExif.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageWriter>

QByteArray encodeJpeg(const QImage& image, const PhotoMetadata& metadata)
{
    QImage marked = image;
    if (marked.colorSpace() != QColorSpace(QColorSpace::SRgb))
        marked.setColorSpace(QColorSpace::SRgb);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!QImageWriter(&buffer, "jpeg").write(marked))
        return {};
    return metadata.exif.isEmpty() ? buffer.data() : withExif(buffer.data(), metadata.exif, image.size());
}
