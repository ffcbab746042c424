// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/CornerLabel.h"

#include <QFontMetricsF>
#include <QPainter>

namespace {

constexpr qreal margin = 8, inset = 6; ///< points round the veil, and beside the word in it
const QColor veil(0, 0, 0, 120), ink(255, 255, 255, 220);

} // namespace

void paintCornerLabel(QPainter& painter, const QRectF& room, const QString& word, bool right, bool low)
{
    QFont font = painter.font();
    font.setPointSizeF(font.pointSizeF() * 0.85);
    const QFontMetricsF metrics(font);
    QRectF label(0, 0, metrics.horizontalAdvance(word) + 2 * inset, metrics.height() + inset);
    if (label.width() + 2 * margin > room.width() || label.height() + 2 * margin > room.height())
        return;
    if (low)
        label.moveBottom(room.bottom() - margin);
    else
        label.moveTop(room.top() + margin);
    if (right)
        label.moveRight(room.right() - margin);
    else
        label.moveLeft(room.left() + margin);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font);
    painter.setPen(Qt::NoPen);
    painter.setBrush(veil);
    painter.drawRoundedRect(label, 4, 4);
    painter.setPen(ink);
    painter.drawText(label, Qt::AlignCenter, word);
    painter.restore();
}
