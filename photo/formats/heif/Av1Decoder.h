// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Gives libheif a decoder of AV1 pictures that works on the caller's thread and is taken before its own, of which one
/// starts threads. False where it is not taken.
bool provideAv1Decoder();
