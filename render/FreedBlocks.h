// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Has the C library keep freed blocks of up to 32 MiB, 64 MiB of them at most, for the next ones: a press on a look
/// asks for the same few megabytes again and again, and fresh pages take longer than some looks do. Larger blocks, such
/// as whole photos, still go back to the system at once. Elsewhere than with the GNU C library it does nothing.
void keepFreedBlocks();
