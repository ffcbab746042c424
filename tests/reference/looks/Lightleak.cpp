// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

#include <cmath>
#include <cstdlib>

namespace reference {

void lightleak(Picture& picture)
{
    const int leakX = rand() % picture.width;
    const int leakY = rand() % picture.height;
    const int s = rand() % 100;
    const float radius = float(picture.width * (s * 0.01 + 0.5));
    for (int y = 0; y < picture.height; y++)
        for (int x = 0; x < picture.width; x++) {
            unsigned char* p = picture.at(x, y);
            float c[3] = {float(p[0]), float(p[1]), float(p[2])};
            const float root = float(1.0 - float(luminance(c[0], c[1], c[2]) * 0.00392156862745098));
            const float k = root * root;
            for (float& v : c)
                v = float(v * (1 - k) + v * k * 0.4);

            float l = float(luminance(c[0], c[1], c[2]) * 0.00392156862745098);
            const float cube = l * l * l;
            const float a = float((1.0 - cube) * 0.53);
            const float cast[3] = {117, 67, 110};
            for (int j = 0; j < 3; j++) {
                const float product = a * l * cast[j];
                c[j] = c[j] * (1 - a) + 2 * product + 20;
            }

            const float m = luminance(c[0], c[1], c[2]) * (1.0f - 0.9f);
            for (float& v : c)
                v = v * 0.9f + m;

            const double dx = x - leakX, dy = y - leakY;
            const float d = float(sqrt(dx * dx + dy * dy));
            float q = 1 - d / radius;
            if (q < 0)
                q = 0;
            if (q > 1)
                q = 1;
            const float g = float(powf(q, 1.5f) * 0.15);
            l = float(luminance(c[0], c[1], c[2]) * 0.00392156862745098);
            c[0] = c[0] * (1 - g) + 2 * (g * l * 255);
            c[1] = c[1] * (1 - g) + 2 * (g * l * 130);
            c[2] = c[2] * (1 - g);

            const float power = powf(float(luminance(c[0], c[1], c[2]) * 0.00392156862745098), 1.5f);
            for (int j = 0; j < 3; j++) {
                const int v = toInt((c[j] * (1 - power) + (c[j] * power) * 1.1f) * 1.35f);
                p[j] = static_cast<unsigned char>(v <= 61 ? 62 : v > 255 ? 255 : v);
            }
        }
    const float hw = picture.width * 0.5f, hh = picture.height * 0.5f;
    vignette(picture, 0.0f, sqrtf(hw * hw + hh * hh), 1.2f, 0.2f, true, false);
}

} // namespace reference
