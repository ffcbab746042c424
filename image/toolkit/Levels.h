#pragma once

#include "core/GrowArray.h"

/// A tone mapping of bytes: what each value of a channel becomes.
struct ByteCurve {
    unsigned char at[256];
};

/// The levels stretch as a curve for all three channels, from what getHistogram gives and the arguments of
/// fillHistogram.
ByteCurve levelsCurve(const GrowArray<int>& histogram, int minLum, float lowFraction, float highFraction,
    float lowLevel, float highLevel, bool clampToLowLevel, bool clampToHighLevel);
