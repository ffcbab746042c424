// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

#include <cmath>

using namespace lumora;

namespace reference {

void instant(Picture& picture)
{
    float e[3] = {1.513512f, 1.277254f, 0.773497f}, lowClip = 0.01f, gain = 1.0f;
    if (CharImage::useRandom) {
        const float* random = CharImage::random;
        for (int k = 0; k < 3; k++)
            e[k] = float(e[k] * (random[23 + k] * 0.6 + 0.7));
        const float t = fmaf(random[30], 12.0f, -4.0f);
        lowClip = t >= 1.0f ? t * 0.01f : 0.01f;
        gain = float(random[40] * 0.4 + 0.8);
    }
    fillHistogram(picture, lowClip, 0.01f, 50.0f, 250.0f, true, false);
    const float tint[3] = {126.0f, 61.0f, 38.0f};
    for (std::size_t i = 0; i < picture.pixels.size(); i += 4) {
        unsigned char* p = &picture.pixels[i];
        float c[3];
        for (int k = 0; k < 3; k++) {
            const float x = float(p[k] * 0.00392156862745098);
            float y;
            if (x < 0.5f)
                y = powf(2 * x, e[k]) * 0.5f;
            else
                y = float(1 - 0.5 * powf(float(2 - 2.0 * x), e[k]));
            float z = y * 255.0f;
            if (z < 20.0f)
                z = 20.0f;
            else if (z > 250.0f)
                z = 250.0f;
            c[k] = z;
        }
        const float L = luminance(c[0], c[1], c[2]);
        const float l = float(L * 0.00392156862745098);
        const float cube = l * l * l;
        const float w = float((1.0 - cube) * 0.38);
        for (int k = 0; k < 3; k++) {
            const float product = w * (l * tint[k]);
            c[k] = c[k] * (1 - w) + (product + product);
            c[k] = (c[k] + 5.0f) * 1.1f;
        }
        const float L2 = luminance(c[0], c[1], c[2]);
        const float q = powf(float(L2 * 0.00392156862745098), 1.5f);
        for (int k = 0; k < 3; k++) {
            c[k] = c[k] * (1 - q) + (c[k] * q) * 0.95f;
            c[k] = float((double(c[k]) - 128) * gain + 128);
            p[k] = clamped(c[k]);
        }
    }
    const float hw = float(picture.width * 0.5), hh = float(picture.height * 0.5);
    const float D = sqrtf(hw * hw + hh * hh);
    vignette(picture, float(D * 0.4), D, 1.2f, 0.6f, true, false);
}

} // namespace reference
