// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Exact.h"

namespace lumora {

struct InstantParameters {
    float exponent[3]; ///< of the red, green and blue curve
    float lowFraction; ///< what the levels step cuts off at the dark end
    float contrast; ///< 1 leaves it alone

    static InstantParameters fixed();
    static InstantParameters varied(const float* random);
};

} // namespace lumora
