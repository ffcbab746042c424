#include "image/toolkit/Hues.h"
#include "image/toolkit/PixelPass.h"

/// Over-exposure: light parts are pushed towards white much harder than dark ones.
void CharImage::applyBlowoutFilter()
{
    const Levels levels = levelsOf(*this, {0.01f, 0.1f, 20.0f, 255.0f, false, true});
    forEachPixel(*this, [=](Rgb c) {
        c = eachChannel(c, levels);
        const float gain = lightnessOf(c) + 1.0f;
        return eachChannel(c, [=](float v) { return v * gain; });
    });
}
