// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Exact.h"

namespace lumora {

struct Look1962Parameters {
    float gain[3]; ///< of red, green and blue; the fixed ones favour blue
    float darkFraction, brightFraction; ///< what the levels step cuts off, 0 .. 1
    float darkLevel; ///< where it puts the dark cut-off, 0 .. 255
    float contrast;
    float pivot; ///< the grey that the contrast leaves alone, 0 .. 255

    static Look1962Parameters fixed();
    static Look1962Parameters varied(const float* random);
};

} // namespace lumora
