// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSocketNotifier>
#include <memory>

/// While it lives, the signals that end a session end the program in the usual way, so that choices are saved. A second
/// signal ends it at once.
class SessionEnd {
public:
    SessionEnd();
    ~SessionEnd();
    SessionEnd(const SessionEnd&) = delete;
    SessionEnd& operator=(const SessionEnd&) = delete;

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};
