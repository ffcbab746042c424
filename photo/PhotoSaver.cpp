#include "photo/PhotoSaver.h"

#include "photo/formats/JpegEncoder.h"
#include "photo/metadata/JpegMetadata.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageWriter>

namespace {

/// As the platform encodes it; empty when it cannot.
QByteArray standardJpeg(const QImage& image)
{
    // The same pixels without the texts of a picture, which the encoder would write as comments.
    QImage marked(image.constBits(), image.width(), image.height(), image.bytesPerLine(), image.format());
    marked.setColorTable(image.colorTable());
    marked.setColorSpace(QColorSpace::SRgb);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return QImageWriter(&buffer, "jpeg").write(marked) ? buffer.data() : QByteArray();
}

} // namespace

QByteArray encodeJpeg(const QImage& image, const PhotoMetadata& metadata, Kept kept, JpegQuality quality)
{
    const QByteArray jpeg = quality == JpegQuality::Standard ? standardJpeg(image)
                                                             : fineJpeg(image, quality == JpegQuality::High ? 92 : 97);
    return jpeg.isEmpty() ? jpeg : withMetadata(jpeg, metadata, image.size(), kept);
}
