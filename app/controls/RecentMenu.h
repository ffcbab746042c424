// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QMenu>

/// The photos that were opened last, each an entry; those that are gone are grey. The last entry clears the list.
class RecentMenu : public QMenu {
    Q_OBJECT

public:
    RecentMenu(const QString& title, QWidget* parent);

    /// Makes the entries anew, as they also are whenever the menu is opened.
    void fill();

signals:
    void chosen(const QByteArray& path); ///< any bytes
};
