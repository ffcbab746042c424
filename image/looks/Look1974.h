// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Exact.h"

namespace lumora {

struct Look1974Parameters {
    unsigned char tint[3]; ///< red, green, blue of the brown wash
    float amount; ///< its strength in the shadows

    static Look1974Parameters fixed();
    static Look1974Parameters varied(const float* random);
};

} // namespace lumora
