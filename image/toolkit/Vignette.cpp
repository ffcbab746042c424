#include "image/CharImage.h"
#include "image/toolkit/PixelPass.h"
#include "image/toolkit/Power.h"

#include <algorithm>

namespace {

/// The kernel size of the edge softening for a longer side of `side` pixels, 7 at most.
int softeningSize(int side)
{
    const double size = float(side) * 0.005;
    return size >= 7.0 ? 7 : int(size);
}

/// How far pixels are darkened, 0 .. 1, `t` running from 0 at the inner to 1 at the outer radius: `t` becomes it.
/// Within the inner radius it is 0.
void becomeDarkness(Plane& t, float exponent, float strength)
{
    int reached = 0;
    for (int i = 0; i < blockPixels; i++)
        reached |= !(t.at[i] < 0.0f);
    if (!reached) {
        t = {};
        return;
    }
    Plane a, e;
    for (int i = 0; i < blockPixels; i++)
        a.at[i] = e.at[i] = t.at[i] < 0.0f ? 1.0f : t.at[i];
    raise(a, 1.5f);
    raise(e, exponent);
    for (int i = 0; i < blockPixels; i++) {
        const float dark = ((1.0f - a.at[i]) * e.at[i] + t.at[i] * a.at[i]) * strength;
        const float held = dark < 0.0f ? 0.0f : dark > 1.0f ? 1.0f : dark;
        t.at[i] = t.at[i] < 0.0f ? 0.0f : held;
    }
}

/// The share of the blurred copy at `t`.
float softness(float t)
{
    const float u = float(t - 0.2);
    return u > 1.0f ? 1.0f : u > 0.0f ? u : 0.0f;
}

} // namespace

void CharImage::vignette(
    float innerRadius, float outerRadius, float exponent, float strength, bool boostSaturation, bool softenEdges)
{
    const int cx = width / 2, cy = height / 2;
    const float span = outerRadius - innerRadius;
    const auto placeAt = [=](Plane& t, int firstX, int y) {
        for (int i = 0; i < blockPixels; i++) {
            const float dx = float(firstX + i), dy = float(y);
            t.at[i] = (std::sqrt(dx * dx + dy * dy) - innerRadius) / span;
        }
    };
    const auto darken = [=](Rgb c, float level, float dark) {
        if (boostSaturation)
            c = eachChannel(c, [=](float v) { return v * (1.0f + dark) - dark * level; });
        return eachChannel(c, [=](float v) { return (1.0f - dark) * v; });
    };
    if (!softenEdges) {
        const auto darknessAt = [=](Plane& weights, int dx, int dy) {
            placeAt(weights, dx, dy);
            becomeDarkness(weights, exponent, strength);
        };
        forEachPixelAround(
            *this, cx, cy, 1.0f, darknessAt, [=](Rgb c, float dark) { return darken(c, byteLuminance(c), dark); },
            true);
        return;
    }

    CharImage blurred(*this);
    blurred.makeBlurry(softeningSize(std::max(width, height)), 0.0f);
    const auto softenAndDarken = [&](Block& block, int x, int y) {
        Plane t, dark;
        placeAt(t, x - cx, y - cy);
        dark = t;
        becomeDarkness(dark, exponent, strength);
        const unsigned char* soft = blurred.data + (std::size_t(y) * width + x) * bytesPerPixel;
        const int inBlock = std::min(blockPixels, width - x);
        block.fillPlanes();
        for (int i = 0; i < inBlock; i++) {
            const float w = softness(t.at[i]);
            const Rgb c = block.colour(i), b = pixelAt(soft + i * bytesPerPixel);
            if (w > 0.0f)
                block.setColour(
                    i, {(1.0f - w) * c.r + w * b.r, (1.0f - w) * c.g + w * b.g, (1.0f - w) * c.b + w * b.b});
        }
        workBlock(block, Steps([=](Rgb c, float darkness) { return darken(c, luminance(c), darkness); }), dark.at);
    };
    for (int y = 0; y < height; y++)
        forEachBlockOfRow(*this, y, [&](Block& block, int x) { softenAndDarken(block, x, y); });
}
