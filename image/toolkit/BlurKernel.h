// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/GrowArray.h"

#include <cstdint>
#include <vector>

namespace lumora {

// The blur adds tap after tap to a sum that is cut to a whole byte, modulo 256, every time:
//
//     sum = truncateAndWrap(sum + byte * weight)
//
// For weights of 0 or more and below 1 that is whole-number arithmetic. A tap adds the whole part of byte * weight, the
// byte's share, which a multiplication gives: (byte * multiplier) >> 16. Rarely it adds 1 more: where the product lies
// so near to the next whole number that a sum in floats is rounded up to it. A product that does so for one sum does so
// for every larger sum, as floats are coarser there. Such bytes are listed one by one.
//
// Weights for which that does not hold are rare (next to 1, or no numbers); the blur then adds floats.

/// A product whose fraction is less is never rounded up.
inline constexpr double blurSafeFraction = 1.0 - 1.0 / 32768;

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
