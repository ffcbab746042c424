#include "image/toolkit/PixelPass.h"

#include <algorithm>

namespace {

/// Two neighbours on one axis and the share of the lower one. Odd on purpose: the share is at most a half but near the
/// first row or column, and is often cut to 0.
struct Neighbours {
    int low, high;
    float lowShare;
};

Neighbours neighboursOf(float place, int size)
{
    Neighbours n;
    n.low = place - 0.5f >= 0.0f ? int(place - 0.5f) : 0;
    n.high = int(std::min(place + 0.5f, float(size - 1)));
    n.lowShare = n.high == n.low ? 1.0f : std::clamp((float(n.low) - place) / float(n.high - n.low) + 1.0f, 0.0f, 1.0f);
    return n;
}

} // namespace

/// Barrel distortion: magnifies the centre and bends the picture outward, black where it does not reach.
void CharImage::makeFisheye()
{
    const CharImage source(*this);
    const float cx = width * 0.5f, cy = height * 0.5f;
    const float reach = std::min(cx, cy);
    const auto sourcePixel = [&](int x, int y) {
        return pixelAt(source.data + (std::size_t(y) * source.width + x) * source.bytesPerPixel);
    };
    forEachPixelAt(*this, [&](Rgb, int x, int y) {
        const float dx = float(x) - cx, dy = float(y) - cy;
        const float q = float(std::sqrt(dx * dx + dy * dy) / (reach * 0.97));
        const float m = float(q * q * 0.45 + 1.0);
        // Nearly cx + 0.66 m dx; the detour over the picture's size rounds differently and is kept.
        const float sx = ((dx * m + cx) / width * width - cx) * 0.66f + cx;
        const float sy = ((dy * m + cy) / height * height - cy) * 0.66f + cy;
        if (sx < 0.0f || sy < 0.0f || sx >= float(width) || sy >= float(height))
            return grey(0.0f);

        const Neighbours h = neighboursOf(sx, width), v = neighboursOf(sy, height);
        const Rgb nearest = sourcePixel(int(sx), int(sy));
        const Rgb highHigh = sourcePixel(h.high, v.high), lowHigh = sourcePixel(h.low, v.high);
        const Rgb highLow = sourcePixel(h.high, v.low), lowLow = sourcePixel(h.low, v.low);
        const auto mix = [&](float hh, float lh, float hl, float ll, float near) {
            const float blend = ((1.0f - h.lowShare) * hh + h.lowShare * lh) * (1.0f - v.lowShare)
                + ((1.0f - h.lowShare) * hl + h.lowShare * ll) * v.lowShare;
            return blend * 0.5f + near * 0.5f;
        };
        return Rgb{mix(highHigh.r, lowHigh.r, highLow.r, lowLow.r, nearest.r),
            mix(highHigh.g, lowHigh.g, highLow.g, lowLow.g, nearest.g),
            mix(highHigh.b, lowHigh.b, highLow.b, lowLow.b, nearest.b)};
    });
}

void CharImage::applyFisheyeFilter()
{
    makeFisheye();
}
