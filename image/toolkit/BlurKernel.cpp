// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/toolkit/BlurKernel.h"

#include "image/numbers/Arithmetic.h"

#include <algorithm>
#include <cstdlib>

namespace lumora {

namespace {

/// The least multiplier that gives the whole part of `product(byte)` for every byte; -1 when none of 16 bits does.
template <class Product> int multiplierFor(Product product)
{
    int least = 0, most = 65535;
    for (int byte = 1; byte < 256; byte++) {
        const int share = int(product(byte));
        least = std::max(least, (share * 65536 + byte - 1) / byte);
        most = std::min(most, ((share + 1) * 65536 - 1) / byte);
    }
    return least <= most ? least : -1;
}

/// Products that are rounded to float may be whole where the exact ones (double holds them) are not: with their
/// multiplier, if there is one, those bytes need no carry.
int multiplierFor(float weight)
{
    const int rounded = multiplierFor([=](int byte) { return float(byte) * weight; });
    return rounded >= 0 ? rounded : multiplierFor([=](int byte) { return double(byte) * weight; });
}

/// Lists the bytes whose float arithmetic goes beyond their share.
void listCarries(float weight, std::uint16_t multiplier, std::vector<BlurCarry>& carries)
{
    for (int byte = 1; byte < 256; byte++) {
        const double product = double(byte) * weight;
        if (product - int(product) < blurSafeFraction)
            continue;
        const auto value = static_cast<unsigned char>(byte);
        const int share = blurShare(value, multiplier);
        int sum = 0;
        while (sum < 256 && truncateAndWrap(float(sum) + float(byte) * weight) == ((sum + share) & 255))
            sum++;
        if (sum < 256)
            carries.push_back({value, static_cast<unsigned char>(sum)});
    }
}

} // namespace

BlurKernel::BlurKernel(const GrowArray<float>& weights)
{
    const int reach = (weights.numThings - 1) / 2;
    for (int t = 0; t < weights.numThings && whole; t++) {
        const float weight = weights.theArray[t];
        const int multiplier = weight >= 0.0f && weight < 1.0f ? multiplierFor(weight) : -1;
        whole = multiplier >= 0;
        BlurTap tap{reach - t, static_cast<std::uint16_t>(multiplier), {}};
        if (whole)
            listCarries(weight, tap.multiplier, tap.carries);
        if (blurShare(255, tap.multiplier) > 0 || !tap.carries.empty()) {
            radius = std::max(radius, std::abs(tap.offset));
            taps.push_back(tap);
        }
    }
    box = !taps.empty() && int(taps.size()) == 2 * radius + 1;
    for (const BlurTap& tap : taps)
        box = box && tap.carries.empty() && tap.multiplier == taps[0].multiplier;
}

} // namespace lumora
