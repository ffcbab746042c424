// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

using namespace lumora;

namespace reference {

void lolo(Picture& picture)
{
    float darkOutput = 30.0f, brightOutput = 255.0f, sat = 1.4f;
    if (CharImage::useRandom) {
        const float* random = CharImage::random;
        darkOutput = float(int(random[50] * 30.0f + 10.0f));
        const float v = random[51] * -50.0f + 265.0f;
        brightOutput = v > 255.0f ? 255.0f : float(int(v));
        const float s = float((random[52] * 0.5 + 0.8) * 1.4);
        sat = s >= 1.0f ? float(s * 1.4) : 1.4f;
    }
    fillHistogram(picture, 0.005f, 0.01f, darkOutput, brightOutput, true, true);
    for (std::size_t i = 0; i < picture.pixels.size(); i += 4) {
        unsigned char* p = &picture.pixels[i];
        const float lum = luminance(p[0], p[1], p[2]);
        float c[3];
        for (int k = 0; k < 3; k++) {
            const float c1 = sat * float(p[k]) + lum * (1 - sat);
            c[k] = float((double(c1) - 128) * 1.5 + 128);
        }
        const float t = float(luminance(c[0], c[1], c[2]) * 0.00392156862745098);
        const float r4 = c[0] * 0.97f + t * 12.9f;
        const float g4 = c[1] * 0.97f + t * 9.66f;
        const float b4 = c[2] * 0.97f;
        const float L = luminance(r4, g4, b4) * 0.10000002384185791f;
        p[0] = clamped(r4 * 0.9f + L);
        p[1] = clamped(g4 * 0.9f + L);
        p[2] = clamped(c[2] * 0.873f + L);
    }
}

} // namespace reference
