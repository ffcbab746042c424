// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/numbers/Marked.h"
#include "image/numbers/Single.h"
#include "image/passes/Block.h"
#include "image/passes/Recipe.h"
#include "image/passes/TrialError.h"

#include <algorithm>

namespace lumora {

// A recipe that makes some steps in double costs vector code twice the time. Such a recipe is tried in single precision
// throughout. Where the result stands so near to a whole number that the exact result might stand on the other side,
// the exact recipe decides, so that the bytes are always the exact ones. How near that is follows from the recipe
// itself. The technique is that of the static floating-point filters of computational geometry (Fortune and Van Wyk,
// 1993).

/// A result in parts, held at 0.5 and 255.5: beyond them the byte is certain.
inline constexpr auto inParts = [](float v) {
    const int parts = int(v * float(partsOfOne));
    const int notBelow = parts > partsOfOne / 2 ? parts : partsOfOne / 2;
    return notBelow < 255 * partsOfOne + partsOfOne / 2 ? notBelow : 255 * partsOfOne + partsOfOne / 2;
};

/// Pixels on which the trial does not decide are collected, and evaluated exactly in groups of this size.
inline constexpr int groupPixels = 8;

/// A recipe that is tried on one block after another.
template <class Recipe, class ToByte> class Trial {
public:
    const Recipe recipe;
    const ToByte toByte;

    /// `error` is how far a trial may be off.
    Trial(const Recipe& tried, double error, ToByte bytes)
        : recipe(tried)
        , toByte(bytes)
        // Two parts more: one that the result may lose when it is cut to whole parts, and one that the error loses.
        , m_reach(int(std::min(error, tolerableError) * partsOfOne) + 2)
    {
    }
    Trial(const Trial&) = delete;
    Trial& operator=(const Trial&) = delete;

    /// Works the recipe into the bytes of a block, whose planes stay as they were, and closes it. `weights` are those
    /// of its pixels, if any. Pixels of it may wait for finish().
    void work(Block& block, const float* weights)
    {
        Planes trial;
        const Planes* from = &block;
        recipe.forEach([&](const auto& step) {
            tryStep(step, *from, weights, trial);
            from = &trial;
        });
        alignas(64) unsigned char unsure[blockPixels];
        block.storeBytes([&, reach = m_reach](int i) {
            const auto parts = eachChannel(resultOf<Recipe>(trial, i), inParts);
            const auto beyondWhole = eachChannel(parts, [=](int v) { return (v + reach) & (partsOfOne - 1); });
            unsure[i] = smallest(beyondWhole) < 2 * reach ? 1 : 0;
            return eachChannel(parts, [&](int v) { return toByte.ofWhole(v >> partBits); });
        });
        block.close();
        forEachMarked(unsure, block.count(), [&](int i) { wait(block, weights, i); });
    }

    /// The exact recipe for the pixels that wait.
    void finish()
    {
        if (m_waiting > 0)
            decide();
    }

private:
    /// Compilers would rather call the many small parts of a step than put them together, if they were not told to.
    template <class Step>
    [[gnu::flatten]] static void tryStep(const Step& step, const Planes& from, const float* weights, Planes& to)
    {
        for (int i = 0; i < blockPixels; i++) {
            const Rgb before = from.colour(i);
            const auto c = applied(step, Colour<Single>{before.r, before.g, before.b}, SingleWeights{weights}, i);
            to.setColour(i, eachChannel(c, [](Single v) { return v.value; }));
        }
    }

    void wait(Block& block, const float* weights, int i)
    {
        const int j = m_waiting++;
        m_bytes[j] = block.pixel(i);
        m_colours.setColour(j, block.colour(i));
        m_weight[j] = weights ? weights[i] : 0.0f;
        if (m_waiting == groupPixels)
            decide();
    }

    /// Works a whole group, also when fewer pixels wait: the other places still hold pixels of former groups, whose
    /// results are not stored.
    void decide()
    {
        PlanesOf<groupPixels> group = m_colours;
        recipe.forEach([&](const auto& step) {
#pragma GCC unroll 1 // eight iterations written out would not become vector code
            for (int j = 0; j < groupPixels; j++)
                group.setColour(j, applied(step, group.colour(j), m_weight, j));
        });
        for (int j = 0; j < m_waiting; j++)
            Block::setBytes(m_bytes[j], eachChannel(resultOf<Recipe>(group, j), toByte));
        m_waiting = 0;
    }

    const int m_reach;
    int m_waiting = 0;
    unsigned char* m_bytes[groupPixels];
    PlanesOf<groupPixels> m_colours = {};
    float m_weight[groupPixels] = {};
};

} // namespace lumora
