#include "image/looks/Delicious.h"

#include "image/toolkit/ColorSpace.h"
#include "image/toolkit/PixelPass.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace {

constexpr float outlineGrey = 25.0f;

/// The squared S-curve, twice as steep in the middle.
float steepened(float v)
{
    const float x = float(v * per255);
    if (x < 0.5f)
        return (x + x) * (x + x) * 0.5f * 255.0f;
    const float rest = float(2.0 - 2.0 * x);
    return float(1.0 - 0.5 * (rest * rest)) * 255.0f;
}

/// The colour of the hue and saturation of `c` at the lightness `l`. Pure red has the hue 1.0 and comes out grey, on
/// purpose.
Rgb withLightness(Rgb c, float l)
{
    float rgb[3] = {c.r, c.g, c.b}, h, s, ignored;
    rgbToHsl(rgb, &h, &s, &ignored);
    hslToRgb(h, s, l, rgb);
    return {rgb[0], rgb[1], rgb[2]};
}

} // namespace

unsigned char bandedTone(unsigned char tone)
{
    const int band = int(tone * 0.023529411764705882); // 6/255
    const int centre = std::clamp(int((float(band * 0.16666667) + 0.0833333358168602) * 255.0), 0, 255);
    const int d = tone - centre;
    const float a = float(std::fabs(d * per255) * 11.999999642372142); // the reciprocal of the single 1/12
    const float a2 = a * a, a3 = a * a2, a5 = a2 * a3;
    return truncateAndWrap(float(d) * a5 + float(centre));
}

/// A cartoon: flat shadows, brightness in seven soft bands, strong colours, dark outlines.
void CharImage::applyDeliciousFilter()
{
    forEachPixel(*this, [](Rgb c) { return luminance(c) < 50.0f ? grey(outlineGrey) : c; });
    const auto edges = std::make_unique<unsigned char[]>(pixelCount());
    fillEdgeDetectMap(edges.get());
    deliciousColorCore2();
    smoothCharMap(edges.get(), width, height, 3, 1.0f, -1.0f);

    forEachPixelAt(*this, [&](Rgb c, int x, int y) {
        const int edge = edges[std::size_t(y) * width + x];
        if (edge <= 120)
            return c;
        const float t = float(float((edge - 120) * (1.0 / 135.0)) * 0.9);
        return eachChannel(c, [=](float v) { return float(std::trunc((1.0 - t) * v + t * outlineGrey)); });
    });
}

void CharImage::deliciousColorCore2()
{
    const std::size_t count = pixelCount();
    const auto tones = std::make_unique<unsigned char[]>(count);
    for (std::size_t i = 0; i < count; i++)
        tones[i] = truncateAndClamp(luminance(eachChannel(pixelAt(data + i * bytesPerPixel), steepened)));
    smoothCharMap(tones.get(), width, height, 10, 1.0f, 20.0f);

    forEachPixelAt(*this, [&](Rgb c, int x, int y) {
        const unsigned char tone = bandedTone(tones[std::size_t(y) * width + x]);
        c = withLightness(c, float(tone * per255));
        const float level = luminance(c);
        return eachChannel(c, [=](float v) { return v + v - level; });
    });
}
