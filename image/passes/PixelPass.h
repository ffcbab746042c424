#pragma once

#include "image/CharImage.h"
#include "image/passes/Block.h"
#include "image/passes/Levels.h"
#include "image/passes/Recipe.h"
#include "image/passes/ToneTable.h"
#include "image/passes/Trial.h"

#include <algorithm>
#include <limits>

namespace lumora {

// Passes over the pixels of an image. A look gives what happens to one pixel; the loops and the byte conversions live
// here. A pixel function should choose between values rather than branch, so that a whole block becomes vector code. It
// gives an Rgb, or a float for a neutral colour; the result is truncated and clamped to bytes.

/// The colour of a pixel that lies in memory.
inline Rgb pixelAt(const unsigned char* pixel)
{
    return {float(pixel[0]), float(pixel[1]), float(pixel[2])};
}

/// Visits the image in blocks: `function(block)`.
template <class Function> void forEachBlock(CharImage& image, Function function)
{
    Block block;
    const std::size_t end = image.pixelCount();
    for (std::size_t first = 0; first < end; first += blockPixels) {
        unsigned char* pixels = image.data + first * 4;
        const int count = int(std::min<std::size_t>(blockPixels, end - first));
        block.open(pixels, count);
        function(block);
        block.close();
    }
}

/// Visits those blocks of a row that `wanted(x)`: `function(block, x)`, x being the column of the block's first pixel.
template <class Wanted, class Function>
void forEachBlockOfRow(CharImage& image, int y, Wanted wanted, Function function)
{
    Block block;
    for (int x = 0; x < image.width; x += blockPixels) {
        if (!wanted(x))
            continue;
        unsigned char* pixels = image.data + (std::size_t(y) * image.width + x) * 4;
        const int count = std::min(blockPixels, image.width - x);
        block.open(pixels, count);
        function(block, x);
        block.close();
    }
}

/// Visits one row in blocks.
template <class Function> void forEachBlockOfRow(CharImage& image, int y, Function function)
{
    forEachBlockOfRow(
        image, y, [](int) { return true; }, function);
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
    int ofWhole(int v) const { return v; }
};
template <class ByteOf> struct LevelsOnBytes {
    ByteOf levels;
    int operator()(float v) const { return ofWhole(truncateAndClamp(v)); }
    int ofWhole(int v) const { return levels(float(v)); }
};

/// Works a recipe into the planes of a block and stores them as bytes. The weights are those of its pixels, if any.
template <class Recipe, class ToByte = NoLevels>
void workBlock(Block& block, const Recipe& recipe, const float* weights = nullptr, ToByte toByte = {})
{
    recipe.forEach([&](const auto& step) {
        for (int i = 0; i < blockPixels; i++)
            if constexpr (isNeutral<Recipe>)
                block.r.at[i] = applied(step, block.colour(i), weights, i);
            else
                block.setColour(i, applied(step, block.colour(i), weights, i));
    });
    if constexpr (isNeutral<Recipe>)
        block.storeGrey(toByte);
    else
        block.storePlanes(toByte);
}

/// How far a trial of the recipe may be off; infinite for one that is not written for any kind of channel.
template <class Recipe> double errorOfTrial(const Recipe& recipe, const Inputs& inputs)
{
    if constexpr (isMadeFor<Single, Recipe>)
        return errorOf(recipe, inputs);
    else
        return std::numeric_limits<double>::infinity();
}

/// Works a recipe into the bytes of one block after another, with a trial where that is worth while.
template <class Recipe, class Weights, class ToByte = NoLevels> class BlockWork {
public:
    /// `error` is that of errorOfTrial.
    BlockWork(const Recipe& recipe, double error, ToByte toByte = {})
        : m_isTried(error < tolerableError)
        , m_trial(recipe, error, toByte)
    {
    }

    bool isTried() const { return m_isTried; }

    /// The planes of the block are filled. Pixels of it may wait for finish().
    void on(Block& block, const Weights& weights)
    {
        if constexpr (isMadeFor<Single, Recipe>)
            if (m_isTried)
                return m_trial.work(block, weights);
        workBlock(block, m_trial.recipe, weights.at, m_trial.toByte);
    }
    void finish()
    {
        if constexpr (isMadeFor<Single, Recipe>)
            m_trial.finish();
    }

private:
    const bool m_isTried;
    Trial<Recipe, Weights, ToByte> m_trial;
};

/// What a pass starts from: fills the planes of a block with its colours, and gives the weights of its pixels.
struct Colours {
    Inputs inputs() const { return Inputs::ofBytes({}); }
    const float* fill(Block& block) const
    {
        block.fillPlanes();
        return nullptr;
    }
};

/// Colours taken through the levels of a picture.
struct LevelledColours {
    const Levels& levels;

