#include "image/looks/Magazine.h"

#include "image/toolkit/PixelPass.h"
#include "image/toolkit/Variation.h"

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
    const auto warmed = [=](Rgb c, float strength) {
        const float lum = byteLuminance(c);
        const float l = float(lum * per255);
        const float w = float(lum * -per255 * 0.27 + 0.27 + 0.2);
        const auto tinted = [=](float v, float tint) { return withDoubledCast(v, w, w * (l * tint)); };
        c = {tinted(c.r, 232.0f), tinted(c.g, 135.0f), tinted(c.b, 44.0f)};
        c = partedTones(c, p.pivot > lum, strength);
        const float level = luminance(c) * (1.0f - 1.23f);
        return eachChannel(c, [=](float v) { return v * 1.23f + level; });
    };
    forEachPixel(*this, strengths, warmed, Stretch {0.001f, 0.01f, 0.0f, 255.0f, true, false});
}
