// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/numbers/ErrorBound.h"
#include "image/numbers/Single.h"

namespace lumora {

// The colour-space conversions of ColorSpace.h for use inside a pixel function: values chosen, not branched on.
// Quotients of zero are formed and then passed over.

struct Hsl {
    float h, s, l; ///< a fraction of a turn (1.0 for a red that does not wrap), 0 .. 1, 0 .. 1
};

struct Hsv {
    float h, s, v; ///< degrees, 0 .. 1, 0 .. 1
};

/// A colour on 0 .. 255 scaled to 0 .. 1.
template <class Channel> inline Colour<Channel> scaledToOne(Colour<Channel> c)
{
    return eachChannel(c, [](Channel v) { return rounded(v * per255); });
}

/// The lightness of a colour on 0 .. 255 without the rest of the conversion.
template <class Channel> inline Channel lightnessOf(Colour<Channel> c)
{
    const Colour unit = scaledToOne(c);
    return (largest(unit) + smallest(unit)) * 0.5f;
}

inline Hsl hslOf(Rgb c)
{
    const Rgb u = scaledToOne(eachChannel(c, [](float v) { return v < 0.0f ? 0.0f : v > 255.0f ? 255.0f : v; }));
    const float max = largest(u), min = smallest(u);
    const float delta = max - min, sum = max + min;
    const float l = sum * 0.5f;
    const float s = l <= 0.5f ? delta / sum : float(delta / (2.0 - max - min));
    const float r2 = (max - u.r) / delta, g2 = (max - u.g) / delta, b2 = (max - u.b) / delta;
    const float fromRed = min == u.g ? 5.0f + b2 : 1.0f - g2;
    const float fromGreen = min == u.b ? 1.0f + r2 : 3.0f - b2;
    const float fromBlue = min == u.r ? 3.0f + g2 : 5.0f - r2;
    const float sextants = max == u.r ? fromRed : max == u.g ? fromGreen : fromBlue;
    const bool coloured = l > 0.0f && delta > 0.0f;
    return {coloured ? float(sextants * 0.16666666666666666) : 0.0f, coloured ? s : 0.0f, l};
}

/// Whole sextants to the channels of their colour: `rising` and `falling` are the middle values on the way up and down.
inline Rgb ofSextant(float sextant, float high, float rising, float falling, float low, Rgb otherwise)
{
    Rgb c = otherwise;
    c = sextant == 0.0f ? Rgb{high, rising, low} : c;
    c = sextant == 1.0f ? Rgb{falling, high, low} : c;
    c = sextant == 2.0f ? Rgb{low, high, rising} : c;
    c = sextant == 3.0f ? Rgb{low, falling, high} : c;
    c = sextant == 4.0f ? Rgb{rising, low, high} : c;
    return c;
}

/// `sextant` is the whole part of 6 c.h, which a caller who knows that its hues are in range forms by a plain cast: the
/// compilers make vector code of that.
inline Rgb rgbOf(Hsl c, float sextant)
{
    const float v = c.l <= 0.5f ? c.s * c.l + c.l : c.l + c.s - c.l * c.s;
    const float m = 2.0f * c.l - v;
    const float sv = (v - m) / v;
    const float h6 = c.h * 6.0f;
    const float vsf = v * sv * (h6 - sextant);
    const Rgb rest = sextant == 5.0f ? Rgb{v, m, v - vsf} : grey(c.l);
    const Rgb coloured = ofSextant(sextant, v, m + vsf, v - vsf, m, rest);
    return eachChannel(v > 0.0f ? coloured : grey(c.l), [](float u) { return u * 255.0f; });
}

inline Rgb rgbOf(Hsl c)
{
    return rgbOf(c, float(truncateToInt(c.h * 6.0f)));
}

inline Hsv hsvOf(Rgb c)
{
    const Rgb u = scaledToOne(c);
    const float max = largest(u), min = smallest(u), delta = max - min;
    const float fromRed = 60.0f * (u.g - u.b) / delta;
    const float fromGreen = 120.0f + 60.0f * (u.b - u.r) / delta;
    const float fromBlue = 240.0f + 60.0f * (u.r - u.g) / delta;
    float degrees = max == u.r ? fromRed : max == u.g ? fromGreen : fromBlue;
    degrees = degrees < 0.0f ? degrees + 360.0f : degrees;
    degrees = degrees >= 360.0f ? degrees - 360.0f : degrees;
    const bool neutral = delta == 0.0f;
    return {neutral ? 0.0f : degrees, neutral ? 0.0f : delta / max, max};
}

/// The largest whole number not above `x`.
inline float wholeBelow(float x)
{
    const float whole = float(truncateToInt(x));
    const float below = whole > x ? whole - 1.0f : whole;
    return std::fabs(x) < 8388608.0f ? below : x; // from 2^23 on every float is whole
}

inline float sextantsOf(Hsv c)
{
    return float(c.h * 0.002777777777777778) * 6.0f;
}

/// `sextant` is the whole part of sextantsOf(c); by a plain cast, where the hue is known to be in range, this becomes
/// vector code.
inline Rgb rgbOf(Hsv c, float sextant)
{
    const float f = sextantsOf(c) - sextant;
    const float p = c.v * (1.0f - c.s), q = c.v * (1.0f - c.s * f), t = c.v * (1.0f - c.s * (1.0f - f));
    const Rgb coloured = ofSextant(sextant, c.v, t, q, p, Rgb{c.v, p, q});
    return eachChannel(c.s == 0.0f ? grey(c.v) : coloured, [](float u) { return u * 255.0f; });
}

inline Rgb rgbOf(Hsv c)
{
    return rgbOf(c, wholeBelow(sextantsOf(c)));
}

/// Multiplies saturation and value of a colour on 0 .. 255, of finite channels, and keeps its hue. The factors are
/// doubles.
inline Rgb withSaturationAndValueTimes(Rgb c, double saturation, double value)
{
    const Hsv before = hsvOf(c), after = {before.h, float(before.s * saturation), float(before.v * value)};
    return rgbOf(after, float(int(sextantsOf(after)))); // 0 .. 5 for a hue of hsvOf
}

/// A trial does not decide on colours that are nearer than this to the odd ends of the conversion: a red whose hue is
/// just below a full turn may come out as magenta, and a value of 0 has no saturation.
inline constexpr float nearHue = 1.0f / 64.0f;

/// The same without hues: every channel keeps its share of the distance from the largest one. Where the result would
/// differ it is a whole number, which leaves the pixel to the exact recipe.
inline Colour<Single> withSaturationAndValueTimes(Colour<Single> c, Single saturation, Single value)
{
    const Single max = largest(c);
    const float fromFullTurn = larger(std::fabs(c.g.value - c.b.value), max.value - c.r.value);
    const bool unclear = smaller(fromFullTurn, std::fabs(max.value)) < nearHue;
    return eachChannel(
        c, [=](Single v) { return select(unclear, Single(255.0f), value * (max - saturation * (max - v))); });
}

/// How far the two ways differ by their roundings, which grow with the largest channel and with the distance between
/// two channels. The factors below were found by adding up the roundings of both ways; a test holds them to every
/// colour of bytes, where the greatest difference is less than a third of this bound.
inline Colour<ErrorBound> withSaturationAndValueTimes(Colour<ErrorBound> c, ErrorBound saturation, ErrorBound value)
{
    const ErrorBound max = largest(c), min = smallest(c);
    const double magnitude = std::max(max.magnitude(), min.magnitude()), distance = max.high - min.low;
    const double before = std::max({c.r.error, c.g.error, c.b.error});
    const double most = saturation.magnitude();
    const double away = std::max(std::fabs(1.0 - saturation.low), std::fabs(1.0 - saturation.high));
    const bool clear = before < nearHue / 4 && magnitude < 1e4;
    const double apart = clear ? value.magnitude() * ((away + most) * before + distance * saturation.error)
            + value.error * (magnitude + most * distance)
                               : std::numeric_limits<double>::infinity();
    const double roundings = value.magnitude() * (most * (7.0 * magnitude + 30.0 * distance) + 7.0 * magnitude);
    return eachChannel(c, [=](ErrorBound v) {
        ErrorBound fromLargest = max - v;
        fromLargest.low = 0.0;
        const ErrorBound darkened = value * (max - saturation * fromLargest);
        return ErrorBound::afterSteps(darkened.low, darkened.high, apart, roundings);
    });
}

} // namespace lumora
