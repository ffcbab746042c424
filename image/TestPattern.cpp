// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/CharImage.h"
#include "image/numbers/Arithmetic.h"

#include <cstring>

namespace lumora {

void CharImage::drawTestPattern()
{
    const std::size_t count = pixelCount();
    for (std::size_t i = 0; i < count; i++)
        std::memset(data + i * bytesPerPixel, 255, 3);
    for (int x = 0; x < width && height > 0; x++) {
        const float t = float(x) / float(width);
        const float s = t < 0.5f ? std::sqrt(t + t) * 0.5f : float(1.0 - 0.5 * std::sqrt(float(2.0 - 2.0 * t)));
        const int v = truncateToInt(s * float(height));
        const int row = v < 0 ? height - 1 : v > height - 1 ? 0 : height - 1 - v;
        std::memset(data + (std::size_t(row) * width + x) * bytesPerPixel, 0, 3);
    }
}

} // namespace lumora
