#include "image/toolkit/PixelPass.h"

namespace {

constexpr float pivot = 135.0f; ///< the luminance below which tones sink to black and above which they rise to white

} // namespace

/// Cold and bleached: a blue cast that grows with brightness, dark tones sunk and light ones lifted.
void CharImage::applyArcticFilter()
{
    forEachPixel(*this, [](Rgb c) {
        const float lum = luminance(c);
        const float t = float(lum * per255);
        c = {c.r * 0.63f + t * 14.8f, c.g * 0.63f + t * 14.8f, c.b * 0.63f + t * 59.2f};

        if (lum < pivot) {
            const float k = 1.0f - std::pow((pivot - lum) * (1.0f / 135.0f), 1.1f);
            c = eachChannel(c, [=](float v) { return v * k; });
        } else {
            const float u = 1.0f - (lum - pivot) * (1.0f / 120.0f);
            c = eachChannel(c, [=](float v) { return float((v - 255.0) * u + 255.0); });
        }

        const float level = luminance(c) * -(1.1f - 1.0f);
        return eachChannel(c, [=](float v) { return v * 1.1f + level; });
    });
    fillHistogram(0.001f, 0.01f, 0.0f, 255.0f, true, false);
}
