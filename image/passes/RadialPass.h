// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/passes/BlockWork.h"
#include "image/passes/EachBlock.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace lumora {

// Passes whose pixels are weighted by how far they stand from a centre.

/// Each pixel becomes `function(colour, weight)`, the weight depending only on how far the pixel stands from a centre,
/// a pixel of the image, across and down. `evaluate(weights, across, down, count)` gives `count` weights, at most a
/// block of them and a multiple of 8, for the distances across[0] and down[0], across[1] and down[1], ... once for the
/// up to four pixels that mirror one another. They are numbers from `range`.low to `range`.high. Where a weight of 0
/// `keepsPixels` as they are, blocks without another weight are passed over.
template <class Evaluate, class Function>
void forEachPixelAround(CharImage& image, int centreX, int centreY, ErrorBound range, Evaluate evaluate,
    Function function, bool keepsPixels = false)
{
    const int reachX = std::max(centreX, image.width - 1 - centreX);
    const int reachY = std::max(centreY, image.height - 1 - centreY);
    std::vector<int> across(std::size_t(reachX / 8 + 1) * 8);
    std::iota(across.begin(), across.end(), 0);
    std::vector<float> half(across.size());
    std::vector<float> row(inWholeBlocks(image.width));
    std::vector<int> down(blockPixels);
    const auto recipe = stepsOf(function);
    BlockWork work(recipe, errorOfTrial(recipe, Inputs::ofBytes(range)), NoLevels());
    const auto workRow = [&](int y) {
        const auto changes = [&](int x) {
            if (!keepsPixels)
                return true;
            int found = 0;
            for (int i = 0; i < blockPixels; i++)
                found |= row[std::size_t(x + i)] != 0.0f;
            return found != 0;
        };
        forEachBlockOfRow(image, y, changes, [&](Block& block, int x) {
            block.fillPlanes();
            work.on(block, row.data() + x);
        });
    };
    for (int dy = 0; dy <= reachY; dy++) {
        std::fill(down.begin(), down.end(), dy);
        for (std::size_t dx = 0; dx < half.size(); dx += blockPixels)
            evaluate(half.data() + dx, across.data() + dx, down.data(),
                int(std::min<std::size_t>(blockPixels, half.size() - dx)));
        for (int x = 0; x < centreX; x++)
            row[x] = half[centreX - x];
        for (int x = centreX; x < image.width; x++)
            row[x] = half[x - centreX];
        if (centreY + dy < image.height)
            workRow(centreY + dy);
        if (dy > 0 && centreY - dy >= 0)
            workRow(centreY - dy);
    }
    work.finish();
}

} // namespace lumora
