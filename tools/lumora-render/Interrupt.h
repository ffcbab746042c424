// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>

// Interrupts: the signals by which people and systems end a run, as Ctrl+C, `kill` and a terminal that goes send them.

/// From now on an interrupt is noted in place of ending this process, while it waits with the mask that is given back;
/// at other times it waits to be noted.
sigset_t noteInterrupts();
/// The number of the one that was noted first, or waits to be; 0 where none came.
int interrupt();
/// In a process that was forked since: as before noteInterrupts(), which gave `before`.
void endByInterrupts(const sigset_t& before);
/// From now on interrupts wait for this process to end by itself.
void holdInterrupts();
