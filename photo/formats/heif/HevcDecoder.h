// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Gives libheif a decoder of HEVC pictures, as phones write them, that works on the caller's thread and is taken
/// before its own: that one starts a thread, and waits for it for ever where none can be started. False where it is not
/// taken.
bool provideHevcDecoder();
