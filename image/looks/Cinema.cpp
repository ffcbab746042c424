// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/looks/Cinema.h"

#include "image/looks/Variation.h"
#include "image/passes/PixelPass.h"

namespace lumora {

CinemaParameters CinemaParameters::fixed()
{
    return {{30, 30, 40}, 0.7f};
}

CinemaParameters CinemaParameters::varied(const float* random)
{
    CinemaParameters p = fixed();
    for (int k = 0; k < 3; k++)
        p.tint[k] = static_cast<unsigned char>(p.tint[k] * (random[96 - k] * 0.1 + 0.9)); // never lighter, on purpose
    const float s = float(random[93] * 0.9 + 0.4);
    p.weight = s <= 1.0f ? s * 0.7f : 0.7f;
    return p;
}

/// Bright highlights, contrast, muted colours under a dark blue tint, lifted shadows.
void CharImage::applyCinemaFilter()
{
    const CinemaParameters p = currentParameters<CinemaParameters>();
    const Rgb tint = {float(p.tint[0]), float(p.tint[1]), float(p.tint[2])};
    const Levels levels = levelsOf(*this, {0.05f, 0.0f, 5.0f, 255.0f, true, true});
    const auto highlit = [=](auto c) {
        const auto boost = rounded(byteLuminance(c) * per255);
        c = eachChannel(c, [=](auto v) { return withShareTimes(v, boost, 1.5f); });
        return eachChannel(c, [](auto v) { return withContrast(v, 1.1f); });
    };
    const auto muted = [](auto c) { return withSaturation(c, 0.85f); };
    const auto tinted = [=](auto c) {
        const auto l = rounded(luminance(c) * per255);
        const auto towards = [=](auto v, float t) { return withDoubledCast(v, p.weight, p.weight * (t * l)); };
        c = {towards(c.r, tint.r), towards(c.g, tint.g), towards(c.b, tint.b)};
        return eachChannel(c, [](auto v) { return v * 1.5f; });
    };
    const auto lifted = [](auto c) {
        const auto d = rounded(luminance(c) * -per255 + 1.0);
        return eachChannel(c, [=](auto v) { return withShareTimes(v, d, 1.5f); });
    };
    forEachPixel(*this, levels, Steps(highlit, muted, tinted, lifted));
}

} // namespace lumora
