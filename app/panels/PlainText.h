// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QMessageBox>

/// Names of files are no rich text. The box itself would ask only the first of its labels; call this when it has all.
inline void showPlainText(QMessageBox& box)
{
    for (QLabel* label : box.findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);
}
