// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/reader/Reader.h"

#include <unistd.h>

/// Reads one photo for Lumora's window, which starts it with a channel in place of the standard input.
int main()
{
    return runReader(STDIN_FILENO);
}
