#pragma once

#include "core/GrowArray.h"

#include <cstdint>
#include <vector>

namespace lumora {

// The blur adds tap after tap to a sum that is cut to a whole byte, modulo 256, every time:
//
//     sum = truncateAndWrap(sum + byte * weight)
//
// For weights of 0 or more and below 1 that is whole-number arithmetic. Let n be the whole part of the exact
// byte * weight. The float product lies in n .. n + 1, and so does its float sum with the running sum s in
// s + n .. s + n + 1, because rounding never passes a number that a float can hold. A tap therefore adds n, or n + 1
// when rounding reached the next whole number. Products stay below 256 and sums below 512, so the two roundings move
// the value by 2^-17 and 2^-16 at most: only a fraction of 1 - 2^-15 or more can carry. Such bytes are rare and are
// listed one by one. The larger the sum, the coarser the floats around it: a byte that carries at one sum carries at
// every larger one.
//
// What remains is n, which a multiplication gives: (byte * multiplier) >> 16. There is such a 16-bit multiplier unless
// the weight is within 2^-16 of 1: the fractions n / byte and (n + 1) / byte that bound it from both sides differ by
// 1 / (255 * 254) at least, which is more than 2^-16.

/// A byte that adds 1 more than its share to a running sum of `leastSum` or more.
struct BlurCarry {
    unsigned char byte, leastSum;
};

/// One tap of the blur in whole numbers.
struct BlurTap {
    int offset; ///< from the pixel to the one that the tap reads
    std::uint16_t multiplier;
    std::vector<BlurCarry> carries;
};

/// A byte's share by a tap's multiplier.
inline std::uint16_t blurShare(unsigned char byte, std::uint16_t multiplier)
{
    return static_cast<std::uint16_t>(std::uint32_t(std::uint16_t(byte)) * multiplier >> 16);
}

/// The kernel in whole numbers: the taps that ever add something, in the order in which they are added.
struct BlurKernel {
    std::vector<BlurTap> taps;
    int radius = 0; ///< the greatest distance of a tap that counts
    bool whole = true; ///< whether whole numbers give the blur exactly; the rest is of no use when not
    bool box = false; ///< whether all 2 * radius + 1 taps are alike, without carries

    explicit BlurKernel(const GrowArray<float>& weights);
};

} // namespace lumora
