// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace reference {

static float score(const unsigned char* p, int red, int green, int blue)
{
    const int reference[3] = {red, green, blue};
    float factor[3];
    for (int k = 0; k < 3; k++)
        factor[k] = float((255 - std::abs(int(p[k]) - reference[k])) * 0.00392156862745098);
    return std::clamp(factor[0] * factor[1] * factor[2], 0.0f, 1.0f);
}

void infrared(Picture& picture)
{
    for (std::size_t i = 0; i < picture.pixels.size(); i += 4) {
        unsigned char* p = &picture.pixels[i];
        const float green = score(p, 0, 255, 0), warm = score(p, 228, 152, 76), sky = score(p, 150, 150, 255);
        const float v = float(green * 0.5 + warm + sky * (-0.4));
        p[0] = p[1] = p[2] = clamped(v * 255.0f);
    }
    fillHistogram(picture, 0.01f, 0.01f, 0.0f, 255.0f, true, true);
    makeBlurry(picture, int(std::max(picture.width, picture.height) * 0.01), 3.0f);
}

} // namespace reference
