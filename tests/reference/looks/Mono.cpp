// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

using namespace lumora;

namespace reference {

void mono(Picture& picture)
{
    float gain[3] = {255.0f, 255.0f, 128.0f};
    if (CharImage::useRandom)
        for (int k = 0; k < 3; k++) {
            const int v = int(CharImage::random[27 + k] * 270.0);
            gain[k] = float(v);
            if (v < 50)
                gain[k] = 50.0f;
            if (v > 255)
                gain[k] = 255.0f;
        }
    for (std::size_t i = 0; i < picture.pixels.size(); i += 4) {
        unsigned char* p = &picture.pixels[i];
        float c[3];
        for (int k = 0; k < 3; k++) {
            const float product = float(p[k]) * gain[k];
            c[k] = float(double(product) * 0.00392156862745098);
        }
        p[0] = p[1] = p[2] = clamped(luminance(c[0], c[1], c[2]));
    }
    fillHistogram(picture, 0.01f, 0.01f, 0.0f, 255.0f, true, true);
}

} // namespace reference
