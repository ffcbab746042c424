// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/FramedStyle.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

FramedStyle::FramedStyle(bool highContrast)
    : QProxyStyle(QStyleFactory::create(QStringLiteral("fusion")))
    , m_highContrast(highContrast)
{
}

/// The focus is shown where keys brought it, as everywhere in Fusion.
void FramedStyle::drawFrame(QPainter& painter, const QRect& place, const QStyleOption& option) const
{
    const bool focus = (option.state & State_HasFocus) && (option.state & State_KeyboardFocusChange);
    if (!focus && !m_highContrast)
        return;
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(option.palette.color(focus ? QPalette::Highlight : QPalette::WindowText), focus ? 2 : 1));
    if (focus)
        painter.drawRect(QRectF(place).adjusted(1, 1, -1, -1));
    else
        painter.drawRect(place.adjusted(0, 0, -1, -1));
    painter.restore();
}

void FramedStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    if (element == PE_FrameFocusRect) // of what has no frame of its own
        return drawFrame(*painter, option->rect, *option);
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    switch (element) {
    case PE_PanelButtonCommand:
    case PE_IndicatorCheckBox:
    case PE_FrameLineEdit:
    case PE_FrameMenu:
        return drawFrame(*painter, option->rect, *option);
    default:
        return;
    }
}

void FramedStyle::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_Slider)
        drawFrame(*painter, subControlRect(control, option, SC_SliderHandle, widget), *option);
}
