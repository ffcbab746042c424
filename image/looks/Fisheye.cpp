#include "image/toolkit/Disc.h"
#include "image/toolkit/FormerRows.h"
#include "image/toolkit/PixelPass.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <vector>

namespace {

/// Rows that are worked on block by block together, as they read nearly the same pixels.
constexpr int bandRows = 8;

/// How far out each pixel of a row is read, compared with the pixels at the centre, at the distance `dy` down from
/// there. Columns that mirror one another have the same factor.
class FactorRow {
public:
    explicit FactorRow(int width)
        : m_factors(std::size_t(width / blockPixels + 1) * blockPixels)
        , m_width(width)
    {
    }
    void fill(float dy, double reach)
    {
        const int middle = m_width / 2;
        const float centre = float(m_width) * 0.5f;
        for (int x = middle; x < int(m_factors.size()); x++) {
            const float q = float(distance(float(x) - centre, dy) / reach);
            m_factors[std::size_t(x)] = float(q * q * 0.45 + 1.0);
        }
        for (int x = 0; x < middle; x++)
            m_factors[std::size_t(x)] = m_factors[std::size_t(m_width - x)];
    }
    const float* from(int x) const { return m_factors.data() + x; }

private:
    std::vector<float> m_factors;
    int m_width;
};

/// On one axis, for each pixel of a block: where it is read.
struct Axis {
    Plane inside; ///< 1 where that lies in the picture, else 0
    bool any; ///< of the pixels
    int pixel[blockPixels]; ///< the one that holds the place
    /// That one's share in the blend with the next. Odd on purpose: it has all up to its middle, and from there on
    /// falls from a half to nothing.
    Plane share;

    /// The block's pixels stand at first, first + step, ... of `size`.
    void find(int first, int step, const float* factor, float size)
    {
        Plane places;
        int found = 0;
        for (int i = 0; i < blockPixels; i++) {
            const float place = placeOf(float(first + i * step), factor[i], size);
            const bool within = (place >= 0.0f) & (place < size);
            places.at[i] = within ? place : 0.0f;
            inside.at[i] = within ? 1.0f : 0.0f;
            found |= within;
        }
        any = found;
        for (int i = 0; i < blockPixels; i++) {
            const float place = places.at[i], next = float(int(place)) + 1.0f, rest = next - place;
            const bool blends = (place + 0.5f >= next) & (next < size);
            pixel[i] = int(place);
            share.at[i] = blends ? rest : 1.0f;
        }
    }

private:
    /// Nearly centre + 0.66 factor (at - centre); the detour over the picture's size rounds differently and is kept.
    static float placeOf(float at, float factor, float size)
    {
        const float centre = size * 0.5f;
        return (((at - centre) * factor + centre) / size * size - centre) * 0.66f + centre;
    }
};

/// The pixels of the picture that a block is made of, two of a row and the two below them.
struct Corners {
    std::uint32_t upper[2 * blockPixels], lower[2 * blockPixels];

    void gather(const unsigned char* const* rows, const Axis& across, const Axis& down)
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
    // A row reads at most 0.14 reach nearer to the middle, where the rows are written over.
    FormerRows rows(*this, 2 * (int(reach * 0.141) + 4 + bandRows));
    Block block;
    std::vector<FactorRow> factors(bandRows, FactorRow(width));
    Axis h, v;
    Corners corners;
    const auto bend = [&](int x, int y, const float* factor) {
        unsigned char* const pixels = data + (std::size_t(y) * width + x) * 4;
        block.open(pixels, std::min(blockPixels, width - x));
        v.find(y, 0, factor, down);
        if (h.any && v.any) {
            corners.gather(rows.table(), h, v);
            workPlanes(block, [&](Rgb, int i) {
                const float hs = h.share.at[i], vs = v.share.at[i];
                const Rgb c = {corners.mixed(i, 0, hs, vs), corners.mixed(i, 1, hs, vs), corners.mixed(i, 2, hs, vs)};
                return h.inside.at[i] * v.inside.at[i] > 0.0f ? c : grey(0.0f);
            });
        } else
            workPlanes(block, [](Rgb, int) { return grey(0.0f); });
        block.storePlanes([](float value) { return int(value); });
        block.close();
    };

    // From the middle row outwards: rows that mirror one another share what they have across.
    for (int first = (height + 1) / 2; first <= height; first += bandRows) {
        const int end = std::min(first + bandRows, height + 1);
        for (int y = first; y < end; y++) {
            rows.keep(height - y);
            if (y < height)
                rows.keep(y);
            factors[std::size_t(y - first)].fill(float(y) - cy, reach);
        }
        for (int x = 0; x < width; x += blockPixels)
            for (int y = first; y < end; y++) {
                const float* factor = factors[std::size_t(y - first)].from(x);
                h.find(x, 1, factor, across);
                bend(x, height - y, factor);
                if (y < height)
                    bend(x, y, factor);
            }
    }
}

void CharImage::applyFisheyeFilter()
{
    makeFisheye();
}
