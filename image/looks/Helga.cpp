#include "image/looks/Helga.h"

#include "image/toolkit/Hues.h"
#include "image/toolkit/PixelPass.h"
#include "image/toolkit/Power.h"
#include "image/toolkit/Variation.h"

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
    const auto muted = [&](Rgb c) {
        const float l = float(byteLuminance(c) * per255);
        c = {p.tint[0] * l * 0.4f + c.r * 0.8f, p.tint[1] * l * 0.4f + c.g * 0.8f, p.tint[2] * l * 0.4f + c.b * 0.8f};
        const float level = luminance(c) * (1.0f - 0.6f);
        c = eachChannel(c, [=](float v) { return v * 0.6f + level; });
        return Rgb{float(c.r * 280.0f * per255), float(c.g * 275.0f * per255), float(c.b * 255.0f * per255)};
    };
    forEachPixel(image, muted, Stretch {0.001f, 0.001f, float(p.lowLevel), 255.0f, true, true});
}

/// Contrast about 128, compressed highlights, shadows lifted by up to 35 per cent.
Rgb contrastAndLift(Rgb c, float contrast)
{
    c = eachChannel(c, [=](float v) {
        const float u = float(contrast * (v - 128.0) + 128.0);
        return float((u - 255.0) * double(0.97f) + 255.0);
    });
    const float a = float(luminance(c) * -per255 + 1.0);
    const float w = a * a;
    return eachChannel(c, [=](float z) { return (1.0f - w) * z + w * z * 1.35f; });
}

/// Darkens and saturates by the fall-off `e` (0 at the centre, 1 far out). Saturation may pass 1: the black floor
/// catches it.
Hsv darkenAndSaturate(Hsv c, float e)
{
    return {c.h, float(c.s * (1.0 + 0.4 * e)), float(c.v * (1.0 - e))};
}

} // namespace

/// Cool, muted and contrasty; darker and more saturated towards the edges.
void CharImage::applyHelgaFilter()
{
    const HelgaParameters p = currentParameters<HelgaParameters>();
    tintAndMute(*this, p);

    const float halfWidth = float(width * 0.5), halfHeight = float(height * 0.5);
    const float reach = float(1.49 * std::sqrt(double(halfWidth * halfWidth + halfHeight * halfHeight)));
    const auto fallOffAt = [=](Plane& fallOff, int dx, int dy) {
        for (int i = 0; i < blockPixels; i++) {
            const float x = float(dx + i), y = float(dy);
            fallOff.at[i] = std::sqrt(x * x + y * y) / reach;
        }
        applySCurve(fallOff, p.edgeExponent);
    };
    const float floor = float(p.blackFloor);
    forEachBlockAround(*this, width / 2, height / 2, fallOffAt, [=](Block& block, const float* fallOff) {
        workPlanes(block, [=](Rgb c, int) { return contrastAndLift(c, p.contrast); });
        // Hue, saturation and value stand in the planes for a while: one loop for all of it would be too much for the
        // compilers' vectorisers.
        workPlanes(block, [=](Rgb c, int i) {
            const Hsv hsv = darkenAndSaturate(hsvOf(c), fallOff[i]);
            return Rgb {hsv.h, hsv.s, hsv.v};
        });
        workPlanes(block, [=](Rgb c, int) { return rgbOf(Hsv {c.r, c.g, c.b}); });
        workPlanes(block, [=](Rgb c, int) {
            return eachChannel(c, [=](float v) { return float(truncateToInt(v)) < floor ? floor : v; });
        });
    });
}
