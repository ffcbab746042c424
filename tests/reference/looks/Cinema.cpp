// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

using namespace lumora;

namespace reference {

void cinema(Picture& picture)
{
    float tint[3] = {30, 30, 40}, a = 0.7f;
    if (CharImage::useRandom) {
        const float* random = CharImage::random;
        tint[0] = float(int(30 * (random[96] * 0.1 + 0.9)));
        tint[1] = float(int(30 * (random[95] * 0.1 + 0.9)));
        tint[2] = float(int(40 * (random[94] * 0.1 + 0.9)));
        const float s = float(random[93] * 0.9 + 0.4);
        a = s <= 1.0f ? s * 0.7f : 0.7f;
    }
    fillHistogram(picture, 0.05f, 0.0f, 5.0f, 255.0f, true, true);
    for (std::size_t i = 0; i < picture.pixels.size(); i += 4) {
        unsigned char* p = &picture.pixels[i];
        float c[3] = {float(p[0]), float(p[1]), float(p[2])};
        float l = float(luminance(c[0], c[1], c[2]) * 0.00392156862745098);
        for (float& v : c)
            v = v * (1 - l) + (v * l) * 1.5f;
        for (float& v : c)
            v = float((double(v) - 128) * 1.1f + 128);
        const float grey = luminance(c[0], c[1], c[2]) * (1.0f - 0.85f);
        for (float& v : c)
            v = v * 0.85f + grey;
        l = float(luminance(c[0], c[1], c[2]) * 0.00392156862745098);
        for (int k = 0; k < 3; k++) {
            const float product = a * (tint[k] * l);
            c[k] = c[k] * (1 - a) + (product + product);
        }
        for (float& v : c)
            v = v * 1.5f;
        const float d = float(luminance(c[0], c[1], c[2]) * -0.00392156862745098 + 1);
        for (int k = 0; k < 3; k++)
            p[k] = clamped(c[k] * (1 - d) + (c[k] * d) * 1.5f);
    }
}

} // namespace reference
