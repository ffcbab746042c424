// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/toolkit/ColorSpace.h"

#include "image/numbers/Hues.h"

namespace lumora {

namespace {

void store(Rgb c, float* rgb)
{
    rgb[0] = c.r;
    rgb[1] = c.g;
    rgb[2] = c.b;
}

} // namespace

void rgbToHsl(float* rgb, float* h, float* s, float* l)
{
    rgbToHsl(rgb[0], rgb[1], rgb[2], h, s, l);
}

void rgbToHsl(float r, float g, float b, float* h, float* s, float* l)
{
    const Hsl c = hslOf({r, g, b});
    *h = c.h;
    *s = c.s;
    *l = c.l;
}

void hslToRgb(float h, float s, float l, float* rgb)
{
    store(rgbOf(Hsl{h, s, l}), rgb);
}

void rgbToHsv(float* rgb, float* h, float* s, float* v)
{
    const Hsv c = hsvOf({rgb[0], rgb[1], rgb[2]});
    *h = c.h;
    *s = c.s;
    *v = c.v;
}

void hsvToRgb(float h, float s, float v, float* rgb)
{
    store(rgbOf(Hsv{h, s, v}), rgb);
}

} // namespace lumora
