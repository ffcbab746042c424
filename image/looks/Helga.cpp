// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/looks/Helga.h"

#include "image/looks/Variation.h"
#include "image/numbers/Disc.h"
#include "image/numbers/Hues.h"
#include "image/numbers/Power.h"
#include "image/passes/PixelPass.h"
#include "image/passes/RadialPass.h"

namespace lumora {

HelgaParameters HelgaParameters::fixed()
{
    return {{138.0f, 156.0f, 200.0f}, 5.0f, 1.54f, 7, 30};
}

HelgaParameters HelgaParameters::varied(const float* random)
{
    HelgaParameters p = fixed();
    for (int k = 0; k < 3; k++)
        p.tint[k] *= float(random[34 + k] * 0.4 + 0.8);
    p.edgeExponent = float((random[32] + 0.6) * 5.0);
    const float t = random[33] + 0.5f;
    p.contrast = t >= 1.0f ? t * 1.54f : 1.54f;
    p.blackFloor = int(random[37] * 15.0f);
    const float u = float(random[38] * 0.4 + 0.8);
    p.lowLevel = u >= 1.0f ? int(u * 30.0f) : 30;
    return p;
}

namespace {

/// A cool tint in proportion to brightness, colours muted, channels under unequal gains on purpose; then the levels.
void tintAndMute(CharImage& image, const HelgaParameters& p)
{
    const auto tinted = [&](auto c) {
        const auto l = rounded(byteLuminance(c) * per255);
        const auto towards = [=](auto v, float tint) { return tint * l * 0.4f + v * 0.8f; };
        return Colour{towards(c.r, p.tint[0]), towards(c.g, p.tint[1]), towards(c.b, p.tint[2])};
    };
    const auto muted = [](auto c) {
        c = withSaturation(c, 0.6f);
        return Colour{rounded(c.r * 280.0f * per255), rounded(c.g * 275.0f * per255), rounded(c.b * 255.0f * per255)};
    };
    forEachPixel(image, Steps(tinted, muted), Stretch{0.001f, 0.001f, float(p.lowLevel), 255.0f, true, true});
}

} // namespace

/// Cool, muted and contrasty; darker and more saturated towards the edges.
void CharImage::applyHelgaFilter()
{
    const HelgaParameters p = currentParameters<HelgaParameters>();
    tintAndMute(*this, p);

    const float halfWidth = float(width * 0.5), halfHeight = float(height * 0.5);
    const float reach = float(1.49 * std::sqrt(double(halfWidth * halfWidth + halfHeight * halfHeight)));
    const auto fallOffAt = [=](float* fallOff, const int* across, const int* down, int count) {
        for (int i = 0; i < count; i++)
            fallOff[i] = distance(float(across[i]), float(down[i])) / reach;
        applySCurve(fallOff, count, p.edgeExponent);
    };
    const auto contrasted = [=](auto c) {
        c = eachChannel(c, [=](auto v) { return withContrast(v, p.contrast); });
        return eachChannel(c, [](auto v) { return rounded((v - 255.0) * double(0.97f) + 255.0); });
    };
    // Compressed highlights, and shadows lifted by up to 35 per cent.
    const auto lifted = [](auto c) {
        const auto a = rounded(luminance(c) * -per255 + 1.0);
        return eachChannel(c, [w = a * a](auto z) { return withShareTimes(z, w, 1.35f); });
    };
    // Saturation may pass 1: the black floor catches it.
    const auto darkened = [](auto c, auto e) { return withSaturationAndValueTimes(c, 1.0 + 0.4 * e, 1.0 - e); };
    // Half a step above the floor gives the same byte, and is too far from a whole number to leave a trial in doubt.
    const float floor = float(p.blackFloor) + 0.5f;
    const auto floored = [=](auto c) { return eachChannel(c, [=](auto v) { return notBelow(v, floor); }); };
    forEachPixelAround(
        *this, width / 2, height / 2, {0.0, 1.0}, fallOffAt, Steps(contrasted, lifted, darkened, floored));
}

} // namespace lumora
