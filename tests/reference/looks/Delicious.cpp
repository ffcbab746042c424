// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

#include <algorithm>
#include <cmath>

using namespace lumora;

namespace reference {

static void colourCore(Picture& picture)
{
    std::vector<unsigned char> tones;
    for (std::size_t i = 0; i < picture.pixels.size(); i += 4) {
        float steep[3];
        for (int k = 0; k < 3; k++) {
            const float x = float(picture.pixels[i + k] * 0.00392156862745098);
            float y;
            if (x < 0.5f) {
                const float twice = x + x;
                y = twice * twice * 0.5f;
            } else {
                const float rest = float(2 - 2.0 * x);
                const float square = rest * rest;
                y = float(1 - 0.5 * square);
            }
            steep[k] = y * 255.0f;
        }
        tones.push_back(clamped(luminance(steep[0], steep[1], steep[2])));
    }
    smoothMap(tones, picture.width, picture.height, 10, 1.0f, 20.0f);
    for (unsigned char& tone : tones) {
        const int m = tone;
        const int q = int(m * 0.023529411764705882);
        const int P = std::clamp(int((double(float(q * 0.16666667)) + 0.0833333358168602) * 255.0), 0, 255);
        const int d = m - P;
        const float a = float(std::fabs(d * 0.00392156862745098) * 11.999999642372142);
        const float a2 = a * a;
        const float a3 = a * a2;
        const float a5 = a2 * a3;
        tone = wrapped(float(d) * a5 + float(P));
    }
    for (std::size_t i = 0; i < tones.size(); i++) {
        unsigned char* p = &picture.pixels[i * 4];
        float h, s, ignored;
        rgbToHsl(p[0], p[1], p[2], &h, &s, &ignored);
        const float l = float(tones[i] * 0.00392156862745098);
        float c[3] = {l, l, l};
        const float v = l <= 0.5f ? s * l + l : (l + s) - l * s;
        if (v > 0) {
            const float m1 = 2 * l - v;
            const int sextant = toInt(h * 6.0f);
            const float f = h * 6.0f - float(sextant);
            const float vsf = f * (v * ((v - m1) / v));
            const float mid1 = m1 + vsf, mid2 = v - vsf;
            const float table[6][3] = {
                {v, mid1, m1}, {mid2, v, m1}, {m1, v, mid1}, {m1, mid2, v}, {mid1, m1, v}, {v, m1, mid2}};
            if (sextant >= 0 && sextant <= 5)
                for (int k = 0; k < 3; k++)
                    c[k] = table[sextant][k];
        }
        for (float& channel : c)
            channel = channel * 255.0f;
        const float L = luminance(c[0], c[1], c[2]);
        for (int k = 0; k < 3; k++)
            p[k] = clamped((c[k] + c[k]) - L);
    }
}

void delicious(Picture& picture)
{
    for (std::size_t i = 0; i < picture.pixels.size(); i += 4) {
        unsigned char* p = &picture.pixels[i];
        if (luminance(p[0], p[1], p[2]) < 50.0f)
            p[0] = p[1] = p[2] = 25;
    }
    std::vector<unsigned char> edges = edgeMap(picture);
    colourCore(picture);
    smoothMap(edges, picture.width, picture.height, 3, 1.0f, -1.0f);
    for (std::size_t i = 0; i < edges.size(); i++) {
        if (edges[i] <= 120)
            continue;
        const float part = float((edges[i] - 120) * (1.0 / 135.0));
        const float t = float(part * 0.9);
        for (int k = 0; k < 3; k++) {
            unsigned char* p = &picture.pixels[i * 4 + k];
            const float ink = t * 25.0f;
            *p = static_cast<unsigned char>(int((1.0 - t) * *p + ink));
        }
    }
}

} // namespace reference
