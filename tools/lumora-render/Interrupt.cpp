// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/lumora-render/Interrupt.h"

#include <initializer_list>

namespace {

constexpr std::initializer_list<int> signals = {SIGINT, SIGTERM, SIGHUP};

volatile std::sig_atomic_t noted = 0;

void note(int signal)
{
    if (noted == 0)
        noted = signal;
}

/// As under nohup, and for what a script starts in the background.
bool isIgnored(int signal)
{
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler == SIG_IGN;
}

void handleBy(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    for (const int signal : signals)
        if (!isIgnored(signal))
            sigaction(signal, &action, nullptr);
}

sigset_t block()
{
    sigset_t set, before;
    sigemptyset(&set);
    for (const int signal : signals)
        if (!isIgnored(signal)) // blocked, it would wait all the same
            sigaddset(&set, signal);
    sigprocmask(SIG_BLOCK, &set, &before);
    return before;
}

} // namespace

sigset_t noteInterrupts()
{
    handleBy(note);
    return block();
}

int interrupt()
{
    sigset_t waiting;
    sigpending(&waiting);
    for (const int signal : signals)
        if (noted == 0 && sigismember(&waiting, signal) == 1)
            note(signal);
    return noted;
}

void endByInterrupts(const sigset_t& before)
{
    handleBy(SIG_DFL);
    sigprocmask(SIG_SETMASK, &before, nullptr);
}

void holdInterrupts()
{
    block();
}
