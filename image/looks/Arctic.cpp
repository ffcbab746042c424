// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/passes/PixelPass.h"

namespace lumora {

namespace {

constexpr float pivot = 135.0f; ///< the luminance below which tones sink to black and above which they rise to white

} // namespace

/// Cold and bleached: a blue cast that grows with brightness, dark tones sunk and light ones lifted.
void CharImage::applyArcticFilter()
{
    const ToneTable strengths([](float lum) {
        return 1.0f - (lum < pivot ? std::pow((pivot - lum) * (1.0f / 135.0f), 1.1f) : (lum - pivot) * (1.0f / 120.0f));
    });
    const auto bleached = [](auto c, auto strength) {
        const auto lum = byteLuminance(c);
        const auto t = rounded(lum * per255);
        c = {c.r * 0.63f + t * 14.8f, c.g * 0.63f + t * 14.8f, c.b * 0.63f + t * 59.2f};
        return partedTones(c, lum < pivot, strength);
    };
    const auto coloured = [](auto c) { return withSaturation(c, 1.1f); };
    forEachPixel(*this, strengths, Steps(bleached, coloured), Stretch{0.001f, 0.01f, 0.0f, 255.0f, true, false});
}

} // namespace lumora
