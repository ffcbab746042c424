// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/numbers/Power.h"

#include "image/numbers/Marked.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstdlib>

namespace lumora {

// std::pow one value at a time would cost more than all the rest of a look. Here the power is formed in double for a
// whole block, as 2 to the exponent times the binary logarithm, to better than 2^-33 of its value. The C library's
// single-precision pow is formed in double as well and rounded last, so that both round to the same float unless the
// value lies next to the middle between two floats. Those few, and everything odd (zero, negative, infinite, tiny), are
// left to std::pow itself.

namespace {

constexpr double twoOverLog2 = 2.8853900817779268; ///< 2 / ln 2
constexpr double log2 = 0.6931471805599453;

struct Power {
    double value;
    double unsure; ///< how far the library's unrounded result may be from it, as a part of the value
};

/// How far the library's result may be off before it is rounded, as a part of the result. `log` is the result's
/// logarithm to the base 2. The library finds that logarithm to 1.83 x 2^-33 of itself, which moves the power by ln 2
/// times as much, and the power of 2 to 1.69 x 2^-34. A test compares the outcome with the library's for all floats
/// that matter.
inline double libraryError(double log)
{
    return 0x1p-33 + std::fabs(log) * (1.3 * 0x1p-33);
}

/// The bases whose powers are made here: those from 2^-n to 2^n, where n is so small that the powers are neither tiny
/// nor huge.
struct Bases {
    float lowest, highest;

    static Bases of(float exponent)
    {
        const double log = 60.0 / std::fabs(exponent);
        const std::uint32_t n = log < 100.0 ? std::uint32_t(log) : 100u;
        return {powerOfTwo(127u - n), powerOfTwo(127u + n)};
    }
    bool have(float base) const { return base >= lowest && base <= highest; }

private:
    static float powerOfTwo(std::uint32_t biased) { return std::bit_cast<float>(biased << 23); }
};

// base = m 2^k with m on sqrt(1/2) .. sqrt(2).
constexpr std::uint32_t rootOfHalf = 0x3f3504f3u;

inline int wholeLog(float base)
{
    return std::int32_t(std::bit_cast<std::uint32_t>(base) - rootOfHalf) >> 23;
}

inline float mantissa(float base)
{
    return std::bit_cast<float>(((std::bit_cast<std::uint32_t>(base) - rootOfHalf) & 0x007fffffu) + rootOfHalf);
}

/// The polynomial of these coefficients, the highest power's first, by Horner's rule.
template <class... Coefficients> inline double polynomial(double x, double highest, Coefficients... others)
{
    double sum = highest;
    ((sum = sum * x + others), ...);
    return sum;
}

inline Power powerOf(float base, double exponent)
{
    // The logarithm of m by the series of the inverse hyperbolic tangent.
    const double m = mantissa(base);
    const double z = (m - 1.0) / (m + 1.0), z2 = z * z;
    const double series = polynomial(z2, 1.0 / 13.0, 1.0 / 11.0, 1.0 / 9.0, 1.0 / 7.0, 1.0 / 5.0, 1.0 / 3.0, 1.0);
    const double y = exponent * (wholeLog(base) + z * series * twoOverLog2);

    // y = n + f with f on -1/2 .. 1/2; adding 1.5 x 2^52 leaves n in the lowest bits.
    constexpr double rounder = 6755399441055744.0;
    const double shifted = y + rounder;
    const double f = (y - (shifted - rounder)) * log2;
    const double e = polynomial(
        f, 1.0 / 362880.0, 1.0 / 40320.0, 1.0 / 5040.0, 1.0 / 720.0, 1.0 / 120.0, 1.0 / 24.0, 1.0 / 6.0, 0.5, 1.0, 1.0);
    const double scale = std::bit_cast<double>((std::bit_cast<std::uint64_t>(shifted) + 1023u) << 52);
    return {e * scale, libraryError(y) + 0x1p-33};
}

/// The same for an exponent that one or two products are enough for: `product(base)`, which is nearly exact.
template <class Product> Power productOf(float base, double exponent, Product product)
{
    return {product(double(base)), libraryError(exponent * (std::abs(wholeLog(base)) + 0.5))};
}

inline Power sesquiPowerOf(float base)
{
    return productOf(base, 1.5, [](double x) { return x * std::sqrt(x); });
}

inline Power cubeOf(float base)
{
    return productOf(base, 3.0, [](double x) { return x * x * x; });
}

inline Power fifthPowerOf(float base)
{
    return productOf(base, 5.0, [](double x) { return x * x * (x * x) * x; });
}

/// Both ends of where the library's result may lie. They round to the same float unless the middle between two lies
/// there.
struct Rounded {
    float below, above;
};

inline Rounded roundedBothWays(Power p)
{
    const double reach = p.value * p.unsure;
    return {float(p.value - reach), float(p.value + reach)};
}

/// Zero, without a sign, is frequent, and stays zero under a positive exponent.
inline bool isZero(float base)
{
    return std::bit_cast<std::uint32_t>(base) == 0;
}

/// `power(base)` for each value, and std::pow where it is not sure.
template <class Function> void raiseBy(float* values, int count, float exponent, Function power)
{
    const Bases bases = Bases::of(exponent);
    Plane result;
    unsigned char unsure[blockPixels] = {};
    for (int i = 0; i < count; i++) {
        const float base = values[i];
        const Rounded rounded = roundedBothWays(power(base));
        const bool zero = isZero(base) & (exponent > 0.0f);
        const bool sure = zero | (bases.have(base) & (rounded.below == rounded.above));
        result.at[i] = zero ? 0.0f : rounded.below;
        unsure[i] = sure ? 0 : 1;
    }
    forEachMarked(unsure, count, [&](int i) { result.at[i] = std::pow(values[i], exponent); });
    std::copy_n(result.at, count, values);
}

} // namespace

void raise(float* values, int count, float exponent)
{
    // The exponents that the recipes have.
    if (exponent == 1.5f)
        raiseBy(values, count, exponent, [](float base) { return sesquiPowerOf(base); });
    else if (exponent == 3.0f)
        raiseBy(values, count, exponent, [](float base) { return cubeOf(base); });
    else if (exponent == 5.0f)
        raiseBy(values, count, exponent, [](float base) { return fifthPowerOf(base); });
    else
        raiseBy(values, count, exponent, [=](float base) { return powerOf(base, exponent); });
}

float sesquiPower(float value)
{
    const Rounded rounded = roundedBothWays(sesquiPowerOf(value));
    const bool sure = Bases::of(1.5f).have(value) && rounded.below == rounded.above;
    return sure ? rounded.below : std::pow(value, 1.5f);
}

void applySCurve(float* values, int count, float exponent)
{
    float power[blockPixels];
    for (int i = 0; i < count; i++) {
        const float x = values[i];
        power[i] = x < 0.5f ? x + x : float(2.0 - 2.0 * x);
    }
    raise(power, count, exponent);
    for (int i = 0; i < count; i++) {
        const float p = power[i], lower = p * 0.5f, upper = float(1.0 - 0.5 * p);
        values[i] = values[i] < 0.5f ? lower : upper;
    }
}

} // namespace lumora
