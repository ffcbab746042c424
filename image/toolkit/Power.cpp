#include "image/toolkit/Power.h"

#include <bit>
#include <cstdint>
#include <cstdlib>

// std::pow one value at a time would cost more than all the rest of a look. Here the power is formed in double for a
// whole block, as 2 to the exponent times the binary logarithm, to better than 2^-31 of its value. The C library's
// single-precision pow is formed in double as well and rounded last, so that both round to the same float unless the
// value lies next to the middle between two floats. Those few, and everything odd (zero, negative, infinite, tiny), are
// left to std::pow itself.

namespace {

constexpr double twoOverLog2 = 2.8853900817779268; ///< 2 / ln 2
constexpr double log2 = 0.6931471805599453;

struct Power {
    double value;
    double log; ///< of the value, to the base 2, or a bound of it
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

/// For a normal positive float.
inline Power powerOf(float base, double exponent)
{
    // The logarithm of m by the series of the inverse hyperbolic tangent.
    const double m = mantissa(base);
    const double z = (m - 1.0) / (m + 1.0), z2 = z * z;
    double series = 1.0 / 11.0;
    series = series * z2 + 1.0 / 9.0;
    series = series * z2 + 1.0 / 7.0;
    series = series * z2 + 1.0 / 5.0;
    series = series * z2 + 1.0 / 3.0;
    series = series * z2 + 1.0;
    const double y = exponent * (wholeLog(base) + z * series * twoOverLog2);

    // y = n + f with f on -1/2 .. 1/2; adding 1.5 x 2^52 leaves n in the lowest bits.
    constexpr double rounder = 6755399441055744.0;
    const double shifted = y + rounder;
    const double f = (y - (shifted - rounder)) * log2;
    double e = 1.0 / 40320.0;
    e = e * f + 1.0 / 5040.0;
    e = e * f + 1.0 / 720.0;
    e = e * f + 1.0 / 120.0;
    e = e * f + 1.0 / 24.0;
    e = e * f + 1.0 / 6.0;
    e = e * f + 0.5;
    e = e * f + 1.0;
    e = e * f + 1.0;
    const double scale = std::bit_cast<double>((std::bit_cast<std::uint64_t>(shifted) + 1023u) << 52);
    return {e * scale, y};
}

/// The same for the exponent 1.5, which half of the looks use.
inline Power sesquiPowerOf(float base)
{
    const double x = base;
    return {x * std::sqrt(x), 1.5 * (std::abs(wholeLog(base)) + 1)};
}

// The C library might round to another float next to the middle between two. Distances are in steps of a double, 2^29 of
// which make one of a float.
constexpr double unit = 536870912.0;

inline double distanceFromMiddle(Power p)
{
    const std::int64_t below = std::bit_cast<std::int64_t>(p.value) & 0x1fffffff;
    return std::fabs(double(std::int32_t(below)) - unit / 2);
}

/// Beyond the half of any rounding, the library's own error is below 1/64 + |log| / 512 of a float's last place for
/// results that are not extreme (its logarithm is good to 1.83 x 2^-33).
inline double unsureDistance(Power p)
{
    const double log = std::fabs(p.log);
    return log < 20.0 ? unit / 64 + log * (unit / 512) : unit;
}

/// A base for which powerOf is not made.
inline bool isOdd(float base)
{
    return !(base >= 1e-30f && base <= 1e30f);
}

/// `power(base)` for each value, and std::pow where it is not sure.
template <class Function> void raiseBy(Plane& values, float exponent, Function power)
{
    Plane result;
    alignas(64) int unsure[blockPixels];
    for (int i = 0; i < blockPixels; i++) {
        const float base = values.at[i];
        const bool odd = isOdd(base);
        const Power p = power(odd ? 1.0f : base);
        result.at[i] = float(p.value);
        const float far = float(distanceFromMiddle(p) - unsureDistance(p));
        unsure[i] = odd ? 1 : far > 0.0f ? 0 : 1;
    }
    for (int i = 0; i < blockPixels; i += 8) {
        int any = 0;
        for (int j = i; j < i + 8; j++)
            any |= unsure[j];
        for (int j = i; any != 0 && j < i + 8; j++)
            if (unsure[j])
                result.at[j] = std::pow(values.at[j], exponent);
    }
    values = result;
}

} // namespace

void raise(Plane& values, float exponent)
{
    if (exponent == 1.5f)
        raiseBy(values, exponent, sesquiPowerOf);
    else
        raiseBy(values, exponent, [=](float base) { return powerOf(base, exponent); });
}

void applySCurve(Plane& values, float exponent)
{
    Plane power;
    for (int i = 0; i < blockPixels; i++) {
        const float x = values.at[i];
        power.at[i] = x < 0.5f ? x + x : float(2.0 - 2.0 * x);
    }
    raise(power, exponent);
    for (int i = 0; i < blockPixels; i++) {
        const float p = power.at[i], lower = p * 0.5f, upper = float(1.0 - 0.5 * p);
        values.at[i] = values.at[i] < 0.5f ? lower : upper;
    }
}
