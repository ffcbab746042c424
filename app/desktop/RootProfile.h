// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractNativeEventFilter>
#include <QByteArray>
#include <QObject>
#include <cstdint>

/// The colour profile of a screen that X11 holds as a property of its root window.
class RootProfile : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

public:
    RootProfile();
    ~RootProfile() override;

    /// That of the screen of this number, counted from 0, the primary one; empty where there is none, where it is too
    /// large to be one, and where the desktop is not X11. From then on its changes are told.
    QByteArray of(int screen);

signals:
    void changed();

private:
    bool nativeEventFilter(const QByteArray& kind, void* message, qintptr*) override;

    std::uint32_t m_root = 0, m_property = 0; ///< window and name of what was read; 0: nothing was
};
