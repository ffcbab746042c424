#pragma once

#include "image/toolkit/Arithmetic.h"

/// The squared S-curve, twice as steep in the middle, of a byte: 255 times what it becomes, which is a whole number.
inline float steepened(float v)
{
    const bool dark = v < 128.0f;
    const float fromEnd = dark ? v : 255.0f - v, square = 2.0f * fromEnd * fromEnd;
    return dark ? square : 65025.0f - square;
}

/// The brightness of a colour of bytes after steepening, truncated: 0 .. 255.
inline float steepTone(Rgb c)
{
    const float sum = steepened(c.r) * 30.0f + steepened(c.g) * 59.0f + steepened(c.b) * 11.0f;
    // Of all colours this one alone falls short of its whole tone, 250, by what floats round.
    const bool fallsShort = (c.r == 211.0f) & (c.g == 246.0f) & (c.b == 246.0f);
    const float missing = fallsShort ? 1.0f : 0.0f;
    return float(int((sum - missing) / 25500.0f));
}

/// Softly quantises a brightness (0 .. 255) into one of seven bands: near a band's centre it snaps to it, near a border
/// it nearly stays, so that the bands meet without hard steps.
unsigned char bandedTone(unsigned char tone);
