// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

#include <algorithm>
#include <cmath>

using namespace lumora;

namespace reference {

void helga(Picture& picture)
{
    float tint[3] = {138.0f, 156.0f, 200.0f}, k = 5.0f, gain = 1.54f;
    int m = 7, lo = 30;
    if (CharImage::useRandom) {
        const float* random = CharImage::random;
        for (int i = 0; i < 3; i++)
            tint[i] = tint[i] * std::clamp(float(random[34 + i] * 0.4 + 0.8), 0.0f, 255.0f);
        k = float((random[32] + 0.6) * 5.0);
        const float t = random[33] + 0.5f;
        gain = t >= 1.0f ? t * 1.54f : 1.54f;
        m = int(random[37] * 15.0f);
        const float u = float(random[38] * 0.4 + 0.8);
        lo = u >= 1.0f ? int(u * 30.0f) : 30;
    }
    const int cx = picture.width / 2, cy = picture.height / 2;
    const float a = float(picture.width * 0.5), b = float(picture.height * 0.5);
    const float R = float(1.49 * sqrt(double(a * a + b * b)));

    for (std::size_t i = 0; i < picture.pixels.size(); i += 4) {
        unsigned char* p = &picture.pixels[i];
        const float L = luminance(p[0], p[1], p[2]);
        const float l = float(L * 0.00392156862745098);
        float c[3];
        for (int j = 0; j < 3; j++)
            c[j] = tint[j] * l * 0.4f + float(p[j]) * 0.8f;
        const float grey = luminance(c[0], c[1], c[2]) * 0.39999998f;
        const float gains[3] = {280.0f, 275.0f, 255.0f};
        for (int j = 0; j < 3; j++) {
            const float muted = c[j] * 0.6f + grey;
            const float product = muted * gains[j];
            p[j] = clamped(float(product * 0.00392156862745098));
        }
    }

    fillHistogram(picture, 0.001f, 0.001f, float(lo), 255.0f, true, true);

    for (int y = 0; y < picture.height; y++)
        for (int x = 0; x < picture.width; x++) {
            const float dx = float(x - cx), dy = float(y - cy);
            unsigned char* p = picture.at(x, y);
            float z[3];
            for (int j = 0; j < 3; j++) {
                const float u = float(double(gain) * (double(p[j]) - 128) + 128);
                z[j] = float((double(u) - 255) * double(0.97f) + 255);
            }
            const float L = luminance(z[0], z[1], z[2]);
            const float lift = float(L * -0.00392156862745098 + 1);
            const float w = lift * lift;
            float o[3];
            for (int j = 0; j < 3; j++)
                o[j] = (1 - w) * z[j] + (w * z[j]) * 1.35f;
            float h, s, v;
            rgbToHsv(o[0], o[1], o[2], &h, &s, &v);
            const float d = sqrtf(dx * dx + dy * dy) / R;
            float e = 0;
            if (d > 0) {
                if (d < 0.5f)
                    e = 0.5f * powf(2 * d, k);
                else
                    e = float(1 - 0.5 * powf(float(2 - 2.0 * d), k));
            }
            const float s2 = float(s * (1 + 0.4 * e));
            const float v2 = float(v * (1 - double(e)));
            const float hf = float(h * (1.0 / 360.0));
            float rgb[3] = {v2, v2, v2};
            if (s2 != 0) {
                const float x6 = hf * 6.0f;
                const float i = floorf(x6);
                const float f = x6 - i;
                const float low = v2 * (1 - s2), q = v2 * (1 - s2 * f), t = v2 * (1 - s2 * (1 - f));
                const float table[6][3] = {
                    {v2, t, low}, {q, v2, low}, {low, v2, t}, {low, q, v2}, {t, low, v2}, {v2, low, q}};
                const int sector = i >= 0 && i <= 4 ? int(i) : 5;
                for (int j = 0; j < 3; j++)
                    rgb[j] = table[sector][j];
            }
            for (int j = 0; j < 3; j++) {
                const int whole = toInt(rgb[j] * 255.0f);
                p[j] = static_cast<unsigned char>(whole < m ? m : whole > 255 ? 255 : whole);
            }
        }
}

} // namespace reference
