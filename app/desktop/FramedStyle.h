// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

/// Fusion, with a clear frame round the control that has the focus and, with high contrast, round every control.
class FramedStyle : public QProxyStyle {
    Q_OBJECT

public:
    explicit FramedStyle(bool highContrast);

    void drawPrimitive(
        PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
        const QWidget* widget) const override;

private:
    void drawFrame(QPainter& painter, const QRect& place, const QStyleOption& option) const;

    bool m_highContrast;
};
