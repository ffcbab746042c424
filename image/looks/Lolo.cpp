#include "image/looks/Lolo.h"

#include "image/toolkit/PixelPass.h"
#include "image/toolkit/Variation.h"

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
    forEachPixel(*this, [=](Rgb c) {
        c = eachChannel(c, levels);
        const float lum = byteLuminance(c);
        c = eachChannel(c, [=](float v) { return p.saturation * v + lum * (1.0f - p.saturation); });
        c = eachChannel(c, [](float v) { return float((v - 128.0) * 1.5 + 128.0); });

        const float t = float(luminance(c) * per255);
        const Rgb warm = {c.r * 0.97f + t * 12.9f, c.g * 0.97f + t * 9.66f, c.b * 0.97f};

        const float level = luminance(warm) * (1.0f - 0.9f);
        return Rgb{warm.r * 0.9f + level, warm.g * 0.9f + level, c.b * 0.873f + level}; // 0.873 = 0.97 x 0.9
    });
}
