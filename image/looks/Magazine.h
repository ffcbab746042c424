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
