// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/toolkit/Kernel.h"

#include <cmath>

namespace lumora {

void fillKernel(GrowArray<float>& weights, int size, float exponent, bool unitCentre)
{
    const float half = float((size < 3 ? 3 : size) * 0.5);
    int x = 0;
    do {
        x++;
        weights.add(exponent <= 0.0f ? 1.0f : std::pow(float(x) / half, exponent));
    } while (float(x) < half);
    if (unitCentre)
        weights.theArray[weights.numThings - 1] = 1.0f;
    for (int i = weights.numThings - 2; i >= 0; i--)
        weights.add(weights.theArray[i]);

    float sum = 0.0f;
    for (int i = 0; i < weights.numThings; i++)
        sum += weights.theArray[i];
    const float reciprocal = 1.0f / sum;
    for (int i = 0; i < weights.numThings; i++)
        weights.theArray[i] *= reciprocal;
}

} // namespace lumora
