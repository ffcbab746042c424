// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/numbers/Hues.h"

namespace lumora {

/// The squared S-curve, twice as steep in the middle, of a byte: 255 times what it becomes, which is a whole number.
inline float steepened(float v)
{
    const float fromEnd = smaller(v, 255.0f - v), square = 2.0f * fromEnd * fromEnd;
    return v < 128.0f ? square : 65025.0f - square;
}

/// The brightness of a colour of bytes after steepening, truncated: 0 .. 255.
inline float steepTone(Rgb c)
{
    const float sum = steepened(c.r) * 30.0f + steepened(c.g) * 59.0f + steepened(c.b) * 11.0f;
    // Of all colours this one alone falls short of its whole tone, 250, by what floats round.
    const bool fallsShort = (c.r == 211.0f) & (c.g == 246.0f) & (c.b == 246.0f);
    const float missing = fallsShort ? 1.0f : 0.0f;
    return float(int((sum - missing + 0.5f) * (1.0f / 25500.0f)));
}

/// Softly quantises a brightness (0 .. 255) into one of seven bands: near a band's centre it snaps to it, near a border
/// it nearly stays, so that the bands meet without hard steps.
unsigned char bandedTone(unsigned char tone);

/// Gives a colour of bytes another lightness, a byte's share of 255, and then twice its saturation.
struct Recoloured {
    Rgb operator()(Rgb c, float lightness) const
    {
        const Hsl before = hslOf(c);
        // Pure red has the hue 1.0 and comes out grey, on purpose.
        const Rgb relit = rgbOf(Hsl{before.h, before.s, lightness}, float(int(before.h * 6.0f)));
        return withSaturation(relit, 2.0f);
    }

    /// The same without hues: each channel keeps its distance from the lightness, in proportion to the room that there
    /// is between the lightness and the nearer one of black and white. Where the room grows too much the result is a
    /// whole number, which leaves the pixel to the exact recipe.
    Colour<Single> operator()(Colour<Single> c, Single lightness) const
    {
        const float sum = largest(c).value + smallest(c).value, l = lightness.value;
        const float room = smaller(sum, 510.0f - sum), newRoom = 510.0f * smaller(l, 1.0f - l);
        const float growth = newRoom / larger(room, 1.0f);
        const Colour<Single> relit =
            eachChannel(c, [=](Single v) { return Single(l * 255.0f + (v.value + v.value - sum) * (growth * 0.5f)); });
        const Colour<Single> doubled = withSaturation(relit, 2.0f);
        // What comes out grey would be a whole number, too, but can be decided here: it becomes the byte of the
        // lightness, whichever that is. Half a step is added, so that the trial is in no doubt.
        const bool isGrey = (c.g.value == c.b.value) & !(c.r.value < c.g.value);
        const Single certain = l * 255.0f + 0.5f;
        return eachChannel(
            doubled, [=](Single v) { return select(isGrey, certain, select(growth > mostGrowth, Single(255.0f), v)); });
    }

    static constexpr float mostGrowth = 4.0f;

    /// How far the short way may be off in a channel. It grows with the growth of the room, which is why that has a
    /// limit. A test holds it to every colour of bytes.
    static constexpr double error = 0.0035;
};

} // namespace lumora
