#pragma once

#include "image/toolkit/Arithmetic.h"

class CharImage;

/// The levels stretch of fillHistogram for one picture: what a channel's whole value 0 .. 255 becomes, a whole value
/// too. A pass that takes it on the way in saves a pass of its own over the picture.
struct Levels {
    float offset; ///< dark cut-off and darkest sample together
    float scale; ///< infinite for a flat picture; what follows is then what the arithmetic gives
    float lowLevel;
    float floor, ceiling;

    float operator()(float v) const
    {
        const float x = scale * (v - offset) + lowLevel;
        const float notAbove = x >= ceiling ? ceiling : x;
        return float(truncateToInt(x < floor ? floor : notAbove) & 255);
    }
};

Levels levelsOf(const CharImage& image, float lowFraction, float highFraction, float lowLevel, float highLevel,
    bool clampToLowLevel, bool clampToHighLevel);
