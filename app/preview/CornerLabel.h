// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <QString>

class QPainter;

/// Paints a word in a corner of `room`, small and on a veil, so that it can be read on any picture: in the right corner
/// where `right`, else in the left one, and in the lower one where `low`. Where the word does not fit nothing is
/// painted.
void paintCornerLabel(QPainter& painter, const QRectF& room, const QString& word, bool right = false, bool low = false);
