// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/numbers/Disc.h"
#include "image/numbers/Power.h"
#include "image/passes/RadialPass.h"

#include <cstdlib>

namespace lumora {

namespace {

/// Where the light came in: a new place and reach on every call, whatever the variation switch says.
struct Leak {
    int x, y;
    float radius; ///< half to one and a half times the width

    static Leak drawn(const CharImage& image)
    {
        Leak leak;
        leak.x = std::rand() % image.width;
        leak.y = std::rand() % image.height;
        leak.radius = float(image.width * (std::rand() % 100 * 0.01 + 0.5));
        return leak;
    }

    /// The glow's weights, 0 .. 0.15, of pixels that stand so far from the place.
    void glowAt(float* glow, const int* across, const int* down, int count) const
    {
        float d[blockPixels];
        exactDistances(d, across, down, count);
        for (int i = 0; i < count; i++) {
            const float q = 1.0f - d[i] / radius;
            glow[i] = q < 0.0f ? 0.0f : q > 1.0f ? 1.0f : q;
        }
        raise(glow, count, 1.5f);
        for (int i = 0; i < count; i++)
            glow[i] = float(glow[i] * heaviest);
    }
    static ErrorBound glow() { return {0.0, float(heaviest)}; }

private:
    static constexpr double heaviest = 0.15;
};

template <class Channel> Channel brightness(Colour<Channel> c)
{
    return rounded(luminance(c) * per255);
}

/// Moves `v` towards `colour` by `weight`, the doubled cast following the brightness `l`.
template <class Channel, class Weight> Channel castBy(Channel v, Weight weight, Channel l, float colour)
{
    return withDoubledCast(v, weight, weight * l * colour);
}

} // namespace

/// A cheap camera with a leak: deep shadows, a pink-violet cast, a warm glow round a random point, dark corners.
void CharImage::applyLightleakFilter()
{
    if (pixelCount() == 0)
        return;
    const Leak leak = Leak::drawn(*this);
    const auto shaded = [](auto c) {
        const auto shade = rounded(1.0 - rounded(byteLuminance(c) * per255));
        const auto k = shade * shade;
        return eachChannel(c, [=](auto v) { return withShareTimes(v, k, 0.4); });
    };
    const auto violet = [](auto c) {
        const auto l = brightness(c);
        const auto a = rounded((1.0 - l * l * l) * 0.53);
        return Colour{
            castBy(c.r, a, l, 117.0f) + 20.0f, castBy(c.g, a, l, 67.0f) + 20.0f, castBy(c.b, a, l, 110.0f) + 20.0f};
    };
    const auto muted = [](auto c) { return withSaturation(c, 0.9f); };
    const auto glowing = [](auto c, auto g) {
        const auto l = brightness(c);
        return Colour{castBy(c.r, g, l, 255.0f), castBy(c.g, g, l, 130.0f), c.b * (1.0f - g)};
    };
    // It never goes below 62, on purpose. 62.5 gives the same byte, and is too far from a whole number to leave a trial
    // in doubt.
    const auto contrasted = [](auto c) {
        const auto p = sesquiPower(brightness(c));
        return eachChannel(c, [=](auto v) { return notBelow(withShareTimes(v, p, 1.1f) * 1.35f, 62.5f); });
    };
    forEachPixelAround(
        *this, leak.x, leak.y, Leak::glow(),
        [=](float* glow, const int* across, const int* down, int count) { leak.glowAt(glow, across, down, count); },
        Steps(shaded, violet, muted, glowing, contrasted));

    const float halfWidth = width * 0.5f, halfHeight = height * 0.5f;
    vignette(0.0f, std::sqrt(halfWidth * halfWidth + halfHeight * halfHeight), 1.2f, 0.2f, true, false);
}

} // namespace lumora
