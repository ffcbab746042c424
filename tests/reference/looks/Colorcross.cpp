// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

#include <cmath>

using namespace lumora;

namespace reference {

void colorcross(Picture& picture)
{
    float e[3] = {2.83954f, 2.758001f, 0.683486f};
    if (CharImage::useRandom) {
        const float* random = CharImage::random;
        e[0] = float(powf(random[20], 1.7f) * 2.5 + 0.6);
        e[1] = float(powf(random[22], 1.7f) * 2.5 + 0.6);
        e[2] = float(powf(random[24], 1.7f) * 2.5 + 0.6);
        const float mean = float((e[2] + (e[0] + e[1])) * (1.0 / 3.0));
        if (fabsf(e[0] - mean) < 0.3 && fabsf(e[1] - mean) < 0.3 && fabsf(e[2] - mean) < 0.3) {
            const int channel = int(random[66] * 1000.0f) % 3;
            if (e[channel] > 2.0f)
                e[channel] = e[channel] / 2;
            else
                e[channel] = float(e[channel] * 1.6);
        }
    }
    for (std::size_t i = 0; i < picture.pixels.size(); i++) {
        if (i % 4 == 3)
            continue;
        const float exponent = e[i % 4];
        const float x = float(picture.pixels[i] * 0.00392156862745098);
        float y;
        if (x < 0.5f)
            y = powf(x + x, exponent) * 0.5f;
        else
            y = float(1 - 0.5 * powf(float(2 - 2.0 * x), exponent));
        float z = y * 255.0f;
        if (z < 20.0f)
            z = 20.0f;
        else if (z > 250.0f)
            z = 250.0f;
        picture.pixels[i] = clamped(z);
    }
}

} // namespace reference
