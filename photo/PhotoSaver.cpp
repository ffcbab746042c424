#include "photo/PhotoSaver.h"

#include "photo/metadata/JpegMetadata.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageWriter>

QByteArray encodeJpeg(const QImage& image, const PhotoMetadata& metadata, Kept kept)
{
    // The same pixels without the texts of a picture, which the encoder would write as comments.
    QImage marked(image.constBits(), image.width(), image.height(), image.bytesPerLine(), image.format());
    marked.setColorTable(image.colorTable());
    marked.setColorSpace(QColorSpace::SRgb);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!QImageWriter(&buffer, "jpeg").write(marked))
        return {};
    return withMetadata(buffer.data(), metadata, image.size(), kept);
}
