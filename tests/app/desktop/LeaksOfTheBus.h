// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// For a test program with a bus of its own, included by its one source.

/// What a bus that ends with the program still held is no leak of ours: libdbus may have a call on its way.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libdbus-1\n";
}
