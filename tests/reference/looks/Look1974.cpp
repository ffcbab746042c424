// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

#include <cmath>

using namespace lumora;

namespace reference {

void look1974(Picture& picture)
{
    int tint[3] = {151, 93, 17};
    float amount = 0.43f;
    if (CharImage::useRandom) {
        const float* random = CharImage::random;
        tint[0] = int(151 * (random[79] * 0.14 + 0.93));
        tint[1] = int(93 * (random[80] * 0.14 + 0.93));
        tint[2] = int(17 * (random[81] * 0.14 + 0.93));
        amount = float((random[77] * 0.5 + 0.8) * 0.43);
    }
    for (std::size_t i = 0; i < picture.pixels.size(); i += 4) {
        unsigned char* p = &picture.pixels[i];
        const float lum = luminance(p[0], p[1], p[2]);
        const float shade = powf(float(lum * 0.00392156862745098), 1.5f);
        const float w = float(amount * (1.0 - shade) + 0.27);
        float c[3];
        for (int k = 0; k < 3; k++) {
            const float hard = float((double(p[k]) - 128) * 3.05 + 128);
            c[k] = float(tint[k]) * w + hard * (1 - w);
        }
        const float lum2 = luminance(c[0], c[1], c[2]);
        for (int k = 0; k < 3; k++)
            p[k] = clamped(c[k] * 0.51f + lum2 * 0.49f);
    }
    fillHistogram(picture, 0.0f, 0.005f, 20.0f, 250.0f, true, true);
}

} // namespace reference
