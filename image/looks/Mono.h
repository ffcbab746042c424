// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Exact.h"

namespace lumora {

struct MonoParameters {
    float gain[3]; ///< of red, green and blue, on 0 .. 255; a weak blue prints skies darker

    static MonoParameters fixed();
    static MonoParameters varied(const float* random);
};

} // namespace lumora
