// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPaintEvent>
#include <QRegion>

/// Collects what a widget is told to paint, as an event filter of it.
struct PaintWatch : QObject {
    QRegion region;

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
    bool covers(const QRect& area) const { return QRegion(area).subtracted(region).isEmpty(); }
};
