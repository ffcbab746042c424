// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Exact.h"

namespace lumora {

struct MagazineParameters {
    float pivot; ///< the luminance at which the tones part, 0 .. 255
    float shadowExponent, highlightExponent;

    static MagazineParameters fixed();
    static MagazineParameters varied(const float* random);
};

} // namespace lumora
