// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Api.h"

namespace lumora {

/// The largest size of the aspect width : height that fits the box, in pixels. The side that touches the box is taken
/// as it is, the other is rounded half up.
LUMORA_API void findBestFit(
    float width, float height, float boxWidth, float boxHeight, float* outWidth, float* outHeight);

} // namespace lumora
