// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Exact.h"

namespace lumora {

struct HelgaParameters {
    float tint[3]; ///< red, green, blue of the cool tint
    float edgeExponent; ///< shapes the fall-off towards the edges
    float contrast;
    int blackFloor; ///< no channel ends below it
    int lowLevel; ///< where the levels step puts the dark cut-off

    static HelgaParameters fixed();
    static HelgaParameters varied(const float* random);
};

} // namespace lumora
