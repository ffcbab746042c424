// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

/// Whether the desktop asks for high contrast, by its settings portal. It is asked over D-Bus; nobody waits for it.
class DesktopContrast : public QObject {
    Q_OBJECT

public:
    DesktopContrast();

signals:
    void changed(bool high); ///< from the usual one, with which it begins

private slots:
    void ask();

private:
    bool m_high = false;
};
