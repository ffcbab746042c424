#include "image/toolkit/FormerRows.h"
#include "image/toolkit/PixelPass.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace {

/// Rows that are worked on block by block together, as they read nearly the same pixels.
constexpr int bandRows = 32;

/// How far out each pixel of a block is read, compared with the pixels at the centre. The block begins at the distances
/// `dx` and `dy` from there.
void fillFactors(Plane& factor, float dx, float dy, double reach)
{
    for (int i = 0; i < blockPixels; i++) {
        const float x = dx + float(i);
        const float q = float(std::sqrt(x * x + dy * dy) / reach);
        factor.at[i] = float(q * q * 0.45 + 1.0);
    }
}

/// For each pixel of a block: whether its place lies inside the picture, and where.
struct Places {
    Plane x, y, inside;
    bool any;

    /// Nearly centre + 0.66 factor distance; the detour over the picture's size rounds differently and is kept.
    static float placeOf(float distance, float factor, float size, float centre)
    {
        return ((distance * factor + centre) / size * size - centre) * 0.66f + centre;
    }

    void find(int firstX, int row, const Plane& factor, float across, float down)
    {
        const float cx = across * 0.5f, cy = down * 0.5f;
        int found = 0;
        for (int i = 0; i < blockPixels; i++) {
            const float sx = placeOf(float(firstX + i) - cx, factor.at[i], across, cx);
            const float sy = placeOf(float(row) - cy, factor.at[i], down, cy);
            const bool within = (sx >= 0.0f) & (sy >= 0.0f) & (sx < across) & (sy < down);
            x.at[i] = within ? sx : 0.0f;
            y.at[i] = within ? sy : 0.0f;
            inside.at[i] = within ? 1.0f : 0.0f;
            found |= within;
        }
        any = found;
    }
};

/// On one axis, for each pixel of a block: the pixel that holds its place, and the share of that one in the blend with
/// the next. Odd on purpose: it has all up to its middle, and from there on falls from a half to nothing.
struct Neighbours {
    int pixel[blockPixels];
    Plane share;

    void find(const Plane& places, float size)
    {
        for (int i = 0; i < blockPixels; i++) {
            const float place = places.at[i], next = float(int(place)) + 1.0f, rest = next - place;
            const bool blends = (place + 0.5f >= next) & (next < size);
            pixel[i] = int(place);
            share.at[i] = blends ? rest : 1.0f;
        }
    }
};

/// The pixels of the picture that a block is made of, two of a row and the two below them.
struct Corners {
    std::uint32_t upper[2 * blockPixels], lower[2 * blockPixels];

    void gather(const unsigned char* const* rows, const Neighbours& across, const Neighbours& down)
    {
        for (int i = 0; i < blockPixels; i++) {
            const unsigned char* const* const row = rows + down.pixel[i];
            const std::size_t at = std::size_t(across.pixel[i]) * 4;
            std::memcpy(upper + 2 * i, row[0] + at, 8);
            std::memcpy(lower + 2 * i, row[1] + at, 8);
        }
    }

    static float channel(std::uint32_t pixel, int k)
    {
        const int shift = std::endian::native == std::endian::little ? 8 * k : 24 - 8 * k;
        return float(int(pixel >> shift & 255u));
    }

    /// Half the nearest pixel, half the blend of the four.
    float mixed(int i, int k, float h, float v) const
    {
        const float nearest = channel(upper[2 * i], k);
        const float below = (1.0f - h) * channel(lower[2 * i + 1], k) + h * channel(lower[2 * i], k);
        const float beside = (1.0f - h) * channel(upper[2 * i + 1], k) + h * nearest;
        return (below * (1.0f - v) + beside * v + nearest) * 0.5f;
    }
};

} // namespace

/// Barrel distortion: magnifies the centre and bends the picture outward, black where it does not reach.
void CharImage::makeFisheye()
{
    if (pixelCount() == 0)
        return;
    const float across = float(width), down = float(height), cx = across * 0.5f, cy = down * 0.5f;
    const double reach = std::min(cx, cy) * 0.97;
    Block block;
    Plane factor;
    Places places;
    Neighbours h, v;
    Corners corners;
    const auto bend = [&](int x, int y, const unsigned char* const* rows) {
        unsigned char* const pixels = data + (std::size_t(y) * width + x) * 4;
        const int count = std::min(blockPixels, width - x);
        block.open(pixels, count);
        places.find(x, y, factor, across, down);
        if (places.any) {
            h.find(places.x, across);
            v.find(places.y, down);
            corners.gather(rows, h, v);
            workPlanes(block, [&](Rgb, int i) {
                const float hs = h.share.at[i], vs = v.share.at[i];
                const Rgb c = {corners.mixed(i, 0, hs, vs), corners.mixed(i, 1, hs, vs), corners.mixed(i, 2, hs, vs)};
                return places.inside.at[i] > 0.0f ? c : grey(0.0f);
            });
        } else
            workPlanes(block, [](Rgb, int) { return grey(0.0f); });
        block.storePlanes([](float value) { return int(value); });
        block.close();
    };

    // From the middle row outwards, so that rows which mirror one another share their factors. A row reads at most
    // 0.14 reach nearer to the middle, where the rows are written over.
    FormerRows rows(*this, 2 * (int(reach * 0.141) + 4 + bandRows));
    for (int first = (height + 1) / 2; first <= height; first += bandRows) {
        const int end = std::min(first + bandRows, height + 1);
        for (int y = first; y < end; y++) {
            rows.keep(height - y);
            if (y < height)
                rows.keep(y);
        }
        for (int x = 0; x < width; x += blockPixels)
            for (int y = first; y < end; y++) {
                fillFactors(factor, float(x) - cx, float(y) - cy, reach);
                bend(x, height - y, rows.table());
                if (y < height)
                    bend(x, y, rows.table());
            }
    }
}

void CharImage::applyFisheyeFilter()
{
    makeFisheye();
}
