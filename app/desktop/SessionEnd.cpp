// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/SessionEnd.h"

#include <QCoreApplication>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int endings[] = {SIGTERM, SIGHUP, SIGINT};

int channel[2] = {-1, -1}; ///< from the signal to the window's loop: a handler may do no more than write

void tell(int)
{
    const int error = errno;
    [[maybe_unused]] const ssize_t written = write(channel[1], "", 1);
    errno = error;
}

} // namespace

SessionEnd::SessionEnd()
{
    if (pipe2(channel, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(channel[0], QSocketNotifier::Read);
    // Also out of a panel, which would keep the window from being closed.
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [notifier = m_notifier.get()] {
        notifier->setEnabled(false);
        QCoreApplication::exit();
    });
    struct sigaction action = {}, before = {};
    action.sa_handler = tell;
    action.sa_flags = int(SA_RESTART | SA_RESETHAND);
    for (const int signal : endings)
        if (sigaction(signal, nullptr, &before) == 0 && before.sa_handler == SIG_DFL) // some are ignored on purpose
            sigaction(signal, &action, nullptr);
}

SessionEnd::~SessionEnd()
{
    if (!m_notifier)
        return;
    struct sigaction action = {}, now = {};
    action.sa_handler = SIG_DFL;
    for (const int signal : endings)
        if (sigaction(signal, nullptr, &now) == 0 && now.sa_handler == tell)
            sigaction(signal, &action, nullptr);
    m_notifier.reset();
    close(channel[0]);
    close(channel[1]);
}
