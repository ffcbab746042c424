#pragma once

#include "image/numbers/Power.h"
#include "image/passes/BlockWork.h"
#include "image/passes/EachBlock.h"

#include <cstdlib>
#include <numeric>
#include <type_traits>
#include <vector>

namespace lumora {

// Passes whose pixels are weighted by how far they stand from a centre.

/// The weights of a block's pixels in forEachPixelAround. A trial has them nearly.
template <class Evaluate> struct RadialWeights {
    const float* at; ///< as the trial has them
    const Evaluate* evaluate;
    int across, down; ///< of the block's first pixel, from the centre
    bool zeroKeeps;

    bool keep(int i) const { return zeroKeeps & (at[i] == 0.0f); }

    struct Group {
        int across[groupPixels] = {}, down[groupPixels] = {};
        const Evaluate* evaluateAt = nullptr;

        void set(int j, const RadialWeights& weights, int i)
        {
            across[j] = std::abs(weights.across + i);
            down[j] = weights.down;
            evaluateAt = weights.evaluate;
        }
        void evaluate(float* exact) const { (*evaluateAt)(raise, exact, across, down, groupPixels); }
    };
};

/// Each pixel becomes `function(colour, weight)`, the weight depending only on how far the pixel stands from a centre,
/// a pixel of the image, across and down. `evaluate(toPower, weights, across, down, count)` gives `count` weights, at
/// most a block of them and a multiple of 8, for the distances across[0] and down[0], across[1] and down[1], ... once
/// for the up to four pixels that mirror one another. `range` is what they may be if it raises by raiseNearly. Where a
/// weight of 0 `keepsPixels`, blocks without another weight are passed over; raiseNearly must then leave no other
/// weight at 0 than raise does.
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
    const double error = errorOfTrial(recipe, Inputs::ofBytes(range));
    BlockWork<std::remove_const_t<decltype(recipe)>, RadialWeights<Evaluate>> work(recipe, error);
    const Raise toPower = work.isTried() ? raiseNearly : raise;
    const auto workRow = [&](int y, int dy) {
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
            work.on(block, {row.data() + x, &evaluate, x - centreX, dy, keepsPixels});
        });
    };
    for (int dy = 0; dy <= reachY; dy++) {
        std::fill(down.begin(), down.end(), dy);
        for (std::size_t dx = 0; dx < half.size(); dx += blockPixels)
            evaluate(toPower, half.data() + dx, across.data() + dx, down.data(),
                int(std::min<std::size_t>(blockPixels, half.size() - dx)));
        for (int x = 0; x < centreX; x++)
            row[x] = half[centreX - x];
        for (int x = centreX; x < image.width; x++)
            row[x] = half[x - centreX];
        if (centreY + dy < image.height)
            workRow(centreY + dy, dy);
        if (dy > 0 && centreY - dy >= 0)
            workRow(centreY - dy, dy);
    }
    work.finish();
}

} // namespace lumora
