// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/passes/BlockWork.h"
#include "image/passes/EachBlock.h"
#include "image/passes/Sources.h"

namespace lumora {

// Passes over the pixels of an image. A look gives what happens to one pixel; the loops and the byte conversions live
// here. A pixel function should choose between values rather than branch, so that a whole block becomes vector code. It
// gives a colour, or one channel for a neutral one; the result is truncated and clamped to bytes.

/// Each pixel becomes what the recipe makes of it.
template <class Source, class Recipe, class ToByte = NoLevels>
void passOver(CharImage& image, Source& source, const Recipe& recipe, double error, ToByte toByte = {})
{
    BlockWork work(recipe, error, toByte);
    forEachBlock(image, [&](Block& block) { work.on(block, source.fill(block)); });
    work.finish();
}

template <class Source, class Recipe> void passOver(CharImage& image, Source& source, const Recipe& recipe)
{
    passOver(image, source, recipe, errorOfTrial(recipe, source.inputs()));
}

/// The levels of what a pass will make of the picture. They depend on every tenth pixel only: these are worked, in a
/// copy.
template <class Source, class Recipe>
Levels levelsAfter(const CharImage& image, Source& source, const Recipe& recipe, double error, const Stretch& stretch)
{
    CharImage samples = sampledPixels(image);
    passOver(samples, source, recipe, error);
    GrowArray<int> histogram;
    int minLum;
    getHistogramOfSamples(samples, &histogram, &minLum);
    return levelsOf(histogram, minLum, stretch);
}

/// A pass and fillHistogram after it, in one walk over the picture.
template <class Source, class Recipe>
void passOver(CharImage& image, Source& source, const Recipe& recipe, const Stretch& stretch)
{
    const double error = errorOfTrial(recipe, source.inputs());
    withByteOf(levelsAfter(image, source, recipe, error, stretch),
        [&](auto byteOf) { passOver(image, source, recipe, error, LevelsOnBytes<decltype(byteOf)>{byteOf}); });
}

/// Each pixel becomes `function(colour)`; `function` may be Steps. `finish` is nothing or a Stretch, to which the
/// levels of the result are stretched then.
template <class Function, class... Finish> void forEachPixel(CharImage& image, Function function, Finish... finish)
{
    Colours source;
    passOver(image, source, stepsOf(function), finish...);
}

/// The same for a function that gives a neutral colour, row by row: calls `use(makeRow)`, where `makeRow(y)` makes row
/// y of the image.
template <class Function, class Use>
void withRowsOf(CharImage& image, Function function, const Stretch& stretch, Use use)
{
    const auto recipe = stepsOf(function);
    static_assert(isNeutral<std::remove_const_t<decltype(recipe)>>);
    Colours source;
    const double error = errorOfTrial(recipe, source.inputs());
    withByteOf(levelsAfter(image, source, recipe, error, stretch), [&](auto byteOf) {
        use([&, toByte = LevelsOnBytes<decltype(byteOf)>{byteOf}](int y) {
            BlockWork work(recipe, error, toByte);
            forEachBlockOfRow(image, y, [&](Block& block, int) { work.on(block, source.fill(block)); });
            work.finish();
        });
    });
}

/// Each pixel becomes `function(colour)`, the colour taken through the levels first.
template <class Function> void forEachPixel(CharImage& image, const Levels& levels, Function function)
{
    LevelledColours source{levels};
    passOver(image, source, stepsOf(function));
}

/// Each channel becomes what its curve makes of it.
inline void forEachPixel(CharImage& image, const ByteCurve& red, const ByteCurve& green, const ByteCurve& blue)
{
    forEachBlock(image, [&](Block& block) { block.takeThrough(red, green, blue); });
}

/// Each pixel becomes `function(colour)`, the colour taken through a curve per channel first.
template <class Function>
void forEachPixel(
    CharImage& image, const ChannelCurve& red, const ChannelCurve& green, const ChannelCurve& blue, Function function)
{
    CurvedColours source{red, green, blue};
    passOver(image, source, stepsOf(function));
}

/// Each pixel becomes `function(colour, tone)`, the tone looked up by the pixel's luminance. `finish` is as above.
template <class Function, class... Finish>
void forEachPixel(CharImage& image, const ToneTable& tones, Function function, Finish... finish)
{
    TonedColours source{tones};
    passOver(image, source, stepsOf(function), finish...);
}

} // namespace lumora
