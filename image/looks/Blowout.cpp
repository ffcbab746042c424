#include "image/toolkit/ColorSpace.h"
#include "image/toolkit/PixelPass.h"

/// Over-exposure: light parts are pushed towards white much harder than dark ones.
void CharImage::applyBlowoutFilter()
{
    fillHistogram(0.01f, 0.1f, 20.0f, 255.0f, false, true);
    forEachPixel(*this, [](Rgb c) {
        float hue, saturation, lightness;
        rgbToHsl(c.r, c.g, c.b, &hue, &saturation, &lightness);
        const float gain = lightness + 1.0f;
        return eachChannel(c, [=](float v) { return v * gain; });
    });
}
