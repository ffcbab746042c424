// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/numbers/Arithmetic.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace lumora {

/// What is known of a value of a recipe: its exact evaluation and the one in Single both lie on low .. high, and are at
/// most `error` apart. A recipe that is evaluated with these, over all that it may be given, shows how far its
/// evaluation in Single may be off: forward error analysis on intervals.
struct ErrorBound {
    double low, high, error;
    bool isDouble; ///< the exact evaluation is at a step that it makes in double

    ErrorBound() = default;
    ErrorBound(double lowest, double highest, double apart = 0.0, bool inDouble = false)
        : low(lowest)
        , high(highest)
        , error(apart)
        , isDouble(inDouble)
    {
    }
    ErrorBound(float constant)
        : ErrorBound(constant, constant)
    {
    }
    ErrorBound(double constant)
        : ErrorBound(std::min(constant, double(float(constant))), std::max(constant, double(float(constant))),
            std::fabs(constant - double(float(constant))), true)
    {
    }

    double magnitude() const { return std::max(std::fabs(low), std::fabs(high)); }

    /// The same value after the two evaluations together have rounded it to a float so many times. What is added for
    /// each is a little more than half a last place: it also covers a rounding in double, and one of the smallest
    /// floats.
    ErrorBound roundedTimes(int times) const
    {
        const double lost = magnitude() * 0x1.001p-24 + 0x1p-149;
        return {low - lost, high + lost, error + times * lost, isDouble};
    }

    /// The result of several steps at once. Without roundings it lies on `lowest` .. `highest`, and the two evaluations
    /// are `apart`. `results` is the sum of the magnitudes of all results that one of them or the other rounds.
    static ErrorBound afterSteps(double lowest, double highest, double apart, double results)
    {
        const double error = apart + results * 0x1.001p-24 + 0x1p-140;
        return {lowest - error, highest + error, error};
    }

    friend ErrorBound operator+(ErrorBound a, ErrorBound b)
    {
        return step(a, b, a.low + b.low, a.high + b.high, a.error + b.error);
    }
    friend ErrorBound operator-(ErrorBound a, ErrorBound b)
    {
        return step(a, b, a.low - b.high, a.high - b.low, a.error + b.error);
    }
    friend ErrorBound operator*(ErrorBound a, ErrorBound b)
    {
        const auto [lowest, highest] = std::minmax({a.low * b.low, a.low * b.high, a.high * b.low, a.high * b.high});
        return step(a, b, lowest, highest, a.magnitude() * b.error + b.magnitude() * a.error);
    }

private:
    static ErrorBound step(ErrorBound a, ErrorBound b, double lowest, double highest, double apart)
    {
        const bool inDouble = a.isDouble || b.isDouble;
        return ErrorBound(lowest, highest, apart, inDouble).roundedTimes(inDouble ? 1 : 2);
    }
};

inline ErrorBound rounded(ErrorBound v)
{
    ErrorBound single = v.roundedTimes(1);
    single.isDouble = false;
    return single;
}

/// The outcome of a comparison, which may differ from pixel to pixel. The two evaluations must not disagree on it, so
/// both need the exact value.
struct MayBe {
    double error; ///< infinite if they do not
};

inline MayBe operator<(ErrorBound a, float)
{
    return {a.error == 0.0 ? 0.0 : std::numeric_limits<double>::infinity()};
}

inline ErrorBound select(MayBe condition, ErrorBound yes, ErrorBound no)
{
    return {std::min(yes.low, no.low), std::max(yes.high, no.high), std::max(yes.error, no.error) + condition.error};
}

inline ErrorBound byteLuminance(Colour<ErrorBound> c)
{
    const ErrorBound level = luminance(c);
    const bool bytes = c.r.error == 0.0 && c.g.error == 0.0 && c.b.error == 0.0;
    return {level.low, level.high, bytes ? 0.0 : std::numeric_limits<double>::infinity()};
}

/// The exact form and the one in Single.h differ, so their roundings are added up here. The bound is closer than the
/// one that the single steps would give.
template <class Gain> ErrorBound withShareTimes(ErrorBound v, ErrorBound share, Gain constantGain)
{
    const double gain = constantGain, gainError = ErrorBound(gain).error;
    const double more = gain - 1.0, atLow = 1.0 + more * share.low, atHigh = 1.0 + more * share.high;
    const auto [lowest, highest] = std::minmax({v.low * atLow, v.low * atHigh, v.high * atLow, v.high * atHigh});
    const double factor = std::max(std::fabs(atLow), std::fabs(atHigh));
    const double rest = std::max(std::fabs(1.0 - share.low), std::fabs(1.0 - share.high));
    const double inExact = 2.0 * (rest + share.magnitude() * std::fabs(gain)) + factor;
    const double inSingle = 2.0 * share.magnitude() * std::fabs(more) + 2.0 * factor;
    const double error = factor * v.error + v.magnitude() * std::fabs(more) * share.error
        + v.magnitude() * share.magnitude() * gainError;
    return ErrorBound::afterSteps(lowest, highest, error, v.magnitude() * (inExact + inSingle));
}

template <class Gain> ErrorBound withContrast(ErrorBound v, Gain constantGain)
{
    const double gain = constantGain, gainError = ErrorBound(gain).error;
    const auto contrast = [&](double level) { return (level - 128.0) * gain + 128.0; };
    const auto [lowest, highest] = std::minmax({contrast(v.low), contrast(v.high)});
    const double product = v.magnitude() * std::fabs(gain);
    const double result = std::max(std::fabs(lowest), std::fabs(highest));
    const double inSingle = product + 128.0 * std::fabs(gain) + 128.0 * std::fabs(1.0 - gain) + result;
    const double error = std::fabs(gain) * v.error + (v.magnitude() + 128.0) * gainError;
    return ErrorBound::afterSteps(lowest, highest, error, result + inSingle);
}

inline ErrorBound sesquiPower(ErrorBound v)
{
    const double highest = v.high * std::sqrt(v.high), steepest = 1.5 * std::sqrt(v.high);
    const double error = v.low >= 0.0 ? steepest * v.error : std::numeric_limits<double>::infinity();
    return ErrorBound::afterSteps(0.0, highest, error, 4.0 * highest);
}

// Extremes are as far off as the values that they are taken of.

inline ErrorBound larger(ErrorBound a, ErrorBound b)
{
    return {std::max(a.low, b.low), std::max(a.high, b.high), std::max(a.error, b.error)};
}

inline ErrorBound smaller(ErrorBound a, ErrorBound b)
{
    return {std::min(a.low, b.low), std::min(a.high, b.high), std::max(a.error, b.error)};
}

} // namespace lumora
