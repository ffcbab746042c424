// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/Magnification.h"

#include "render/Scaled.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr int levels[] = {50, 100, 200}; ///< per cent

/// The first pixel of a side in its room, whose middle shows that share of it.
int placedSide(double centre, int side, int room)
{
    if (side <= room)
        return (room - side) / 2;
    return std::clamp(int(std::lround(room / 2.0 - centre * side)), room - side, 0);
}

/// A rectangle of a picture over the same bytes.
QImage shared(const QImage& picture, const QRect& part)
{
    const uchar* first = picture.constScanLine(part.y()) + qsizetype(part.x()) * (picture.depth() / 8);
    return {first, part.width(), part.height(), picture.bytesPerLine(), picture.format()};
}

QImage doubled(const QImage& picture, const QRect& part)
{
    const QRect pixels = Magnification::pixelsOf(part, 200, picture.size());
    const QPoint first = pixels.topLeft();
    const QImage source = shared(picture, pixels).convertToFormat(QImage::Format_RGB32);
    QImage large(part.size(), QImage::Format_RGB32);
    for (int y = 0; y < large.height(); y++) {
        const auto* from = reinterpret_cast<const QRgb*>(source.constScanLine((part.y() + y) / 2 - first.y()));
        auto* to = reinterpret_cast<QRgb*>(large.scanLine(y));
        for (int x = 0; x < large.width(); x++)
            to[x] = from[(part.x() + x) / 2 - first.x()];
    }
    return large;
}

} // namespace

void Magnification::centreOn(const QPointF& share, int percent)
{
    m_percent = percent;
    m_centre = {std::clamp(share.x(), 0.0, 1.0), std::clamp(share.y(), 0.0, 1.0)};
}

void Magnification::zoomAbout(
    const QPointF& point, const QRectF& before, int percent, const QSize& picture, const QSize& room)
{
    const QPointF share = shareOf(point, before);
    const QSizeF size = sizeOf(picture, percent);
    centreOn({share.x() + (room.width() / 2.0 - point.x()) / size.width(),
                 share.y() + (room.height() / 2.0 - point.y()) / size.height()},
        percent);
}

void Magnification::panBy(const QPoint& distance, const QSize& picture, const QSize& room)
{
    const QRectF moved = placed(picture, room).translated(distance);
    centreOn(shareOf({room.width() / 2.0, room.height() / 2.0}, moved), m_percent);
    const QRectF kept = placed(picture, room); // what could not be moved is not owed
    centreOn(shareOf({room.width() / 2.0, room.height() / 2.0}, kept), m_percent);
}

QRect Magnification::placed(const QSize& picture, const QSize& room) const
{
    const QSize size = sizeOf(picture, m_percent);
    return {QPoint(placedSide(m_centre.x(), size.width(), room.width()),
                placedSide(m_centre.y(), size.height(), room.height())),
        size};
}

int Magnification::stepUp(double fittedPercent) const
{
    const double now = isFitted() ? fittedPercent : m_percent;
    const auto* larger = std::ranges::find_if(levels, [now](int level) { return level > now; });
    return larger == std::end(levels) ? m_percent : *larger;
}

int Magnification::stepDown(double fittedPercent) const
{
    int smaller = 0;
    for (const int level : levels)
        if (level < m_percent && level > fittedPercent)
            smaller = level;
    return smaller;
}

QSize Magnification::sizeOf(const QSize& picture, int percent)
{
    return QSize(picture.width() * percent / 100, picture.height() * percent / 100).expandedTo({1, 1});
}

QRect Magnification::pixelsOf(const QRect& part, int percent, const QSize& picture)
{
    if (percent == 200)
        return {QPoint(part.left() / 2, part.top() / 2), QPoint(part.right() / 2, part.bottom() / 2)};
    if (percent == 100)
        return part;
    return QRect(part.topLeft() * 2, part.size() * 2) & QRect(QPoint(), picture);
}

QPointF shareOf(const QPointF& point, const QRectF& rect)
{
    return {std::clamp((point.x() - rect.x()) / rect.width(), 0.0, 1.0),
        std::clamp((point.y() - rect.y()) / rect.height(), 0.0, 1.0)};
}

QImage magnifiedPart(const QImage& picture, int percent, const QRect& part)
{
    if (part.isEmpty())
        return {};
    if (percent == 200)
        return doubled(picture, part);
    const QImage pixels = shared(picture, Magnification::pixelsOf(part, percent, picture.size()));
    if (percent == 100)
        return pixels.convertToFormat(QImage::Format_RGB32);
    QImage small = scaledTo(pixels, part.size());
    small.convertTo(QImage::Format_RGB32);
    return small;
}
