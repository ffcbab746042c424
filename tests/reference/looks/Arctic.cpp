// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

#include <cmath>

namespace reference {

void arctic(Picture& picture)
{
    for (std::size_t i = 0; i < picture.pixels.size(); i += 4) {
        unsigned char* p = &picture.pixels[i];
        const float lum = luminance(p[0], p[1], p[2]);
        const float t = float(lum * 0.00392156862745098);
        float c[3] = {p[0] * 0.63f + t * 14.8f, p[1] * 0.63f + t * 14.8f, p[2] * 0.63f + t * 59.2f};
        if (lum < 135) {
            const float k = 1 - powf((135 - lum) * 0.007407407276332378f, 1.1f);
            for (float& v : c)
                v = v * k;
        } else {
            const float u = 1 - (lum - 135) * 0.008333333767950535f;
            for (float& v : c)
                v = float((double(v) - 255) * u + 255);
        }
        const float L = luminance(c[0], c[1], c[2]) * -0.10000002384185791f;
        for (int k = 0; k < 3; k++)
            p[k] = clamped(c[k] * 1.1f + L);
    }
    fillHistogram(picture, 0.001f, 0.01f, 0.0f, 255.0f, true, false);
}

} // namespace reference
