#pragma once

#include "image/CharImage.h"
#include "image/toolkit/Block.h"
#include "image/toolkit/Levels.h"
#include "image/toolkit/ToneTable.h"

#include <algorithm>
#include <type_traits>

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
    const std::size_t count = image.pixelCount();
    for (std::size_t i = 0; i < count; i += blockPixels) {
        unsigned char* pixels = image.data + i * 4;
        const int inBlock = int(std::min<std::size_t>(blockPixels, count - i));
        block.read(pixels, inBlock);
        function(block);
        block.write(pixels, inBlock);
    }
}

/// Works `function(colour, i)` into the planes of a block and stores them.
template <class Function> inline void workBlock(Block& block, Function function)
{
    if constexpr (std::is_same_v<decltype(function(Rgb{}, 0)), float>) {
        for (int i = 0; i < blockPixels; i++)
            block.r.at[i] = function(block.colour(i), i);
        block.storeGrey();
    } else {
        for (int i = 0; i < blockPixels; i++)
            block.setColour(i, function(block.colour(i), i));
        block.storePlanes();
    }
}

/// Each pixel becomes `function(colour)`.
template <class Function> void forEachPixel(CharImage& image, Function function)
{
    forEachBlock(image, [&](Block& block) {
        block.fillPlanes();
        workBlock(block, [&](Rgb c, int) { return function(c); });
    });
}

/// Each pixel becomes `function(colour)`, the colour taken through a curve per channel first.
template <class Function>
void forEachPixel(
    CharImage& image, const ChannelCurve& red, const ChannelCurve& green, const ChannelCurve& blue, Function function)
{
    forEachBlock(image, [&](Block& block) {
        block.fillPlanes(red, green, blue);
        workBlock(block, [&](Rgb c, int) { return function(c); });
    });
}

/// Each pixel becomes `function(colour, tone)`, the tone looked up by the pixel's luminance.
template <class Function> void forEachPixel(CharImage& image, const ToneTable& tones, Function function)
{
    Plane tone;
    forEachBlock(image, [&](Block& block) {
        block.fillPlanes();
        tones.fill(block, tone);
        workBlock(block, [&](Rgb c, int i) { return function(c, tone.at[i]); });
    });
}

/// Each pixel becomes `function(colour, x, y)`.
template <class Function> void forEachPixelAt(CharImage& image, Function function)
{
    for (int y = 0; y < image.height; y++) {
        unsigned char* pixel = image.data + std::size_t(y) * image.width * 4;
        for (int x = 0; x < image.width; x++, pixel += 4) {
            const Rgb c = function(pixelAt(pixel), x, y);
            pixel[0] = static_cast<unsigned char>(truncateAndClamp(c.r));
            pixel[1] = static_cast<unsigned char>(truncateAndClamp(c.g));
            pixel[2] = static_cast<unsigned char>(truncateAndClamp(c.b));
        }
    }
}
