// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/SplitLine.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace {

constexpr int breadth = 25; ///< points that the mouse may take it by; the line is in their middle
constexpr qreal handleRadius = 11;
constexpr QColor light(255, 255, 255, 230), shade(0, 0, 0, 90), sign(50, 50, 50);

} // namespace

SplitLine::SplitLine(QWidget* picture)
    : QAbstractSlider(picture)
{
    setOrientation(Qt::Horizontal);
    setLayoutDirection(Qt::LeftToRight); // as pictures are, whatever way people read
    setRange(0, whole);
    setValue(whole / 2);
    setSingleStep(whole / 50);
    setPageStep(whole / 10);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::SplitHCursor);
    setToolTip(tr("Drag it across the photo. Esc ends the comparison."));
    setAccessibleName(tr("Line between before and after"));
    hide();
}

void SplitLine::setRoom(const QRectF& room)
{
    m_room = room;
    followPlace();
}

qreal SplitLine::place() const
{
    const qreal ratio = devicePixelRatioF();
    return m_room.left() + std::round(m_room.width() * value() / whole * ratio) / ratio;
}

QRectF SplitLine::before() const
{
    return {m_room.topLeft(), QPointF(place(), m_room.bottom())};
}

QRectF SplitLine::after() const
{
    return {QPointF(place(), m_room.top()), m_room.bottomRight()};
}

/// What it sweeps over belongs to the other side now; nothing else has changed.
void SplitLine::followPlace()
{
    const QRect former = geometry();
    setGeometry(qRound(place()) - breadth / 2, qFloor(m_room.top()), breadth, qCeil(m_room.height()));
    parentWidget()->update(former | geometry());
}

void SplitLine::setDrawn(bool on)
{
    m_drawn = on;
    update();
}

void SplitLine::sliderChange(SliderChange change)
{
    if (change == SliderValueChange)
        followPlace();
    else
        QAbstractSlider::sliderChange(change);
}

void SplitLine::paintEvent(QPaintEvent*)
{
    if (!m_drawn)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal x = place() - geometry().left();
    painter.fillRect(QRectF(x - 1.5, 0, 3, height()), shade);
    painter.fillRect(QRectF(x - 0.5, 0, 1, height()), light);

    const QPointF middle(x, height() / 2.0);
    painter.setPen(QPen(hasFocus() ? palette().color(QPalette::Highlight) : shade, hasFocus() ? 2 : 1));
    painter.setBrush(light);
    painter.drawEllipse(middle, handleRadius, handleRadius);
    painter.setPen(QPen(sign, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const int side : {-1, 1}) {
        const QPointF tip = middle + QPointF(side * 6.5, 0);
        painter.drawPolyline(QPolygonF({tip - QPointF(side * 3, 3.5), tip, tip - QPointF(side * 3, -3.5)}));
    }
}

void SplitLine::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    m_grip = mapToParent(event->position()).x() - place();
    setSliderDown(true);
}

void SplitLine::mouseMoveEvent(QMouseEvent* event)
{
    if (!isSliderDown() || m_room.width() <= 0)
        return event->ignore();
    const qreal share = (mapToParent(event->position()).x() - m_grip - m_room.left()) / m_room.width();
    setValue(qRound(std::clamp(share, 0.0, 1.0) * whole));
}

void SplitLine::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        setSliderDown(false);
    else
        event->ignore();
}

/// The wheel belongs to the picture.
void SplitLine::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}
