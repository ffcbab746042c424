// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/looks/Instant.h"

#include "image/looks/Variation.h"
#include "image/numbers/Power.h"
#include "image/passes/PixelPass.h"

namespace lumora {

InstantParameters InstantParameters::fixed()
{
    return {{1.513512f, 1.277254f, 0.773497f}, 0.01f, 1.0f};
}

InstantParameters InstantParameters::varied(const float* random)
{
    InstantParameters p = fixed();
    for (int k = 0; k < 3; k++)
        p.exponent[k] = float(p.exponent[k] * (random[23 + k] * 0.6 + 0.7));
    const float t = std::fma(random[30], 12.0f, -4.0f);
    p.lowFraction = t >= 1.0f ? t * 0.01f : 0.01f;
    p.contrast = float(random[40] * 0.4 + 0.8);
    return p;
}

/// An instant print: squeezed tones, a curve per channel, brown shadows, dimmed highlights and a soft vignette.
void CharImage::applyInstantFilter()
{
    const InstantParameters p = currentParameters<InstantParameters>();
    const Levels levels = levelsOf(*this, {p.lowFraction, 0.01f, 50.0f, 250.0f, true, false});
    const auto curve = [=](float exponent) {
        const ChannelCurve film = filmCurve(exponent);
        return channelCurve([&](int v) { return film.at[int(levels(float(v)))]; });
    };
    const ChannelCurve red = curve(p.exponent[0]), green = curve(p.exponent[1]), blue = curve(p.exponent[2]);
    const auto browned = [](auto c) {
        const auto l = rounded(luminance(c) * per255);
        const auto w = rounded((1.0 - l * l * l) * 0.38);
        const auto towards = [=](auto v, float tint) { return withDoubledCast(v, w, w * (l * tint)); };
        c = {towards(c.r, 126.0f), towards(c.g, 61.0f), towards(c.b, 38.0f)};
        return eachChannel(c, [](auto v) { return (v + 5.0f) * 1.1f; });
    };
    const auto dimmed = [](auto c) {
        const auto q = sesquiPower(rounded(luminance(c) * per255));
        return eachChannel(c, [=](auto v) { return withShareTimes(v, q, 0.95f); });
    };
    const auto contrasted = [=](auto c) { return eachChannel(c, [=](auto v) { return withContrast(v, p.contrast); }); };
    forEachPixel(*this, red, green, blue, Steps(browned, dimmed, contrasted));

    const float halfWidth = float(width * 0.5), halfHeight = float(height * 0.5);
    const float halfDiagonal = std::sqrt(halfWidth * halfWidth + halfHeight * halfHeight);
    vignette(float(halfDiagonal * 0.4), halfDiagonal, 1.2f, 0.6f, true, false);
}

} // namespace lumora
