// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/Export.h"

#include "image/CharImage.h"
#include "photo/Reason.h"
#include "render/Scaled.h"

#include <algorithm>
#include <cmath>

using namespace lumora;

QSizeF exportSize(const QSize& render, int maxSide)
{
    const qreal width = render.width(), height = render.height();
    if (width > height)
        return {qreal(maxSide), maxSide * height / width};
    return {maxSide * width / height, qreal(maxSide)};
}

QSize bitmapSize(const QSizeF& size)
{
    const auto side = [](qreal s) { return std::max(int(std::floor(s + 0.5)), 1); };
    return {side(size.width()), side(size.height())};
}

QSizeF scaleForExport(QImage& render, int maxSide)
{
    const QSizeF size = exportSize(render.size(), maxSide);
    render = scaledTo(render, bitmapSize(size));
    return size;
}

QString jpegRefusal(const QSize& picture)
{
    return Reason::tr("A JPEG cannot hold %1 x %2 pixels. Choose a smaller size.")
        .arg(picture.width())
        .arg(picture.height());
}

QStringList keptNames()
{
    return {"all", "no-place", "none"};
}

QStringList qualityNames()
{
    return {"standard", "high", "best"};
}

QByteArray exportName(const QByteArray& photo, const GrowArray<int>& looks, const QByteArray& ending)
{
    const qsizetype dot = photo.lastIndexOf('.');
    QByteArray name = dot > 0 ? photo.left(dot) : photo;
    for (int i = 0; i < looks.numThings; i++)
        name += QByteArray(" ") + CharImage::getFilterName(looks.theArray[i]);
    return name + ending;
}
