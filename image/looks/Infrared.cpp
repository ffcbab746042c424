#include "image/toolkit/PixelPass.h"

#include <algorithm>
#include <cstdlib>

namespace {

/// How close a colour is to a reference, 0 .. 1.
float closeness(Rgb c, Rgb reference)
{
    const auto factor = [](float v, float r) { return float((255 - std::abs(int(v - r))) * per255); };
    const float score = factor(c.r, reference.r) * factor(c.g, reference.g) * factor(c.b, reference.b);
    return std::clamp(score, 0.0f, 1.0f);
}

} // namespace

/// Black-and-white infrared film: foliage bright, skin and earth light, blue sky dark.
void CharImage::applyInfraredFilter()
{
    forEachPixel(*this, [](Rgb c) {
        const float foliage = closeness(c, {0.0f, 255.0f, 0.0f});
        const float skin = closeness(c, {228.0f, 152.0f, 76.0f});
        const float sky = closeness(c, {150.0f, 150.0f, 255.0f});
        return grey(float(foliage * 0.5 + skin + sky * -0.4) * 255.0f);
    });
    fillHistogram(0.01f, 0.01f, 0.0f, 255.0f, true, true);
    makeBlurry(int(std::max(width, height) * 0.01), 3.0f);
}
