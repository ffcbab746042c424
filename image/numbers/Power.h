#pragma once

#include "image/numbers/ErrorBound.h"

namespace lumora {

/// Raises `count` values, a multiple of 8 and at most a block of them, to `exponent`: each result is exactly what
/// std::pow(value, exponent) gives.
void raise(float* values, int count, float exponent);

/// The same in single precision, for a trial: values on 0 .. 1, an exponent on 1 .. 60.
void raiseNearly(float* values, int count, float exponent);

/// What is known of the results of raiseNearly.
ErrorBound nearPower();

/// Either of the two above.
using Raise = void (*)(float* values, int count, float exponent);

/// std::pow(value, 1.5f).
float sesquiPower(float value);

/// The shared S-curve of Arithmetic.h on as many values.
void applySCurve(float* values, int count, float exponent, Raise toPower = raise);

/// What is known of them with raiseNearly, for values on 0 .. 1.
ErrorBound nearSCurve();

} // namespace lumora
