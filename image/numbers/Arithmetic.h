// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Exact.h"

#include <climits>
#include <cmath>

namespace lumora {

// The arithmetic that every look shares. Channels are floats while they are worked on; decimal constants such as 0.3
// are double, so that a product with one is formed in double and rounded once, when it is stored. Both are part of the
// looks.

/// 1/255, the factor that stands for every division by 255.
inline constexpr double per255 = 0.00392156862745098;

/// One pixel's colour while it is worked on, each channel on 0 .. 255 (and beyond, until it is stored). A recipe that
/// is written for any kind of channel can be tried with quicker ones first (Trial.h); Rgb is what it means.
template <class Channel> struct Colour {
    Channel r, g, b;
};
template <class Channel> Colour(Channel, Channel, Channel) -> Colour<Channel>;

using Rgb = Colour<float>;

/// A neutral colour.
template <class Channel> inline Colour<Channel> grey(Channel level)
{
    return {level, level, level};
}

/// The same function on each channel.
template <class Channel, class Function> inline auto eachChannel(Colour<Channel> c, Function f)
{
    return Colour{f(c.r), f(c.g), f(c.b)};
}
/// A neutral colour may be one channel alone.
template <class Channel, class Function> inline auto eachChannel(Channel neutral, Function f)
{
    return f(neutral);
}

/// Where a recipe rounds a step in double.
inline float rounded(double value)
{
    return float(value);
}

/// One of two values; compilers make vector code of it.
template <class Channel> inline Channel select(bool condition, Channel yes, Channel no)
{
    return condition ? yes : no;
}

template <class Channel> inline Channel larger(Channel a, Channel b)
{
    return select(a < b, b, a);
}

template <class Channel> inline Channel smaller(Channel a, Channel b)
{
    return select(b < a, b, a);
}

template <class Channel> inline Channel largest(Colour<Channel> c)
{
    return larger(larger(c.r, c.g), c.b);
}

template <class Channel> inline Channel smallest(Colour<Channel> c)
{
    return smaller(smaller(c.r, c.g), c.b);
}
inline int smallest(int neutral)
{
    return neutral;
}

/// What is no number becomes the floor, too.
template <class Channel> inline Channel notBelow(Channel v, float floor)
{
    return larger(Channel(floor), v);
}

/// Luminance of Rec. 601 weights, shortened to two places.
template <class Channel> inline Channel luminance(Colour<Channel> c)
{
    return rounded(c.r * 0.3 + c.g * 0.59 + c.b * 0.11);
}

/// The same for channels that are whole numbers of 0 .. 255, without a double: 100 times their luminance is a whole
/// number of 0 .. 25500. Its product with the first bits of 0.01 is exact, and the product with the other bits brings
/// the sum close enough to be rounded alike: a test walks all these numbers.
inline float byteLuminance(Rgb c)
{
    constexpr float firstBits = 655.0f / 65536.0f, otherBits = float(0.01 - double(firstBits));
    const float whole = c.r * 30.0f + c.g * 59.0f + c.b * 11.0f;
    return whole * firstBits + whole * otherBits;
}

/// The shared S-curve on 0 .. 1 through (0.5, 0.5): an exponent above 1 steepens the middle, below 1 flattens it.
inline float sCurve(float x, float exponent)
{
    if (x < 0.5f)
        return std::pow(x + x, exponent) * 0.5f;
    return float(1.0 - 0.5 * std::pow(float(2.0 - 2.0 * x), exponent));
}

/// Multiplies the share `share` (0 .. 1) of a channel by `gain`.
template <class Channel, class Gain> inline Channel withShareTimes(Channel v, Channel share, Gain gain)
{
    return rounded(v * (1.0f - share) + v * share * gain);
}

/// Moves a colour towards its grey, or away from it for a `saturation` above 1.
template <class Channel> inline Colour<Channel> withSaturation(Colour<Channel> c, float saturation)
{
    const Channel level = luminance(c) * (1.0f - saturation);
    return eachChannel(c, [=](Channel v) { return v * saturation + level; });
}

/// Contrast about the middle of the channel.
template <class Channel, class Gain> inline Channel withContrast(Channel v, Gain gain)
{
    return rounded((v - 128.0) * gain + 128.0);
}

/// Moves a channel towards a cast that is counted twice, by `weight` (0 .. 1, already part of the cast).
template <class Channel, class Weight> inline Channel withDoubledCast(Channel v, Weight weight, Channel cast)
{
    return v * (1.0f - weight) + (cast + cast);
}

/// Parts the tones: dark colours keep the share `strength` (0 .. 1) of their distance from black, light ones of that
/// from white.
template <class Channel, class Condition, class Strength>
inline Colour<Channel> partedTones(Colour<Channel> c, Condition dark, Strength strength)
{
    return eachChannel(c, [=](Channel v) {
        const Channel sunk = v * strength, lifted = rounded((v - 255.0) * strength + 255.0);
        return select(dark, sunk, lifted);
    });
}

/// Truncation as the processor does it: NaN, infinities and values out of range give INT_MIN.
inline int truncateToInt(float value)
{
    return value >= -2147483648.0f && value < 2147483648.0f ? int(value) : INT_MIN;
}

/// Truncates toward zero, then holds at 0 .. 255. NaN, infinities and values beyond an int count as INT_MIN: they give
/// 0.
inline int truncateAndClamp(float value)
{
    const int whole = int(std::fabs(value) < 2147483648.0f ? value : 0.0f);
    const int notBelow = whole > 0 ? whole : 0;
    return notBelow < 255 ? notBelow : 255;
}

/// Truncates toward zero, then wraps modulo 256. NaN, infinities and values beyond an int give 0.
inline unsigned char truncateAndWrap(float value)
{
    return static_cast<unsigned char>(truncateToInt(value));
}

} // namespace lumora
