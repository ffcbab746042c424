// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/numbers/Disc.h"
#include "image/passes/Block.h"
#include "image/passes/DelayedRows.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <vector>

namespace lumora {

namespace {

// The picture is made in tiles: neighbouring pixels read nearly the same ones, a tile's stay in the first-level cache.
constexpr int tilePixels = 64; ///< of a row
constexpr int tileRows = 16;

/// How far out each pixel of a row is read, compared with the pixels at the centre, at the distance `dy` down from
/// there. Columns that mirror one another have the same factor.
class FactorRow {
public:
    explicit FactorRow(int width)
        : m_factors(inWholeBlocks(width + 1))
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

/// On one axis, for each pixel of a tile's row: where it is read.
struct Axis {
    float inside[tilePixels]; ///< 1 where that lies in the picture, else 0
    bool any; ///< of the pixels
    int pixel[tilePixels]; ///< the one that holds the place
    /// That one's share in the blend with the next. Odd on purpose: it has all up to its middle, and from there on
    /// falls from a half to nothing.
    float share[tilePixels];

    /// The pixels stand at first, first + step, ... of `size`.
    void find(int first, int step, const float* factor, float size)
    {
        float places[tilePixels];
        int found = 0;
        for (int i = 0; i < tilePixels; i++) {
            const float place = placeOf(float(first + i * step), factor[i], size);
            const bool within = (place >= 0.0f) & (place < size);
            places[i] = within ? place : 0.0f;
            inside[i] = within ? 1.0f : 0.0f;
            found |= within;
        }
        any = found;
        for (int i = 0; i < tilePixels; i++) {
            const float place = places[i], next = float(int(place)) + 1.0f, rest = next - place;
            const bool blends = (place + 0.5f >= next) & (next < size);
            pixel[i] = int(place);
            share[i] = blends ? rest : 1.0f;
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

/// The pixels of the picture that a tile's row is made of, two of a row and the two below them.
struct Corners {
    std::uint32_t upper[2 * tilePixels], lower[2 * tilePixels];

    /// Where the picture has no next pixel or row, any pixel stands for it. It has less than 2^32 pixels.
    void gather(const CharImage& picture, const Axis& across, const Axis& down)
    {
        const std::uint32_t width = std::uint32_t(picture.width);
        std::uint32_t first[tilePixels], furthest = 0;
        for (int i = 0; i < tilePixels; i++) {
            first[i] = std::uint32_t(down.pixel[i]) * width + std::uint32_t(across.pixel[i]);
            furthest = larger(furthest, first[i]);
        }
        const std::size_t count = picture.pixelCount();
        if (furthest + std::size_t(width) + 2 > count)
            return gatherAtTheEnd(picture.data, first, width, count - 1);
        const unsigned char *const row = picture.data, *const next = row + std::size_t(width) * 4;
        // The next tile's row begins about where this one ends; the processor cannot foresee that.
        const std::uint32_t length = first[tilePixels - 1] - first[0];
        for (int i = 0; i < tilePixels; i += 8)
            __builtin_prefetch(row + std::min(std::size_t(first[i] + length), count - 1) * 4);
        for (int i = 0; i < tilePixels; i++) {
            const std::size_t at = std::size_t(first[i]) * 4;
            std::memcpy(upper + 2 * i, row + at, 8);
            std::memcpy(lower + 2 * i, next + at, 8);
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

private:
    void gatherAtTheEnd(const unsigned char* pixels, const std::uint32_t* first, std::size_t width, std::size_t last)
    {
        const auto pixel = [=](std::size_t at) {
            std::uint32_t p;
            std::memcpy(&p, pixels + std::min(at, last) * 4, 4);
            return p;
        };
        for (int i = 0; i < tilePixels; i++) {
            const std::size_t at = first[i];
            upper[2 * i] = pixel(at);
            upper[2 * i + 1] = pixel(at + 1);
            lower[2 * i] = pixel(at + width);
            lower[2 * i + 1] = pixel(at + width + 1);
        }
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
    // A row reads at most 0.14 reach nearer to the middle, where rows are made before it.
    DelayedRows rows(*this, 2 * (int(reach * 0.141) + 4 + tileRows));
    std::vector<FactorRow> factors(tileRows, FactorRow(width));
    unsigned char *above[tileRows], *below[tileRows];
    Axis h, v;
    Corners corners;
    // One row of a tile.
    const auto bend = [&](unsigned char* row, int x, int y, const float* factor) {
        unsigned char* __restrict to = row + std::size_t(x) * 4;
        v.find(y, 0, factor, down);
        if (h.any && v.any) {
            corners.gather(*this, h, v);
            for (int i = 0; i < tilePixels; i++) {
                const float hs = h.share[i], vs = v.share[i];
                const Rgb mix = {corners.mixed(i, 0, hs, vs), corners.mixed(i, 1, hs, vs), corners.mixed(i, 2, hs, vs)};
                const Rgb c = h.inside[i] * v.inside[i] > 0.0f ? mix : grey(0.0f);
                Block::setBytes(to + 4 * i, eachChannel(c, [](float value) { return int(value); }));
            }
        } else
            std::memset(to, 0, tilePixels * 4);
    };

    // From the middle row outwards: rows that mirror one another share what they have across.
    for (int first = (height + 1) / 2; first <= height; first += tileRows) {
        const int end = std::min(first + tileRows, height + 1);
        for (int y = first; y < end; y++) {
            const int k = y - first;
            above[k] = rows.begin(height - y);
            below[k] = y < height ? rows.begin(y) : nullptr;
            factors[std::size_t(k)].fill(float(y) - cy, reach);
        }
        for (int x = 0; x < width; x += tilePixels)
            for (int y = first; y < end; y++) {
                const int k = y - first;
                const float* factor = factors[std::size_t(k)].from(x);
                h.find(x, 1, factor, across);
                bend(above[k], x, height - y, factor);
                if (below[k])
                    bend(below[k], x, y, factor);
            }
    }
    rows.finish();
}

void CharImage::applyFisheyeFilter()
{
    makeFisheye();
}

} // namespace lumora
