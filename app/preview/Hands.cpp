// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/DragDropImageView.h"
#include "app/preview/SplitLine.h"

#include <QApplication>
#include <QMouseEvent>
#include <utility>

// What the mouse and the keys do on the preview: they compare, move a close look, and drag the photo out.

namespace {

constexpr int wheelStep = 120; ///< eighths of a degree
constexpr int stepsAcross = 8; ///< of the arrow keys on a close look, from edge to edge of the widget

} // namespace

void DragDropImageView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    beginPan(event->position());
    m_mayDragOut = !m_closeup.isOn();
    if (m_mayDragOut)
        return setComparing(true);
    m_heldStill.start(QApplication::startDragTime(), this);
}

void DragDropImageView::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton))
        return;
    if (m_closeup.isOn())
        panTo(event->position());
    else if (m_mayDragOut && !m_rendered.isNull() && isFarFromPress(event->position())) {
        m_mayDragOut = false;
        setComparing(false);
        emit draggedOut();
    }
}

/// Less than the platform's distance may be an unsteady hand.
bool DragDropImageView::isFarFromPress(const QPointF& position) const
{
    return (position - m_pressed).manhattanLength() >= QApplication::startDragDistance();
}

void DragDropImageView::mouseReleaseEvent(QMouseEvent*)
{
    m_heldStill.stop();
    setComparing(false);
    if (m_closeup.isOn())
        setCursor(Qt::OpenHandCursor);
}

void DragDropImageView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        emit actualSizeAsked(event->position());
        beginPan(event->position());
    }
}

void DragDropImageView::beginPan(const QPointF& position)
{
    m_pressed = position;
    m_panned = {};
    m_panning = false;
}

/// The mouse is there now.
void DragDropImageView::panTo(const QPointF& position)
{
    const QPointF way = position - m_pressed;
    if (!m_panning && !isFarFromPress(position))
        return;
    if (!std::exchange(m_panning, true)) {
        m_heldStill.stop();
        setCursor(Qt::ClosedHandCursor);
    }
    const QPoint pixels = (way * devicePixelRatioF()).toPoint();
    m_closeup.panBy(pixels - std::exchange(m_panned, pixels), room());
    update();
}

void DragDropImageView::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_heldStill.timerId())
        return QWidget::timerEvent(event);
    m_heldStill.stop();
    setComparing(true);
}

void DragDropImageView::wheelEvent(QWheelEvent* event)
{
    if (!(event->modifiers() & Qt::ControlModifier))
        return event->ignore();
    m_wheel += event->angleDelta().y();
    const int steps = m_wheel / wheelStep;
    m_wheel %= wheelStep;
    if (steps != 0)
        emit zoomAsked(steps, event->position());
}

void DragDropImageView::keyPressEvent(QKeyEvent* event)
{
    const QSize step = room() / stepsAcross;
    const auto pan = [this](int x, int y) {
        m_closeup.panBy({x, y}, room());
        update();
    };
    const bool movesLine = m_isSplit && !m_closeup.isOn();
    if (movesLine && event->key() == Qt::Key_Left)
        m_splitLine->triggerAction(QAbstractSlider::SliderSingleStepSub);
    else if (movesLine && event->key() == Qt::Key_Right)
        m_splitLine->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    else if (!m_closeup.isOn())
        QWidget::keyPressEvent(event);
    else if (event->key() == Qt::Key_Left)
        pan(step.width(), 0);
    else if (event->key() == Qt::Key_Right)
        pan(-step.width(), 0);
    else if (event->key() == Qt::Key_Up)
        pan(0, step.height());
    else if (event->key() == Qt::Key_Down)
        pan(0, -step.height());
    else
        QWidget::keyPressEvent(event);
}

void DragDropImageView::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    m_focusByKey = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
}
