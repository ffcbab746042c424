// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/looks/Lolo.h"

#include "image/looks/Variation.h"
#include "image/passes/PixelPass.h"

namespace lumora {

LoloParameters LoloParameters::fixed()
{
    return {30.0f, 255.0f, 1.4f};
}

LoloParameters LoloParameters::varied(const float* random)
{
    LoloParameters p;
    p.darkLevel = float(int(random[50] * 30.0f + 10.0f));
    const float bright = random[51] * -50.0f + 265.0f;
    p.brightLevel = bright > 255.0f ? 255.0f : float(int(bright));
    const float s = float((random[52] * 0.5 + 0.8) * 1.4);
    p.saturation = s >= 1.0f ? float(s * 1.4) : 1.4f; // the factor 1.4 comes twice on purpose
    return p;
}

/// Saturated and contrasty, with a warm lift in the light tones.
void CharImage::applyLoloFilter()
{
    const LoloParameters p = currentParameters<LoloParameters>();
    const Levels levels = levelsOf(*this, {0.005f, 0.01f, p.darkLevel, p.brightLevel, true, true});
    const auto saturated = [=](auto c) {
        const auto lum = byteLuminance(c);
        c = eachChannel(c, [=](auto v) { return p.saturation * v + lum * (1.0f - p.saturation); });
        return eachChannel(c, [](auto v) { return withContrast(v, 1.5); });
    };
    const auto warmed = [](auto c) {
        const auto t = rounded(luminance(c) * per255);
        return Colour{c.r * 0.97f + t * 12.9f, c.g * 0.97f + t * 9.66f, c.b};
    };
    const auto muted = [](auto c) {
        const auto level = luminance(Colour{c.r, c.g, c.b * 0.97f}) * (1.0f - 0.9f);
        return Colour{c.r * 0.9f + level, c.g * 0.9f + level, c.b * 0.873f + level}; // 0.873 = 0.97 x 0.9
    };
    forEachPixel(*this, levels, Steps(saturated, warmed, muted));
}

} // namespace lumora
