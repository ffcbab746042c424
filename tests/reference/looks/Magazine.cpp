// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

#include <cmath>

using namespace lumora;

namespace reference {

void magazine(Picture& picture)
{
    float P = 135.0f, shadow = 1.0f, highlight = 0.8f;
    if (CharImage::useRandom) {
        P = CharImage::random[27] * 100.0f + 80.0f;
        shadow = CharImage::random[66] + 1.0f;
        highlight = float(CharImage::random[67] * -0.2 + 0.8);
    }
    const float tint[3] = {232.0f, 135.0f, 44.0f};
    for (std::size_t i = 0; i < picture.pixels.size(); i += 4) {
        unsigned char* p = &picture.pixels[i];
        const float L = luminance(p[0], p[1], p[2]);
        const float l = float(L * 0.00392156862745098);
        const float w = float(L * -0.00392156862745098 * 0.27 + 0.27 + 0.2);
        float c[3];
        for (int k = 0; k < 3; k++) {
            const float product = w * (l * tint[k]);
            c[k] = float(p[k]) * (1 - w) + (product + product);
        }
        if (P > L) {
            const float f = 1 - powf((P - L) / P, shadow);
            for (float& v : c)
                v = v * f;
        } else {
            const float f = 1 - powf((L - P) / (255 - P), highlight);
            for (float& v : c)
                v = float((double(v) - 255) * f + 255);
        }
        const float L2 = luminance(c[0], c[1], c[2]) * (1.0f - 1.23f);
        for (int k = 0; k < 3; k++)
            p[k] = clamped(c[k] * 1.23f + L2);
    }
    fillHistogram(picture, 0.001f, 0.01f, 0.0f, 255.0f, true, false);
}

} // namespace reference
