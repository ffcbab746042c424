#include "app/LookStrip.h"

#include "app/LookButton.h"
#include "app/Rules.h"

#include <QApplication>
#include <QLayout>
#include <QScrollBar>
#include <QWheelEvent>

LookStrip::LookStrip(QWidget* parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(qApp, &QApplication::focusChanged, this, &LookStrip::showFocused);
}

QList<LookButton*> LookStrip::buttons() const
{
    return findChildren<LookButton*>();
}

void LookStrip::fit()
{
    if (!isVisible()) // nobody knows yet what the buttons need
        return;
    const QList<LookButton*> all = buttons();
    const int spacing = widget()->layout()->spacing();
    m_side = thumbnailSide((width() + spacing) / int(all.size()) - spacing, window()->height());
    for (LookButton* button : all)
        button->setIconSize({m_side, m_side});
    widget()->layout()->activate();
    const QSize needed = widget()->minimumSizeHint();
    const bool scrolls = needed.width() > width();
    setHorizontalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    setFixedHeight(needed.height() + (scrolls ? horizontalScrollBar()->sizeHint().height() : 0));
}

bool LookStrip::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest) // as by another font
        fit();
    return QScrollArea::eventFilter(watched, event);
}

void LookStrip::showEvent(QShowEvent* event)
{
    QScrollArea::showEvent(event);
    fit();
}

void LookStrip::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    fit();
}

void LookStrip::wheelEvent(QWheelEvent* event)
{
    QApplication::sendEvent(horizontalScrollBar(), event); // which takes either direction
}

void LookStrip::showFocused(QWidget*, QWidget* now)
{
    if (isAncestorOf(now))
        ensureWidgetVisible(now);
}
