// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/controls/LookStrip.h"

#include "app/controls/LookButton.h"
#include "app/controls/ShownOnly.h"
#include "app/state/LookList.h"
#include "app/state/Rules.h"

#include <QApplication>
#include <QKeyEvent>
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

LookStrip::~LookStrip()
{
    // The focus leaves the buttons while they go, after the strip itself.
    disconnect(qApp, nullptr, this, nullptr);
}

QList<LookButton*> LookStrip::buttons() const
{
    return findChildren<LookButton*>();
}

void LookStrip::addLooks(const std::vector<int>& filters)
{
    auto* line = new QFrame;
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Sunken);
    widget()->layout()->addWidget(line);
    for (const int filter : filters) {
        QWidget* before = buttons().last();
        auto* button = new LookButton;
        button->setFilter(filter);
        widget()->layout()->addWidget(button);
        setTabOrder(before, button);
    }
}

void LookStrip::showApplied(const LookList& looks, bool multi)
{
    for (LookButton* button : buttons()) {
        showSwitch(*button, looks.isShownAsApplied(button->filter()));
        button->setPlace(multi ? looks.find(button->filter()) + 1 : 0);
        if (button->filter() == looks.last())
            m_lastApplied = button;
    }
    // A look that is switched off where the pointer is may be switched on again: its button stays there.
    if (looks.numThings > 0 || !underMouse())
        ensureWidgetVisible(m_lastApplied);
}

void LookStrip::fit()
{
    widget()->layout()->invalidate(); // which buttons that are about to be shown have not told it
    fitToButtons();
}

void LookStrip::fitToButtons()
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
        fitToButtons(); // which asks for no further layout where nothing has changed
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
    if (m_lastApplied)
        ensureWidgetVisible(m_lastApplied);
}

void LookStrip::wheelEvent(QWheelEvent* event)
{
    QApplication::sendEvent(horizontalScrollBar(), event); // which takes either direction
}

void LookStrip::keyPressEvent(QKeyEvent* event)
{
    const QList<LookButton*> all = buttons();
    const qsizetype last = all.size() - 1, at = all.indexOf(static_cast<LookButton*>(focusWidget()));
    const auto walkTo = [&](qsizetype to) { all[qBound(qsizetype(0), to, last)]->setFocus(Qt::TabFocusReason); };
    switch (event->key()) {
    case Qt::Key_Left:
        return walkTo(isRightToLeft() ? at + 1 : at - 1);
    case Qt::Key_Right:
        return walkTo(isRightToLeft() ? at - 1 : at + 1);
    case Qt::Key_Home:
        return walkTo(0);
    case Qt::Key_End:
        return walkTo(last);
    default:
        event->ignore(); // nothing else scrolls
    }
}

void LookStrip::showFocused(QWidget*, QWidget* now)
{
    if (isAncestorOf(now))
        ensureWidgetVisible(now);
}
