// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/Photo.h"

#include <algorithm>
#include <cmath>

namespace {

struct Colour {
    float red, green, blue;
};

Colour sceneAt(float u, float v)
{
    if (std::hypot(u - 0.75f, v - 0.22f) < 0.07f)
        return {255, 250, 205}; // the sun
    const float hills = 0.55f + 0.06f * std::sin(9 * u) + 0.02f * std::sin(31 * u);
    if (v < hills)
        return {70 + 170 * v, 120 + 130 * v, 225 + 20 * v};
    // Houses: upright boxes with windows.
    const float column = u * 9 - std::floor(u * 9);
    if (v < 0.8f && column > 0.25f && column < 0.75f && v > 0.6f + 0.1f * std::sin(40 * std::floor(u * 9))) {
        const bool window = std::sin(160 * u) > 0.3f && std::sin(110 * v) > 0.3f;
        return window ? Colour{240, 205, 120} : Colour{150 - 60 * u, 75, 60 + 40 * u};
    }
    const float depth = (1 - v) / (1 - hills); // 1 at the horizon, 0 in the black foreground
    const float grass = 0.8f + 0.2f * std::sin(55 * u + 18 * v);
    return {(40 + 90 * u) * depth * grass, 150 * depth * grass, 45 * depth * (1 - u)};
}

unsigned char byteOf(float value)
{
    return static_cast<unsigned char>(std::clamp(value, 0.0f, 255.0f));
}

} // namespace

Picture benchPhoto(int width, int height)
{
    Picture picture(width, height);
    unsigned speck = 1;
    for (int y = 0; y < height; y++)
        for (int x = 0; x < width; x++) {
            const Colour colour = sceneAt(float(x) / float(width), float(y) / float(height));
            speck = speck * 1664525u + 1013904223u;
            const float grain = float(speck >> 28) - 7.5f;
            unsigned char* pixel = picture.at(x, y);
            pixel[0] = byteOf(colour.red + grain);
            pixel[1] = byteOf(colour.green + grain);
            pixel[2] = byteOf(colour.blue + grain);
            pixel[3] = 255;
        }
    return picture;
}
