// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/CharImage.h"
#include "image/passes/Block.h"

#include <algorithm>

namespace lumora {

// The walks over an image that hand out one block after another.

/// Asks the memory for the block that begins with a pixel of the image, if it lies in the image: it comes while the one
/// before it is worked on. A processor foresees no more than the rest of a page by itself.
inline void askForBlock(const CharImage& image, std::size_t first)
{
    constexpr int line = 64; // bytes that come at a time
    if (first + blockPixels <= image.pixelCount())
        for (int i = 0; i < blockPixels * 4; i += line)
            __builtin_prefetch(image.data + first * 4 + i, 1);
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
        askForBlock(image, first + blockPixels);
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
        const std::size_t first = std::size_t(y) * image.width + x;
        const int count = std::min(blockPixels, image.width - x);
        block.open(image.data + first * 4, count);
        askForBlock(image, first + blockPixels);
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

} // namespace lumora
