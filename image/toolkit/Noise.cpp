// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/CharImage.h"

#include <algorithm>
#include <cstdlib>

namespace lumora {

void CharImage::addNoise(int count, int spotSize, int amplitude)
{
    if (pixelCount() == 0)
        return;
    const int half = spotSize / 2;
    const double base = amplitude * -0.5;
    for (int i = 0; i < count; i++) {
        const int x = std::rand() % width;
        const int y = std::rand() % height;
        const int n = std::rand() % amplitude;
        const auto delta = static_cast<unsigned char>(int(n + base));
        const int left = std::max(x - half, 0), right = std::min(x - half + spotSize, width);
        const int top = std::max(y - half, 0), bottom = std::min(y - half + spotSize, height);
        for (int column = left; column < right; column++)
            for (int row = top; row < bottom; row++) {
                unsigned char* pixel = data + (std::size_t(row) * width + column) * bytesPerPixel;
                for (int channel = 0; channel < 3; channel++)
                    pixel[channel] = static_cast<unsigned char>(pixel[channel] + delta);
            }
    }
}

} // namespace lumora
