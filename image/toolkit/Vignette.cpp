// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/toolkit/Vignette.h"

#include "image/CharImage.h"
#include "image/numbers/Disc.h"
#include "image/numbers/Power.h"
#include "image/passes/RadialPass.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace lumora {

namespace {

/// The kernel size of the edge softening for a longer side of `side` pixels, 7 at most.
int softeningSize(int side)
{
    const double size = float(side) * 0.005;
    return size >= 7.0 ? 7 : int(size);
}

/// What happens to the pixels of a picture, by how far they stand from its centre.
struct Shade {
    float innerRadius, outerRadius, exponent, strength;
    bool boostSaturation;
    float end = std::numeric_limits<float>::infinity(); ///< the radius from which on nothing is darkened

    /// Where `count` pixels stand, so many columns and rows from the centre: from 0 at the inner to 1 at the
    /// outer radius.
    void placeAt(float* t, const int* across, const int* down, int count) const
    {
        const float inner = innerRadius, span = outerRadius - innerRadius, last = end;
        for (int i = 0; i < count; i++) {
            const float d = distance(float(across[i]), float(down[i])), place = (d - inner) / span;
            t[i] = d < last ? place : -1.0f;
        }
    }

    /// The same for neighbours in a row, at most a block of them.
    void placeRowAt(float* t, int firstAcross, int down, int count) const
    {
        int across[blockPixels], downs[blockPixels];
        std::iota(across, across + count, firstAcross);
        std::fill_n(downs, count, down);
        placeAt(t, across, downs, count);
    }

    /// How far pixels at these places, at most a block of them, are darkened, 0 .. 1: `t` becomes it. Within the inner
    /// radius it is 0.
    void becomeDarkness(float* t, int count) const
    {
        int reached = 0;
        for (int i = 0; i < count; i++)
            reached |= !(t[i] < 0.0f);
        if (!reached) {
            std::fill_n(t, count, 0.0f);
            return;
        }
        float a[blockPixels], e[blockPixels];
        for (int i = 0; i < count; i++)
            a[i] = e[i] = t[i] < 0.0f ? 1.0f : t[i];
        raise(a, count, 1.5f);
        raise(e, count, exponent);
        for (int i = 0; i < count; i++) {
            const float dark = ((1.0f - a[i]) * e[i] + t[i] * a[i]) * strength;
            const float held = dark < 0.0f ? 0.0f : dark < 1.0f ? dark : 1.0f; // what is no number is black, too
            t[i] = t[i] < 0.0f ? 0.0f : held;
        }
    }

    template <class Channel> Colour<Channel> darkened(Colour<Channel> c, Channel level, Channel dark) const
    {
        if (boostSaturation)
            c = eachChannel(c, [=](Channel v) { return v * (1.0f + dark) - dark * level; });
        return eachChannel(c, [=](Channel v) { return (1.0f - dark) * v; });
    }

    void darken(CharImage& image) const
    {
        const auto darknessAt = [this](float* weights, const int* across, const int* down, int count) {
            placeAt(weights, across, down, count);
            becomeDarkness(weights, count);
        };
        const auto darkenedByte = [*this](auto c, auto dark) {
            // Half a step above a byte that stays is the same byte, and too far from a whole number to leave a trial in
            // doubt.
            const auto stays = dark < 0x1p-60f;
            const auto become = darkened(c, byteLuminance(c), dark);
            return Colour{select(stays, c.r + 0.5f, become.r), select(stays, c.g + 0.5f, become.g),
                select(stays, c.b + 0.5f, become.b)};
        };
        forEachPixelAround(image, image.width / 2, image.height / 2, {0.0, 1.0}, darknessAt, darkenedByte, true);
    }

    /// The same, visiting only the pixels between the inner radius and the end.
    void darkenRing(CharImage& image) const
    {
        const int cx = image.width / 2, cy = image.height / 2;
        for (int y = 0; y < image.height; y++) {
            const int dy = y - cy, last = columnsWithin(end, dy) - 1;
            unsigned char* centre = image.data + (std::size_t(y) * image.width + cx) * 4;
            constexpr int part = 32; // a ring is a few pixels wide
            for (int dx = columnsWithin(innerRadius, dy); dx <= last; dx += part) {
                float dark[part];
                placeRowAt(dark, dx, dy, part);
                becomeDarkness(dark, part);
                for (int i = 0; i < part && dx + i <= last; i++) {
                    if (cx + dx + i < image.width)
                        darkenPixel(centre + (dx + i) * 4, dark[i]);
                    if (dx + i > 0 && cx - dx - i >= 0)
                        darkenPixel(centre - (dx + i) * 4, dark[i]);
                }
            }
        }
    }

private:
    void darkenPixel(unsigned char* pixel, float dark) const
    {
        const Rgb c = pixelAt(pixel), shaded = darkened(c, byteLuminance(c), dark);
        pixel[0] = static_cast<unsigned char>(truncateAndClamp(shaded.r));
        pixel[1] = static_cast<unsigned char>(truncateAndClamp(shaded.g));
        pixel[2] = static_cast<unsigned char>(truncateAndClamp(shaded.b));
    }
};

/// The share of the blurred copy at `t`.
float softness(float t)
{
    const float u = float(t - 0.2);
    return u > 1.0f ? 1.0f : u > 0.0f ? u : 0.0f;
}

} // namespace

void vignetteDisc(
    CharImage& image, float innerRadius, float radius, float exponent, float strength, bool boostSaturation)
{
    Shade{innerRadius, radius, exponent, strength, boostSaturation, radius}.darken(image);
}

void vignetteRing(
    CharImage& image, float innerRadius, float radius, float exponent, float strength, bool boostSaturation)
{
    Shade{innerRadius, radius, exponent, strength, boostSaturation, radius}.darkenRing(image);
}

void CharImage::vignette(
    float innerRadius, float outerRadius, float exponent, float strength, bool boostSaturation, bool softenEdges)
{
    const Shade shade{innerRadius, outerRadius, exponent, strength, boostSaturation};
    if (!softenEdges)
        return shade.darken(*this);

    CharImage blurred(*this);
    blurred.makeBlurry(softeningSize(std::max(width, height)), 0.0f);
    const auto softenAndDarken = [&](Block& block, int x, int y) {
        Plane t, dark;
        shade.placeRowAt(t.at, x - width / 2, y - height / 2, blockPixels);
        dark = t;
        shade.becomeDarkness(dark.at, blockPixels);
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
        workBlock(
            block, Steps([&](Rgb c, float darkness) { return shade.darkened(c, luminance(c), darkness); }), dark.at);
    };
    for (int y = 0; y < height; y++)
        forEachBlockOfRow(*this, y, [&](Block& block, int x) { softenAndDarken(block, x, y); });
}

} // namespace lumora
