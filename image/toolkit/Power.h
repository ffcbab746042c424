#pragma once

#include "image/toolkit/Block.h"

/// Raises every value of a block to `exponent`: each result is exactly what std::pow(value, exponent) gives.
void raise(Plane& values, float exponent);

/// std::pow(value, 1.5f).
float sesquiPower(float value);

/// The shared S-curve of Arithmetic.h on every value of a block.
void applySCurve(Plane& values, float exponent);
