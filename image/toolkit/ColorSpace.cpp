#include "image/toolkit/ColorSpace.h"

#include "image/toolkit/Arithmetic.h"

#include <algorithm>

void rgbToHsl(float* rgb, float* h, float* s, float* l)
{
    const auto scaled = [](float v) { return float((v < 0.0f ? 0.0f : v > 255.0f ? 255.0f : v) * per255); };
    const float r = scaled(rgb[0]), g = scaled(rgb[1]), b = scaled(rgb[2]);
    const float max = std::max({r, g, b}), min = std::min({r, g, b});
    *h = 0.0f;
    *s = 0.0f;
    *l = (max + min) * 0.5f;
    if (!(*l > 0.0f))
        return;
    const float delta = max - min;
    if (!(delta > 0.0f))
        return;
    *s = *l <= 0.5f ? delta / (max + min) : float(delta / (2.0 - max - min));
    const float r2 = (max - r) / delta, g2 = (max - g) / delta, b2 = (max - b) / delta;
    float sextants; // 0 .. 6, where 6 is red that did not wrap
    if (max == r)
        sextants = min == g ? 5.0f + b2 : 1.0f - g2;
    else if (max == g)
        sextants = min == b ? 1.0f + r2 : 3.0f - b2;
    else
        sextants = min == r ? 3.0f + g2 : 5.0f - r2;
    *h = float(sextants * 0.16666666666666666);
}

void rgbToHsl(float r, float g, float b, float* h, float* s, float* l)
{
    float rgb[3] = {r, g, b};
    rgbToHsl(rgb, h, s, l);
}

void hslToRgb(float h, float s, float l, float* rgb)
{
    const float v = l <= 0.5f ? s * l + l : l + s - l * s;
    Rgb c = grey(l);
    if (v > 0.0f) {
        const float m = 2.0f * l - v;
        const float sv = (v - m) / v;
        const float h6 = h * 6.0f;
        const int sextant = truncateToInt(h6);
        const float fract = h6 - float(sextant);
        const float vsf = v * sv * fract;
        const float mid1 = m + vsf, mid2 = v - vsf;
        switch (sextant) {
        case 0:
            c = {v, mid1, m};
            break;
        case 1:
            c = {mid2, v, m};
            break;
        case 2:
            c = {m, v, mid1};
            break;
        case 3:
            c = {m, mid2, v};
            break;
        case 4:
            c = {mid1, m, v};
            break;
        case 5:
            c = {v, m, mid2};
            break;
        }
    }
    rgb[0] = c.r * 255.0f;
    rgb[1] = c.g * 255.0f;
    rgb[2] = c.b * 255.0f;
}

void rgbToHsv(float* rgb, float* h, float* s, float* v)
{
    const float r = float(rgb[0] * per255), g = float(rgb[1] * per255), b = float(rgb[2] * per255);
    const float max = std::max({r, g, b}), min = std::min({r, g, b});
    *v = max;
    *h = 0.0f;
    *s = 0.0f;
    const float delta = max - min;
    if (delta == 0.0f)
        return;
    *s = delta / max;
    float degrees;
    if (max == r)
        degrees = 60.0f * (g - b) / delta;
    else if (max == g)
        degrees = 120.0f + 60.0f * (b - r) / delta;
    else
        degrees = 240.0f + 60.0f * (r - g) / delta;
    if (degrees < 0.0f)
        degrees += 360.0f;
    if (degrees >= 360.0f)
        degrees -= 360.0f;
    *h = degrees;
}

void hsvToRgb(float h, float s, float v, float* rgb)
{
    const float turn = float(h * 0.002777777777777778);
    Rgb c = grey(v);
    if (s != 0.0f) {
        const float h6 = turn * 6.0f;
        const float i = std::floor(h6);
        const float f = h6 - i;
        const float p = v * (1.0f - s), q = v * (1.0f - s * f), t = v * (1.0f - s * (1.0f - f));
        if (i == 0.0f)
            c = {v, t, p};
        else if (i == 1.0f)
            c = {q, v, p};
        else if (i == 2.0f)
            c = {p, v, t};
        else if (i == 3.0f)
            c = {p, q, v};
        else if (i == 4.0f)
            c = {t, p, v};
        else
            c = {v, p, q};
    }
    rgb[0] = c.r * 255.0f;
    rgb[1] = c.g * 255.0f;
    rgb[2] = c.b * 255.0f;
}
