// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/passes/Block.h"
#include "image/passes/Recipe.h"
#include "image/passes/ToByte.h"
#include "image/passes/Trial.h"
#include "image/passes/TrialError.h"

namespace lumora {

/// Works a recipe into the planes of a block and stores them as bytes. The weights are those of its pixels, if any.
template <class Recipe, class ToByte = NoLevels>
void workBlock(Block& block, const Recipe& recipe, const float* weights = nullptr, ToByte toByte = {})
{
    recipe.forEach([&](const auto& step) {
        for (int i = 0; i < blockPixels; i++)
            block.setColour(i, applied(step, block.colour(i), weights, i));
    });
    block.storeBytes([&](int i) { return eachChannel(resultOf<Recipe>(block, i), toByte); });
}

/// Works a recipe into the bytes of one block after another, with a trial where that is worth while.
template <class Recipe, class ToByte> class BlockWork {
public:
    /// `error` is that of errorOfTrial.
    BlockWork(const Recipe& recipe, double error, ToByte toByte)
        : m_isTried(error < tolerableError)
        , m_trial(recipe, error, toByte)
    {
    }

    /// The planes of the block are filled; `weights` are those of its pixels, if any. Pixels of it may wait for
    /// finish().
    void on(Block& block, const float* weights)
    {
        if constexpr (isMadeFor<Single, Recipe>)
            if (m_isTried)
                return m_trial.work(block, weights);
        workBlock(block, m_trial.recipe, weights, m_trial.toByte);
    }
    void finish()
    {
        if constexpr (isMadeFor<Single, Recipe>)
            m_trial.finish();
    }

private:
    const bool m_isTried;
    Trial<Recipe, ToByte> m_trial;
};

} // namespace lumora
