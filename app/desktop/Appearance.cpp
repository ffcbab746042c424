// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/Appearance.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

void useDarkAppearance()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
    const QColor window(51, 51, 51), text(225, 225, 225), faint(140, 140, 140), accent(111, 179, 242);
    QPalette colours(QColor(72, 72, 72), window);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        colours.setColor(role, text);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colours.setColor(QPalette::Disabled, role, faint);
    colours.setColor(QPalette::Base, QColor(38, 38, 38));
    colours.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
    colours.setColor(QPalette::ToolTipBase, QColor(38, 38, 38));
    colours.setColor(QPalette::PlaceholderText, QColor(165, 165, 165));
    colours.setColor(QPalette::Highlight, accent);
    colours.setColor(QPalette::HighlightedText, Qt::black);
    colours.setColor(QPalette::Link, accent);
    QApplication::setPalette(colours);
    colours.setColor(QPalette::Base, QColor(96, 96, 96)); // an empty box must be seen
    QApplication::setPalette(colours, "QCheckBox");
}
