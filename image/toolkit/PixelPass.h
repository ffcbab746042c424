#pragma once

#include "image/CharImage.h"
#include "image/toolkit/Block.h"
#include "image/toolkit/Levels.h"
#include "image/toolkit/ToneTable.h"

#include <algorithm>
#include <cstdlib>
#include <type_traits>
#include <vector>

// Passes over the pixels of an image. A look gives what happens to one pixel; the loops and the byte conversions live
// here. A pixel function should choose between values rather than branch, so that a whole block becomes vector code. It
// gives an Rgb, or a float for a neutral colour; the result is truncated and clamped to bytes.

/// The colour of a pixel that lies in memory.
inline Rgb pixelAt(const unsigned char* pixel)
{
    return {float(pixel[0]), float(pixel[1]), float(pixel[2])};
}

/// Visits the image in blocks: `function(block, first, count)`, the pixels being `count` from the pixel `first` on.
template <class Function> void forEachNumberedBlock(CharImage& image, Function function)
{
    Block block;
    const std::size_t end = image.pixelCount();
    for (std::size_t first = 0; first < end; first += blockPixels) {
        unsigned char* pixels = image.data + first * 4;
        const int count = int(std::min<std::size_t>(blockPixels, end - first));
        block.read(pixels, count);
        function(block, first, count);
        block.write(pixels, count);
    }
}

/// The same where the place does not matter: `function(block)`.
template <class Function> void forEachBlock(CharImage& image, Function function)
{
    forEachNumberedBlock(image, [&](Block& block, std::size_t, int) { function(block); });
}

/// Visits one row in blocks: `function(block, x)`, x being the column of the block's first pixel.
template <class Function> void forEachBlockOfRow(CharImage& image, int y, Function function)
{
    Block block;
    for (int x = 0; x < image.width; x += blockPixels) {
        unsigned char* pixels = image.data + (std::size_t(y) * image.width + x) * 4;
        const int count = std::min(blockPixels, image.width - x);
        block.read(pixels, count);
        function(block, x);
        block.write(pixels, count);
    }
}

/// Works `function(colour, i)` into the planes of a block.
template <class Function> inline void workPlanes(Block& block, Function function)
{
    for (int i = 0; i < blockPixels; i++)
        block.setColour(i, function(block.colour(i), i));
}

/// What `function(colour)` gives for each pixel of a block.
template <class Function> inline Plane planeOf(const Block& block, Function function)
{
    Plane plane;
    for (int i = 0; i < blockPixels; i++)
        plane.at[i] = function(block.colour(i));
    return plane;
}

/// How the values of a pass become bytes: truncated and clamped, and then perhaps taken through the levels.
struct NoLevels {
    int operator()(float v) const { return truncateAndClamp(v); }
};
struct LevelsOnBytes {
    Levels levels;
    int operator()(float v) const { return levels.byteOf(float(truncateAndClamp(v))); }
};

/// Works `function(colour, i)` into the planes of a block and stores them as bytes.
template <class Function, class ToByte = NoLevels>
inline void workBlock(Block& block, Function function, ToByte toByte = {})
{
    if constexpr (std::is_same_v<decltype(function(Rgb {}, 0)), float>) {
        for (int i = 0; i < blockPixels; i++)
            block.r.at[i] = function(block.colour(i), i);
        block.storeGrey(toByte);
    } else {
        workPlanes(block, function);
        block.storePlanes(toByte);
    }
}

/// What a pass starts from: fills the planes of a block with its colours.
struct Colours {
    void fill(Block& block) { block.fillPlanes(); }
    template <class Function> auto with(Function& function)
    {
        return [&](Rgb c, int) { return function(c); };
    }
};

/// Colours taken through a curve per channel.
struct CurvedColours {
    const ChannelCurve &red, &green, &blue;

    void fill(Block& block) { block.fillPlanes(red, green, blue); }
    template <class Function> auto with(Function& function)
    {
        return [&](Rgb c, int) { return function(c); };
    }
};

