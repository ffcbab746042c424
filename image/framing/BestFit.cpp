// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/framing/BestFit.h"

#include <cmath>

namespace lumora {

void findBestFit(float width, float height, float boxWidth, float boxHeight, float* outWidth, float* outHeight)
{
    const float a = width / height;
    const float b = boxWidth / boxHeight;
    if (a > b) {
        *outWidth = boxWidth;
        *outHeight = float(std::trunc(double(boxWidth / a) + 0.5));
    } else {
        *outHeight = boxHeight;
        *outWidth = float(std::trunc(double(a * boxHeight) + 0.5));
    }
}

} // namespace lumora
