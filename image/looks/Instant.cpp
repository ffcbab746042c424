#include "image/looks/Instant.h"

#include "image/toolkit/PixelPass.h"
#include "image/toolkit/Variation.h"

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
    fillHistogram(p.lowFraction, 0.01f, 50.0f, 250.0f, true, false);

    const auto curve = [](float v, float exponent) {
        const float z = sCurve(float(v * per255), exponent) * 255.0f;
        return z < 20.0f ? 20.0f : z > 250.0f ? 250.0f : z;
    };
    forEachPixel(*this, [&](Rgb c) {
        c = {curve(c.r, p.exponent[0]), curve(c.g, p.exponent[1]), curve(c.b, p.exponent[2])};

        const float l = float(luminance(c) * per255);
        const float w = float((1.0 - l * l * l) * 0.38);
        const auto tinted = [=](float v, float tint) {
            const float cast = w * (l * tint);
            return v * (1.0f - w) + (cast + cast);
        };
        c = {tinted(c.r, 126.0f), tinted(c.g, 61.0f), tinted(c.b, 38.0f)};
        c = eachChannel(c, [](float v) { return (v + 5.0f) * 1.1f; });

        const float q = std::pow(float(luminance(c) * per255), 1.5f);
        c = eachChannel(c, [=](float v) { return v * (1.0f - q) + v * q * 0.95f; });
        return eachChannel(c, [&](float v) { return float((v - 128.0) * p.contrast + 128.0); });
    });

    const float halfWidth = float(width * 0.5), halfHeight = float(height * 0.5);
    const float halfDiagonal = std::sqrt(halfWidth * halfWidth + halfHeight * halfHeight);
    vignette(float(halfDiagonal * 0.4), halfDiagonal, 1.2f, 0.6f, true, false);
}
