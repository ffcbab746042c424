// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Exact.h"

namespace lumora {

struct ColorcrossParameters {
    float exponent[3]; ///< of the red, green and blue curve: above 1 steep, below 1 flat

    static ColorcrossParameters fixed();
    static ColorcrossParameters varied(const float* random);
};

/// Sets apart three exponents that lie within 0.3 of their mean, by changing the one that `choice` (0 .. 1) picks.
void setApart(float (&exponent)[3], float choice);

} // namespace lumora
