// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/reference/Toolkit.h"

#include <algorithm>
#include <cmath>

using namespace lumora;

namespace reference {

void rgbToHsl(float red, float green, float blue, float* h, float* s, float* l)
{
    const float r = float(std::clamp(red, 0.0f, 255.0f) * 0.00392156862745098);
    const float g = float(std::clamp(green, 0.0f, 255.0f) * 0.00392156862745098);
    const float b = float(std::clamp(blue, 0.0f, 255.0f) * 0.00392156862745098);
    const float max = std::max({r, g, b}), min = std::min({r, g, b});
    *h = 0;
    *s = 0;
    *l = (max + min) * 0.5f;
    if (!(*l > 0))
        return;
    const float delta = max - min;
    if (!(delta > 0))
        return;
    if (*l <= 0.5f)
        *s = delta / (max + min);
    else
        *s = float(double(delta) / (2.0 - double(max) - double(min)));
    const float r2 = (max - r) / delta, g2 = (max - g) / delta, b2 = (max - b) / delta;
    float sixths;
    if (max == r) {
        if (min == g)
            sixths = 5.0f + b2;
        else
            sixths = 1.0f - g2;
    } else if (max == g) {
        if (min == b)
            sixths = 1.0f + r2;
        else
            sixths = 3.0f - b2;
    } else {
        if (min == r)
            sixths = 3.0f + g2;
        else
            sixths = 5.0f - r2;
    }
    *h = float(double(sixths) * 0.16666666666666666);
}

void hslToRgb(float h, float s, float l, float* rgb)
{
    const float v = l <= 0.5f ? s * l + l : l + s - l * s;
    float r = l, g = l, b = l;
    if (v > 0) {
        const float m = 2 * l - v;
        const float sv = (v - m) / v;
        const float h6 = h * 6.0f;
        const int sextant = toInt(h6);
        const float fract = h6 - float(sextant);
        const float vsf = v * sv * fract;
        const float mid1 = m + vsf, mid2 = v - vsf;
        if (sextant == 0)
            r = v, g = mid1, b = m;
        if (sextant == 1)
            r = mid2, g = v, b = m;
        if (sextant == 2)
            r = m, g = v, b = mid1;
        if (sextant == 3)
            r = m, g = mid2, b = v;
        if (sextant == 4)
            r = mid1, g = m, b = v;
        if (sextant == 5)
            r = v, g = m, b = mid2;
    }
    rgb[0] = r * 255.0f;
    rgb[1] = g * 255.0f;
    rgb[2] = b * 255.0f;
}

void rgbToHsv(float red, float green, float blue, float* h, float* s, float* v)
{
    const float r = float(red * 0.00392156862745098);
    const float g = float(green * 0.00392156862745098);
    const float b = float(blue * 0.00392156862745098);
    const float max = std::max({r, g, b}), min = std::min({r, g, b});
    *v = max;
    *h = 0;
    *s = 0;
    const float delta = max - min;
    if (delta == 0)
        return;
    *s = delta / max;
    if (max == r)
        *h = (60.0f * (g - b)) / delta;
    else if (max == g)
        *h = 120.0f + (60.0f * (b - r)) / delta;
    else
        *h = 240.0f + (60.0f * (r - g)) / delta;
    if (*h < 0)
        *h += 360.0f;
    if (*h >= 360.0f)
        *h -= 360.0f;
}

void hsvToRgb(float h, float s, float v, float* rgb)
{
    const float turn = float(h * 0.002777777777777778);
    float r = v, g = v, b = v;
    if (s != 0) {
        const float h6 = turn * 6.0f;
        const float i = floorf(h6);
        const float f = h6 - i;
        const float p = v * (1 - s), q = v * (1 - s * f), t = v * (1 - s * (1 - f));
        if (i == 0)
            r = v, g = t, b = p;
        else if (i == 1)
            r = q, g = v, b = p;
        else if (i == 2)
            r = p, g = v, b = t;
        else if (i == 3)
            r = p, g = q, b = v;
        else if (i == 4)
            r = t, g = p, b = v;
        else
            r = v, g = p, b = q;
    }
    rgb[0] = r * 255.0f;
    rgb[1] = g * 255.0f;
    rgb[2] = b * 255.0f;
}

} // namespace reference
