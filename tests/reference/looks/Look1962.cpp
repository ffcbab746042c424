// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

using namespace lumora;

namespace reference {

void look1962(Picture& picture)
{
    float gain[3] = {1.0f, 1.0f, 1.5f};
    float darkFraction = 0.1f, brightFraction = 0.1f, darkOutput = 15.0f, contrast = 1.33f, pivot = 100.0f;
    if (CharImage::useRandom) {
        const float* random = CharImage::random;
        gain[0] = float(random[33] * 0.5 + 0.8);
        gain[1] = float(random[34] * 0.5 + 0.8);
        gain[2] = float(random[35] * 0.5 + 0.8);
        darkFraction = float((random[4] * 1.8 + 0.2) * 0.1);
        brightFraction = float((random[5] * 1.8 + 0.2) * 0.1);
        darkOutput = random[6] * 16.0f - 8.0f + 15.0f;
        contrast = float((random[2] * 0.4 + 0.8) * 1.33);
        pivot = random[3] * 50.0f - 50.0f + 100.0f;
    }
    fillHistogram(picture, darkFraction, brightFraction, darkOutput, 245.0f, false, false);
    for (std::size_t i = 0; i < picture.pixels.size(); i += 4) {
        unsigned char* p = &picture.pixels[i];
        const float grey = luminance(float(p[0]) * gain[0], float(p[1]) * gain[1], float(p[2]) * gain[2]);
        const float x = contrast * (grey - pivot) + pivot;
        p[0] = p[1] = p[2] = clamped(x);
    }
}

} // namespace reference
