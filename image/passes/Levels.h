// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/CharImage.h"
#include "image/numbers/Arithmetic.h"

namespace lumora {

/// The levels stretch of fillHistogram for one picture: each whole value of a channel, 0 .. 255, becomes another one. A
/// pass can stretch the colours as it reads them, which saves a pass over the picture.
struct Levels {
    float offset; ///< dark cut-off and darkest sample together
    float scale; ///< infinite for a flat picture; what follows is then what the arithmetic gives
    float lowLevel;
    float floor, ceiling;

    int byteOf(float v) const
    {
        const float x = placeOf(v);
        const float notAbove = x >= ceiling ? ceiling : x;
        return truncateToInt(x < floor ? floor : notAbove) & 255;
    }
    float operator()(float v) const { return float(byteOf(v)); }

    /// Whether every value lands on a number of 0 .. 255. ordinaryByteOf, which is quicker, is then the same as byteOf.
    bool isOrdinary() const
    {
        return std::isfinite(scale) && std::isfinite(lowLevel) && floor >= 0.0f && floor <= ceiling && ceiling < 256.0f;
    }
    int ordinaryByteOf(float v) const
    {
        const float x = placeOf(v);
        const float notBelow = x > floor ? x : floor;
        const float held = notBelow < ceiling ? notBelow : ceiling; // cast below: one instruction holds a vector then
        return int(held);
    }

private:
    float placeOf(float v) const { return scale * (v - offset) + lowLevel; }
};

/// Calls `function(byteOf)`, where `byteOf(value)` is what these levels make of a value, in its quickest form.
template <class Function> void withByteOf(const Levels& levels, Function function)
{
    if (levels.isOrdinary())
        function([=](float v) { return levels.ordinaryByteOf(v); });
    else
        function([=](float v) { return levels.byteOf(v); });
}

/// What fillHistogram asks for.
struct Stretch {
    float lowFraction, highFraction; ///< of the samples, cut off at the dark and at the bright end
    float lowLevel, highLevel; ///< where the cut-offs land, 0 .. 255
    bool clampToLowLevel, clampToHighLevel; ///< hold there instead of at 0 or 255
};

/// From a histogram as getHistogram gives it.
Levels levelsOf(const GrowArray<int>& histogram, int minLum, const Stretch& stretch);

Levels levelsOf(const CharImage& image, const Stretch& stretch);

/// The pixels that the histogram samples, as a picture of one row; one without pixels when there are none.
CharImage sampledPixels(const CharImage& image);
/// The histogram of a picture that consists of samples only.
void getHistogramOfSamples(const CharImage& samples, GrowArray<int>* histogram, int* minLum);

} // namespace lumora
