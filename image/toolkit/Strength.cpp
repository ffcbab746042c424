// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/CharImage.h"

#include <algorithm>
#include <cstdint>

namespace lumora {

namespace {

/// A hundredth of a number up to 25,550, truncated, in 16 bits: 41944 is 2^22 / 100 and 0.96 more, which such a number
/// makes to less than a hundredth.
constexpr std::uint16_t hundredthOf(std::uint16_t number)
{
    return std::uint16_t(std::uint16_t(std::uint32_t(number) * 41944u >> 16) >> 6);
}

static_assert([] {
    for (int number = 0; number <= 255 * 100 + 50; number++)
        if (hundredthOf(std::uint16_t(number)) != number / 100)
            return false;
    return true;
}());

constexpr std::size_t blockBytes = 64;

} // namespace

void CharImage::mixIn(const CharImage& before, int strength)
{
    const int share = std::clamp(strength, 0, wholeStrength);
    // The spare bytes stay.
    std::uint16_t shares[blockBytes], rests[blockBytes];
    for (std::size_t i = 0; i < blockBytes; i++) {
        shares[i] = std::uint16_t(i % 4 == 3 ? wholeStrength : share);
        rests[i] = std::uint16_t(wholeStrength - shares[i]);
    }
    const auto mixBytes = [&](unsigned char* to, const unsigned char* from, std::size_t count) {
        for (std::size_t i = 0; i < count; i++) {
            // 50 hundredths more, so that the truncation rounds half up.
            const auto mix = std::uint16_t(from[i] * rests[i] + to[i] * shares[i] + 50);
            to[i] = static_cast<unsigned char>(hundredthOf(mix));
        }
    };
    const std::size_t bytes = pixelCount() * 4;
    std::size_t at = 0;
    for (; at + blockBytes <= bytes; at += blockBytes)
        mixBytes(data + at, before.data + at, blockBytes);
    mixBytes(data + at, before.data + at, bytes - at);
}

} // namespace lumora
