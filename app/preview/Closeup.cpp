// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/Closeup.h"

#include "render/RenderPipeline.h"

#include <cstdlib>

void Closeup::setPicture(const QImage& picture)
{
    setMix({}, picture, 0);
}

void Closeup::setMix(const QImage& before, const QImage& picture, int strength)
{
    m_mixedWith = before;
    m_picture = picture;
    m_strength = strength;
    m_size = picture.size();
    m_seen = {};
}

void Closeup::letPictureGo(const QSize& room)
{
    if (m_picture.isNull())
        return;
    m_seen = part(QRect(QPoint(), room), room);
    m_seen.pixels.detach(); // from the picture
    m_picture = {};
    m_mixedWith = {};
}

QRectF Closeup::before(const QRectF& fitted, const QSize& room) const
{
    return isOn() ? QRectF(placed(room)) : fitted;
}

void Closeup::centreOn(const QPointF& point, int percent, const QRectF& fitted, const QSize& room)
{
    m_magnification.centreOn(shareOf(point, before(fitted, room)), percent);
}

void Closeup::zoom(int steps, const QPointF& point, const QRectF& fitted, const QSize& room)
{
    const double fittedPercent = fitted.width() * 100 / m_size.width();
    for (int i = 0; i < std::abs(steps); i++) {
        const int percent = steps > 0 ? m_magnification.stepUp(fittedPercent) : m_magnification.stepDown(fittedPercent);
        if (percent == 0)
            return end();
        m_magnification.zoomAbout(point, before(fitted, room), percent, m_size, room);
    }
}

QRect Closeup::seen(const QSize& picture, const QRect& area, const QSize& room) const
{
    return area & placed(picture, room) & QRect(QPoint(), room);
}

Closeup::Part Closeup::part(const QRect& area, const QSize& room) const
{
    if (m_picture.isNull())
        return m_seen;
    if (m_mixedWith.isNull())
        return part(m_picture, area, room);
    const QRect seen = this->seen(m_size, area, room), magnified = seen.translated(-placed(room).topLeft());
    const QRect pixels = Magnification::pixelsOf(magnified, percent(), m_size);
    const QPoint first = pixels.topLeft() * percent() / 100;
    const QImage mix = mixedPart(m_mixedWith, m_picture, m_strength, pixels);
    return {seen, magnifiedPart(mix, percent(), magnified.translated(-first))};
}

Closeup::Part Closeup::part(const QImage& picture, const QRect& area, const QSize& room) const
{
    const QRect seen = this->seen(picture.size(), area, room);
    return {seen, magnifiedPart(picture, percent(), seen.translated(-placed(picture.size(), room).topLeft()))};
}
