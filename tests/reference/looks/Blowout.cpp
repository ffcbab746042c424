// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

using namespace lumora;

namespace reference {

void blowout(Picture& picture)
{
    fillHistogram(picture, 0.01f, 0.1f, 20.0f, 255.0f, false, true);
    for (std::size_t i = 0; i < picture.pixels.size(); i += 4) {
        unsigned char* p = &picture.pixels[i];
        float h, s, l;
        rgbToHsl(p[0], p[1], p[2], &h, &s, &l);
        const float gain = l + 1.0f;
        for (int k = 0; k < 3; k++)
            p[k] = clamped(float(p[k]) * gain);
    }
}

} // namespace reference
