// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/looks/Magazine.h"

#include "image/looks/Variation.h"
#include "image/passes/PixelPass.h"

namespace lumora {

MagazineParameters MagazineParameters::fixed()
{
    return {135.0f, 1.0f, 0.8f};
}

MagazineParameters MagazineParameters::varied(const float* random)
{
    return {random[27] * 100.0f + 80.0f, random[66] + 1.0f, float(random[67] * -0.2 + 0.8)};
}

/// Warmed towards orange, tones parted at a pivot, colours strengthened.
void CharImage::applyMagazineFilter()
{
    const MagazineParameters p = currentParameters<MagazineParameters>();
    const ToneTable strengths([=](float lum) {
        return 1.0f
            - (p.pivot > lum ? std::pow((p.pivot - lum) / p.pivot, p.shadowExponent)
                             : std::pow((lum - p.pivot) / (255.0f - p.pivot), p.highlightExponent));
    });
    const auto warmed = [=](auto c, auto strength) {
        const auto lum = byteLuminance(c);
        const auto l = rounded(lum * per255);
        const auto w = rounded(lum * -per255 * 0.27 + 0.27 + 0.2);
        const auto towards = [=](auto v, float tint) { return withDoubledCast(v, w, w * (l * tint)); };
        c = {towards(c.r, 232.0f), towards(c.g, 135.0f), towards(c.b, 44.0f)};
        return partedTones(c, lum < p.pivot, strength);
    };
    const auto coloured = [](auto c) { return withSaturation(c, 1.23f); };
    forEachPixel(*this, strengths, Steps(warmed, coloured), Stretch{0.001f, 0.01f, 0.0f, 255.0f, true, false});
}

} // namespace lumora
