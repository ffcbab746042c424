// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/controls/LookButton.h"

#include "app/state/Rules.h"
#include "image/CharImage.h"

#include <QKeyEvent>
#include <QPainter>

LookButton::LookButton(QWidget* parent)
    : QToolButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // An empty place for the picture. A button without one is as low as its text: the strip would leap at the first.
    QPixmap nothing(120, 120); // as large as one gets: its name stands where it will be
    nothing.fill(Qt::transparent);
    setIcon(nothing);
}

void LookButton::setFilter(int filter)
{
    m_filter = filter;
    setText(QString::fromUtf8(lumora::CharImage::getFilterName(filter)));
}

void LookButton::setPlace(int place)
{
    if (place == m_place)
        return;
    m_place = place;
    setAccessibleDescription(place > 0 ? tr("Applied as number %1").arg(shownNumber(place)) : QString());
    update();
}

void LookButton::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
        return event->ignore(); // the strip walks from look to look
    default:
        QToolButton::keyPressEvent(event);
    }
}

void LookButton::paintEvent(QPaintEvent* event)
{
    QToolButton::paintEvent(event);
    if (m_place == 0)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    const QString number = shownNumber(m_place);
    const int height = painter.fontMetrics().height();
    QRect sign(0, 0, qMax(height, painter.fontMetrics().horizontalAdvance(number) + height / 2), height);
    sign.moveTopRight({(width() + iconSize().width()) / 2, height / 4});
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xf0, 0xa8, 0x3c)); // of the line below an applied look
    painter.drawRoundedRect(sign, height / 2.0, height / 2.0);
    painter.setPen(Qt::black);
    painter.drawText(sign, Qt::AlignCenter, number);
}
