#include "image/toolkit/PixelPass.h"
#include "image/toolkit/Power.h"

#include <cstdlib>

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
    void glowAt(Plane& glow, int firstX, int row) const
    {
        for (int i = 0; i < blockPixels; i++) {
            const double dx = firstX + i, dy = row;
            const float d = float(std::sqrt(dx * dx + dy * dy));
            const float q = 1.0f - d / radius;
            glow.at[i] = q < 0.0f ? 0.0f : q > 1.0f ? 1.0f : q;
        }
        raise(glow, 1.5f);
        for (float& g : glow.at)
            g = float(g * 0.15);
    }
};

float brightness(Rgb c)
{
    return float(luminance(c) * per255);
}

/// Moves `v` towards `colour` by `weight`, the doubled cast following the brightness `l`.
float castBy(float v, float weight, float l, float colour)
{
    return withDoubledCast(v, weight, weight * l * colour);
}

/// The look's contrast on one channel; it never goes below 62, on purpose.
float contrast(float v, float p)
{
    const float raised = (v * (1.0f - p) + v * p * 1.1f) * 1.35f;
    return truncateToInt(raised) <= 61 ? 62.0f : raised;
}

} // namespace

/// A cheap camera with a leak: deep shadows, a pink-violet cast, a warm glow round a random point, dark corners.
void CharImage::applyLightleakFilter()
{
    if (pixelCount() == 0)
        return;
    const Leak leak = Leak::drawn(*this);
    const auto glowAt = [=](Plane& glow, int dx, int dy) { leak.glowAt(glow, dx, dy); };
    forEachBlockAround(*this, leak.x, leak.y, glowAt, [](Block& block, const float* glow) {
        workPlanes(block, [=](Rgb c, int i) {
            const float shade = float(1.0 - float(byteLuminance(c) * per255));
            const float k = shade * shade;
            c = eachChannel(c, [=](float v) { return float(v * (1.0f - k) + v * k * 0.4); });

            float l = brightness(c);
            const float a = float((1.0 - l * l * l) * 0.53);
            c = {castBy(c.r, a, l, 117.0f) + 20.0f, castBy(c.g, a, l, 67.0f) + 20.0f, castBy(c.b, a, l, 110.0f) + 20.0f};

            const float m = luminance(c) * (1.0f - 0.9f);
            c = eachChannel(c, [=](float v) { return v * 0.9f + m; });

            const float g = glow[i];
            l = brightness(c);
            return Rgb{castBy(c.r, g, l, 255.0f), castBy(c.g, g, l, 130.0f), c.b * (1.0f - g)};
        });
        Plane p = planeOf(block, brightness);
        raise(p, 1.5f);
        workPlanes(block, [&](Rgb c, int i) { return eachChannel(c, [&](float v) { return contrast(v, p.at[i]); }); });
    });

    const float halfWidth = width * 0.5f, halfHeight = height * 0.5f;
    vignette(0.0f, std::sqrt(halfWidth * halfWidth + halfHeight * halfHeight), 1.2f, 0.2f, true, false);
}
