#include "image/toolkit/PixelPass.h"

#include <algorithm>
#include <cstring>

namespace {

/// On one axis, for each pixel of a block: the two neighbours of a place and the share of the lower one. Odd on purpose:
/// the share is at most a half but near the first row or column, and is often cut to 0.
struct Neighbours {
    int nearest[blockPixels], low[blockPixels], high[blockPixels];
    Plane lowShare;

    void find(const Plane& places, int size)
    {
        const float last = float(size - 1);
        for (int i = 0; i < blockPixels; i++) {
            const float place = places.at[i], before = place - 0.5f, behind = place + 0.5f;
            nearest[i] = int(place);
            low[i] = before >= 0.0f ? int(before) : 0;
            high[i] = int(behind < last ? behind : last);
            const float share = (float(low[i]) - place) / float(high[i] - low[i]) + 1.0f;
            const float held = share < 0.0f ? 0.0f : share > 1.0f ? 1.0f : share;
            lowShare.at[i] = high[i] == low[i] ? 1.0f : held;
        }
    }
};

/// The pixels of the picture that a block is made of, as they lie in memory.
struct Corners {
    unsigned char nearest[4 * blockPixels], lowLow[4 * blockPixels], highLow[4 * blockPixels],
        lowHigh[4 * blockPixels], highHigh[4 * blockPixels];

    void gather(const CharImage& source, const Neighbours& across, const Neighbours& down)
    {
        for (int i = 0; i < blockPixels; i++) {
            const auto take = [&](unsigned char* to, int x, int y) {
                std::memcpy(to + 4 * i, source.data + (std::size_t(y) * source.width + x) * 4, 4);
            };
            take(nearest, across.nearest[i], down.nearest[i]);
            take(lowLow, across.low[i], down.low[i]);
            take(highLow, across.high[i], down.low[i]);
            take(lowHigh, across.low[i], down.high[i]);
            take(highHigh, across.high[i], down.high[i]);
        }
    }

    /// Half the nearest pixel, half the blend of the four.
    float mixed(int i, int channel, float h, float v) const
    {
        const int at = 4 * i + channel;
        const float blend = ((1.0f - h) * float(highHigh[at]) + h * float(lowHigh[at])) * (1.0f - v)
            + ((1.0f - h) * float(highLow[at]) + h * float(lowLow[at])) * v;
        return blend * 0.5f + float(nearest[at]) * 0.5f;
    }
};

} // namespace

/// Barrel distortion: magnifies the centre and bends the picture outward, black where it does not reach.
void CharImage::makeFisheye()
{
    const CharImage source(*this);
    const float cx = width * 0.5f, cy = height * 0.5f;
    const double reach = std::min(cx, cy) * 0.97;
    const float across = float(width), down = float(height);
    Plane placeX, placeY, reached;
    Neighbours h, v;
    Corners corners;
    const auto bend = [&](Block& block, int firstX, int y) {
        for (int i = 0; i < blockPixels; i++) {
            const float dx = float(firstX + i) - cx, dy = float(y) - cy;
            const float q = float(std::sqrt(dx * dx + dy * dy) / reach);
            const float m = float(q * q * 0.45 + 1.0);
            // Nearly cx + 0.66 m dx; the detour over the picture's size rounds differently and is kept.
            const float sx = ((dx * m + cx) / across * across - cx) * 0.66f + cx;
            const float sy = ((dy * m + cy) / down * down - cy) * 0.66f + cy;
            const bool inside = (sx >= 0.0f) & (sy >= 0.0f) & (sx < across) & (sy < down);
            placeX.at[i] = inside ? sx : 0.0f;
            placeY.at[i] = inside ? sy : 0.0f;
            reached.at[i] = inside ? 1.0f : 0.0f;
        }
        h.find(placeX, width);
        v.find(placeY, height);
        corners.gather(source, h, v);
        for (int i = 0; i < blockPixels; i++) {
            const float hs = h.lowShare.at[i], vs = v.lowShare.at[i];
            const Rgb c = {corners.mixed(i, 0, hs, vs), corners.mixed(i, 1, hs, vs), corners.mixed(i, 2, hs, vs)};
            block.setColour(i, reached.at[i] > 0.0f ? c : grey(0.0f));
        }
        block.storePlanes();
    };
    for (int y = 0; y < height; y++)
        forEachBlockOfRow(*this, y, [&](Block& block, int firstX) { bend(block, firstX, y); });
}

void CharImage::applyFisheyeFilter()
{
    makeFisheye();
}
