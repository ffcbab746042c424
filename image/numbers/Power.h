// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Exact.h"

namespace lumora {

/// Raises `count` values, a multiple of 8 and at most a block of them, to `exponent`: each result is exactly what
/// std::pow(value, exponent) gives.
void raise(float* values, int count, float exponent);

/// std::pow(value, 1.5f).
float sesquiPower(float value);

/// The shared S-curve of Arithmetic.h on as many values as raise() takes.
void applySCurve(float* values, int count, float exponent);

} // namespace lumora
