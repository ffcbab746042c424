// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/CharImage.h"
#include "image/numbers/Arithmetic.h"
#include "image/numbers/Disc.h"

namespace lumora {

namespace {

/// The share of the colour at the distance `q` (1: on the circle) from a corner's centre; 0 or less inside.
float colourShare(float q, float hardness)
{
    const float q2 = q * q, q3 = q * q2, q5 = q2 * q3;
    const float q10 = q5 * q5, q20 = q10 * q10, q40 = q20 * q20, q80 = q40 * q40;
    const float a = q80 > 1.0f ? 1.0f : q80;
    return float(1.0 - (1.0 - a) * hardness);
}

} // namespace

void CharImage::fillRoundedBorder(int left, int right, int top, int bottom, int radius, const unsigned char* colour)
{
    const float softness = float(radius * 0.02);
    const float hardness = softness >= 1.0f ? softness : 1.0f;
    // Places may lie far outside the picture, beyond an int.
    const long long farLeft = (long long)width - right - radius, farTop = (long long)height - bottom - radius;
    const long long nearX = (long long)left + radius - 1, nearY = (long long)top + radius - 1;
    const auto within = [radius](int v, long long start) { return v >= start && v < start + radius; };
    for (int y = 0; y < height; y++) {
        // Squares that overlap in a small picture: the last one decides, bottom before top and right before left.
        const bool isBottom = within(y, farTop);
        if (!isBottom && !within(y, top))
            continue;
        for (int x = 0; x < width; x++) {
            const bool isRight = within(x, farLeft);
            if (!isRight && !within(x, left))
                continue;
            const long long cx = isRight ? farLeft : nearX, cy = isBottom ? farTop : nearY;
            const float q = distance(float(x - cx), float(y - cy)) / float(radius);
            if (!(q > 0.0f))
                continue;
            const float w = colourShare(q, hardness);
            if (!(w > 0.1))
                continue;
            unsigned char* pixel = data + (std::size_t(y) * width + x) * bytesPerPixel;
            for (int channel = 0; channel < 3; channel++)
                pixel[channel] = truncateAndWrap(w * float(colour[channel]) + (1.0f - w) * float(pixel[channel]));
        }
    }
}

} // namespace lumora