/// Colours with a tone each, looked up by their luminance.
struct TonedColours {
    const ToneTable& tones;
    Plane tone = {};

    void fill(Block& block)
    {
        block.fillPlanes();
        tones.fill(block, tone);
    }
    template <class Function> auto with(Function& function)
    {
        return [&](Rgb c, int i) { return function(c, tone.at[i]); };
    }
};

template <class Source, class Function, class ToByte = NoLevels>
void passOver(CharImage& image, Source source, Function& function, ToByte toByte = {})
{
    forEachBlock(image, [&](Block& block) {
        source.fill(block);
        workBlock(block, source.with(function), toByte);
    });
}

/// A pass and fillHistogram after it, in one walk over the picture: the levels ask only for every tenth pixel, so that the
/// pass over those comes first.
template <class Source, class Function>
void passOver(CharImage& image, Source source, Function& function, const Stretch& stretch)
{
    CharImage samples = sampledPixels(image);
    passOver(samples, source, function);
    GrowArray<int> histogram;
    int minLum;
    getHistogramOfSamples(samples, &histogram, &minLum);
    passOver(image, source, function, LevelsOnBytes {levelsOf(histogram, minLum, stretch)});
}

/// Each pixel becomes `function(colour)`. With a Stretch at the end, of this and the others, the levels follow.
template <class Function, class... Finish>
    requires std::is_invocable_v<Function, Rgb>
void forEachPixel(CharImage& image, Function function, Finish... finish)
{
    passOver(image, Colours {}, function, finish...);
}

/// Each pixel becomes `function(colour)`, the colour taken through a curve per channel first.
template <class Function, class... Finish>
void forEachPixel(CharImage& image, const ChannelCurve& red, const ChannelCurve& green, const ChannelCurve& blue,
    Function function, Finish... finish)
{
    passOver(image, CurvedColours {red, green, blue}, function, finish...);
}

/// Each pixel becomes `function(colour, tone)`, the tone looked up by the pixel's luminance.
template <class Function, class... Finish>
void forEachPixel(CharImage& image, const ToneTable& tones, Function function, Finish... finish)
{
    passOver(image, TonedColours {tones}, function, finish...);
}

/// Visits the image in blocks with a weight per pixel that depends only on how far the pixel stands from a centre, a pixel
/// of the image, across and down. `evaluate(plane, dx, dy)` fills a plane with the weights for the distances across dx,
/// dx + 1, ... and the distance down dy, once for the up to four pixels that mirror one another. `function(block,
/// weights)` works on the planes of the block, which are then stored.
template <class Evaluate, class Function>
void forEachBlockAround(CharImage& image, int centreX, int centreY, Evaluate evaluate, Function function)
{
    const auto inWholeBlocks = [](int count) { return (std::size_t(count) + blockPixels - 1) / blockPixels * blockPixels; };
    const int reachX = std::max(centreX, image.width - 1 - centreX);
    const int reachY = std::max(centreY, image.height - 1 - centreY);
    std::vector<float> half(inWholeBlocks(reachX + 1)), row(inWholeBlocks(image.width));
    const auto work = [&](int y) {
        forEachBlockOfRow(image, y, [&](Block& block, int x) {
            block.fillPlanes();
            function(block, row.data() + x);
            block.storePlanes();
        });
    };
    for (int dy = 0; dy <= reachY; dy++) {
        for (int dx = 0; dx <= reachX; dx += blockPixels) {
            Plane plane;
            evaluate(plane, dx, dy);
            std::memcpy(half.data() + dx, plane.at, sizeof plane.at);
        }
        for (int x = 0; x < image.width; x++)
            row[x] = half[std::abs(x - centreX)];
        if (centreY + dy < image.height)
            work(centreY + dy);
        if (dy > 0 && centreY - dy >= 0)
            work(centreY - dy);
    }
}
