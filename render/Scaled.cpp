#include "render/Scaled.h"

#include "image/framing/Resample.h"
#include "render/OnWhite.h"

#include <QColorSpace>

QImage scaledTo(const QImage& image, const QSize& size)
{
    if (image.size() == size || image.isNull())
        return image;
    QImage scaled(size, QImage::Format_RGBX8888);
    if (scaled.isNull())
        return scaled;
    const QImage source = onWhite(image);
    const PixelRows rows{source.constBits(), std::size_t(source.bytesPerLine()), source.width(), source.height()};
    const PlacedRect whole{0, 0, double(size.width()), double(size.height())};
    drawScaled(rows, whole, false, scaled.bits(), size.width(), size.height());
    scaled.setColorSpace(image.colorSpace());
    return scaled;
}
