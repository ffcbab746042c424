#include "image/CharImage.h"
#include "image/toolkit/PixelPass.h"

#include <algorithm>
#include <memory>

namespace {

/// The kernel size of the edge softening for a longer side of `side` pixels, 7 at most.
int softeningSize(int side)
{
    const double size = float(side) * 0.005;
    return size >= 7.0 ? 7 : int(size);
}

/// How far a pixel at `t` (0 at the inner, 1 at the outer radius) is darkened, 0 .. 1.
float darkness(float t, float exponent, float strength)
{
    const float a = std::pow(t, 1.5f);
    const float e = std::pow(t, exponent);
    const float dark = ((1.0f - a) * e + t * a) * strength;
    return dark < 0.0f ? 0.0f : dark > 1.0f ? 1.0f : dark;
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
    std::unique_ptr<CharImage> blurred;
    if (softenEdges) {
        blurred = std::make_unique<CharImage>(*this);
        blurred->makeBlurry(softeningSize(std::max(width, height)), 0.0f);
    }
    const int cx = width / 2, cy = height / 2;
    const float span = outerRadius - innerRadius;
    forEachPixelAt(*this, [&](Rgb c, int x, int y) {
        const float dx = float(x - cx), dy = float(y - cy);
        const float t = (std::sqrt(dx * dx + dy * dy) - innerRadius) / span;
        if (t < 0.0f)
            return c;
        const float dark = darkness(t, exponent, strength), keep = 1.0f - dark;
        if (softenEdges) {
            const float w = softness(t);
            const Rgb b = pixelAt(blurred->data + (std::size_t(y) * width + x) * bytesPerPixel);
            if (w > 0.0f)
                c = {(1.0f - w) * c.r + w * b.r, (1.0f - w) * c.g + w * b.g, (1.0f - w) * c.b + w * b.b};
        }
        if (boostSaturation) {
            const float level = luminance(c);
            c = eachChannel(c, [=](float v) { return v * (1.0f + dark) - dark * level; });
        }
        return eachChannel(c, [=](float v) { return keep * v; });
    });
}
