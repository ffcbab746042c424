// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Exact.h"

namespace lumora {

struct LoloParameters {
    float darkLevel, brightLevel; ///< where the levels step puts its cut-offs, 0 .. 255
    float saturation; ///< 1 leaves colours alone

    static LoloParameters fixed();
    static LoloParameters varied(const float* random);
};

} // namespace lumora
