// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/desktop/ColordProfile.h"
#include "app/desktop/RootProfile.h"
#include "photo/ScreenColors.h"

#include <QMetaObject>
#include <QWidget>

/// The colours of the screen that a window stands on, as far as the desktop knows them: from X11, or else from colord.
/// It follows the window from screen to screen, and the desktop when that changes a profile.
class MonitorColors : public QObject {
    Q_OBJECT

public:
    /// Begins to look when the window is shown.
    explicit MonitorColors(QWidget* window);

    /// Null where nothing is known: then pictures are shown as they are.
    const std::shared_ptr<const ScreenColors>& colors() const { return m_colors; }

signals:
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void look();
    void use(const QByteArray& icc);

    QWidget* m_window;
    RootProfile m_root;
    ColordProfile m_colord;
    QMetaObject::Connection m_follows; ///< the window
    QByteArray m_icc; ///< of the colours
    std::shared_ptr<const ScreenColors> m_colors;
};