    Inputs inputs() const
    {
        const ChannelRanges ranges = ChannelRanges::of(channelCurve([&](int v) { return levels(float(v)); }));
        return {ranges, ranges, ranges, {}};
    }
    const float* fill(Block& block) const
    {
        withByteOf(levels, [&](auto byteOf) { block.fillPlanes([=](float v) { return float(byteOf(v)); }); });
        return nullptr;
    }
};

/// Colours taken through a curve per channel.
struct CurvedColours {
    const ChannelCurve &red, &green, &blue;

    Inputs inputs() const { return {ChannelRanges::of(red), ChannelRanges::of(green), ChannelRanges::of(blue), {}}; }
    const float* fill(Block& block) const
    {
        block.fillPlanes(red, green, blue);
        return nullptr;
    }
};

/// Colours weighted with a tone each, looked up by their luminance.
struct TonedColours {
    const ToneTable& tones;
    Plane tone = {};

    Inputs inputs() const { return Inputs::ofBytes(tones.range()); }
    const float* fill(Block& block)
    {
        block.fillPlanes();
        tones.fill(block, tone);
        return tone.at;
    }
};

/// Each pixel becomes what the recipe makes of it.
template <class Source, class Recipe, class ToByte = NoLevels>
void passOver(CharImage& image, Source& source, const Recipe& recipe, double error, ToByte toByte = {})
{
    BlockWork<Recipe, KnownWeights, ToByte> work(recipe, error, toByte);
    forEachBlock(image, [&](Block& block) { work.on(block, {source.fill(block)}); });
    work.finish();
}

template <class Source, class Recipe> void passOver(CharImage& image, Source& source, const Recipe& recipe)
{
    passOver(image, source, recipe, errorOfTrial(recipe, source.inputs()));
}

/// A pass and fillHistogram after it, in one walk over the picture: the levels ask only for every tenth pixel, so that
/// the pass over those comes first.
template <class Source, class Recipe>
void passOver(CharImage& image, Source& source, const Recipe& recipe, const Stretch& stretch)
{
    const double error = errorOfTrial(recipe, source.inputs());
    CharImage samples = sampledPixels(image);
    passOver(samples, source, recipe, error);
    GrowArray<int> histogram;
    int minLum;
    getHistogramOfSamples(samples, &histogram, &minLum);
    withByteOf(levelsOf(histogram, minLum, stretch),
        [&](auto byteOf) { passOver(image, source, recipe, error, LevelsOnBytes<decltype(byteOf)>{byteOf}); });
}

/// Each pixel becomes `function(colour)`; `function` may be Steps. With a Stretch at the end, of this and the one with
/// tones, the levels follow.
template <class Function, class... Finish> void forEachPixel(CharImage& image, Function function, Finish... finish)
{
    Colours source;
    passOver(image, source, stepsOf(function), finish...);
}

/// Each pixel becomes `function(colour)`, the colour taken through the levels first.
template <class Function> void forEachPixel(CharImage& image, const Levels& levels, Function function)
{
    LevelledColours source{levels};
    passOver(image, source, stepsOf(function));
}

/// Each pixel becomes `function(colour)`, the colour taken through a curve per channel first.
template <class Function>
void forEachPixel(
    CharImage& image, const ChannelCurve& red, const ChannelCurve& green, const ChannelCurve& blue, Function function)
{
    CurvedColours source{red, green, blue};
    passOver(image, source, stepsOf(function));
}

/// Each pixel becomes `function(colour, tone)`, the tone looked up by the pixel's luminance.
template <class Function, class... Finish>
void forEachPixel(CharImage& image, const ToneTable& tones, Function function, Finish... finish)
{
    TonedColours source{tones};
    passOver(image, source, stepsOf(function), finish...);
}

} // namespace lumora
