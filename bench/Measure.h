// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

// What the benchmarks share: one core, clocks and silence.

/// Keeps the process on one core: a move to another would empty its caches.
void stayOnOneCore();
/// Seconds of the steady clock that an action takes. What it prints to standard output is thrown away.
double secondsOf(const std::function<void()>& action);
/// The same in processor time, of the program and of the system for it: other programs on its core do not count.
double processorSecondsOf(const std::function<void()>& action);
/// The most memory that a process has held so far, in MiB; 0: this process.
double peakMemory(long long process = 0);
/// Begins the peak of this process anew at what it holds now.
void forgetPeakMemory();
