// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/Scaled.h"

#include "photo/OnWhite.h"
#include "render/Resample.h"

#include <QColorSpace>
#include <utility>

QImage scaledTo(const QImage& image, const QSize& size)
{
    if (image.isNull())
        return image;
    if (image.size() == size)
        return onWhite(image);
    const QImage source = onWhiteInEitherOrder(image);
    QImage scaled(size, source.format());
    if (scaled.isNull())
        return scaled;
    const PixelRows rows{source.constBits(), std::size_t(source.bytesPerLine()), source.width(), source.height()};
    const PlacedRect whole{0, 0, double(size.width()), double(size.height())};
    drawScaled(rows, whole, false, scaled.bits(), size.width(), size.height());
    scaled.setColorSpace(image.colorSpace());
    return onWhite(std::move(scaled));
}
