// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/Clipping.h"

#include "app/controls/LookStrip.h"
#include "tests/app/Desk.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>

namespace {

/// What a person can use: each stands whole in the window, or in the strip that scrolls.
QWidgetList controls(Desk& desk)
{
    QWidgetList all;
    for (auto* widget : desk.find<QWidget>("centralwidget")->findChildren<QWidget*>())
        if (widget->isVisible()
            && (qobject_cast<QAbstractButton*>(widget) || qobject_cast<QComboBox*>(widget)
                || qobject_cast<QLabel*>(widget) || qobject_cast<QSlider*>(widget)
                || widget->objectName() == "mainImageView" || widget->objectName() == "filtersBox"))
            all << widget;
    return all;
}

QRect placeIn(const QWidget* ancestor, const QWidget* widget)
{
    return {widget->mapTo(ancestor, QPoint()), widget->size()};
}

} // namespace

QString whatIsClipped(Desk& desk)
{
    auto* strip = desk.find<LookStrip>("filtersBox");
    const QWidget* central = desk.find<QWidget>("centralwidget");
    const QWidgetList all = controls(desk);
    for (const QWidget* widget : all) {
        const auto* turn = qobject_cast<const QPushButton*>(widget); // its sign is narrower than words are
        const bool isSign = turn && turn->text().size() == 1;
        const bool mayElide = widget->objectName() == "filtersText";
        const QSize need = widget->minimumSizeHint();
        if (widget->height() < need.height() || (!isSign && !mayElide && widget->width() < need.width())
            || (isSign && widget->width() < 2 * widget->fontMetrics().horizontalAdvance(turn->text())))
            return widget->objectName() + " is clipped";
        const QWidget* ground = strip->widget()->isAncestorOf(widget) ? strip->widget() : central;
        if (!ground->rect().contains(placeIn(ground, widget)))
            return widget->objectName() + " lies outside";
        for (const QWidget* other : all)
            if (other != widget && !strip->widget()->isAncestorOf(widget) && !strip->widget()->isAncestorOf(other)
                && placeIn(central, widget).intersects(placeIn(central, other)))
                return widget->objectName() + " lies on " + other->objectName();
    }
    const int bar = strip->horizontalScrollBar()->isVisible() ? strip->horizontalScrollBar()->height() : 0;
    if (strip->height() < strip->widget()->minimumSizeHint().height() + bar)
        return "the strip is clipped";
    if (!desk.window.rect().contains(placeIn(&desk.window, central)))
        return "the window is clipped";
    return {};
}
