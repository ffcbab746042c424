// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/reader/Message.h"

// What keeps a reader from doing harm with a file that was made for it.

/// The status with which a reader ends that tried to use what is not allowed.
enum class Forbidden { Files = 91, Network };

/// Limits this process: a block that it asks for beyond the memory is refused, and beyond the time a signal ends it. It
/// writes no files larger than a photo and leaves no picture of its memory when it breaks down. False where the system
/// refuses.
bool limit(const ReadingLimits& limits);

/// From now on this process can use the files that it has open, memory, clocks and threads of its own. Whatever else it
/// asks of the system is not done: files and the network end it as Forbidden, and the rest is answered as if the system
/// did not know it. False where the system cannot see to that.
bool confine();
