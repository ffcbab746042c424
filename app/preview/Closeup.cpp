// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/Closeup.h"

#include <cstdlib>

void Closeup::setPicture(const QImage& picture)
{
    m_picture = picture;
    m_size = picture.size();
    m_seen = {};
}

void Closeup::letPictureGo(const QSize& room)
{
    if (m_picture.isNull())
        return;
    m_seen = part(m_picture, QRect(QPoint(), room), room);
    m_seen.pixels.detach(); // from the picture
    m_picture = {};
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

Closeup::Part Closeup::part(const QImage& picture, const QRect& area, const QSize& room) const
{
    if (picture.isNull())
        return m_seen;
    const QRect whole = placed(picture.size(), room);
    const QRect seen = area & whole & QRect(QPoint(), room);
    return {seen, magnifiedPart(picture, percent(), seen.translated(-whole.topLeft()))};
}
