// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/numbers/Arithmetic.h"

namespace lumora {

/// How the values of a pass become bytes: truncated and clamped, and then perhaps taken through the levels.
struct NoLevels {
    int operator()(float v) const { return truncateAndClamp(v); }
    int ofWhole(int v) const { return v; }
};
template <class ByteOf> struct LevelsOnBytes {
    ByteOf levels;
    int operator()(float v) const { return ofWhole(truncateAndClamp(v)); }
    int ofWhole(int v) const { return levels(float(v)); }
};

} // namespace lumora
