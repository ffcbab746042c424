// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/Appearance.h"

#include "app/desktop/FramedStyle.h"

#include <QApplication>
#include <QPalette>

void useDarkAppearance(bool highContrast)
{
    QApplication::setStyle(new FramedStyle(highContrast));
    const QColor window(51, 51, 51), accent(126, 190, 250);
    const QColor text = highContrast ? QColor(Qt::white) : QColor(225, 225, 225);
    const QColor faint = highContrast ? QColor(205, 205, 205) : QColor(180, 180, 180);
    const QColor button = highContrast ? QColor(20, 20, 20) : QColor(72, 72, 72);
    const QColor idle = highContrast ? button : QColor(48, 48, 48); // a button that is of no use now
    const QColor well = highContrast ? QColor(Qt::black) : QColor(38, 38, 38);
    QPalette colours(button, window);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        colours.setColor(role, text);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colours.setColor(QPalette::Disabled, role, faint);
    colours.setColor(QPalette::Disabled, QPalette::Button, idle);
    colours.setColor(QPalette::Base, well);
    colours.setColor(QPalette::AlternateBase, highContrast ? well : QColor(45, 45, 45));
    colours.setColor(QPalette::ToolTipBase, well);
    colours.setColor(QPalette::PlaceholderText, faint);
    colours.setColor(QPalette::Highlight, accent);
    colours.setColor(QPalette::HighlightedText, Qt::black);
    colours.setColor(QPalette::Link, accent);
    QApplication::setPalette(colours);
    colours.setColor(QPalette::Base, highContrast ? well : QColor(80, 80, 80)); // an empty box must be seen
    colours.setColor(QPalette::Text, Qt::white); // the tick, which the style darkens
    QApplication::setPalette(colours, "QCheckBox");
}
