// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Exact.h"

namespace lumora {

struct CinemaParameters {
    unsigned char tint[3]; ///< red, green, blue: dark and slightly blue
    float weight; ///< of the tint, 0 .. 1

    static CinemaParameters fixed();
    static CinemaParameters varied(const float* random);
};

} // namespace lumora
