#pragma once

#include "image/toolkit/Block.h"
#include "image/toolkit/ErrorBound.h"
#include "image/toolkit/Recipe.h"
#include "image/toolkit/Single.h"

#include <algorithm>

// A recipe that makes some steps in double costs vector code twice the time. Such a recipe is tried in single precision
// throughout. Where the result stands so near to a whole number that the exact result might stand on the other side,
// the exact recipe decides, so that the bytes are always the exact ones. How near that is follows from the recipe
// itself. The technique is that of the static floating-point filters of computational geometry (Fortune and Van Wyk,
// 1993).

/// What a picture may hold in a channel, in a few ranges: the narrower they are, the closer are the bounds.
inline constexpr int rangesPerChannel = 4;
struct ChannelRanges {
    ErrorBound at[rangesPerChannel];

    /// Bytes as they are.
    static ChannelRanges ofBytes()
    {
        ChannelRanges ranges;
        for (int k = 0; k < rangesPerChannel; k++)
            ranges.at[k] = {k * 256.0 / rangesPerChannel, (k + 1) * 256.0 / rangesPerChannel - 1.0};
        return ranges;
    }

    /// Bytes that a curve has changed.
    static ChannelRanges of(const ChannelCurve& curve)
    {
        constexpr int length = 256 / rangesPerChannel;
        ChannelRanges ranges;
        for (int k = 0; k < rangesPerChannel; k++) {
            const auto [lowest, highest] = std::minmax_element(curve.at + k * length, curve.at + (k + 1) * length);
            ranges.at[k] = {*lowest, *highest};
        }
        return ranges;
    }
};

/// All that a recipe may be given.
struct Inputs {
    ChannelRanges red, green, blue;
    ErrorBound weight;

    static Inputs ofBytes(ErrorBound weight)
    {
        return {ChannelRanges::ofBytes(), ChannelRanges::ofBytes(), ChannelRanges::ofBytes(), weight};
    }
};

/// The results of a trial are compared with whole numbers in such parts of 1.
inline constexpr int partBits = 14, partsOfOne = 1 << partBits;
inline constexpr double largestResult = 2147483647.0 / partsOfOne;

/// Errors up to which a trial saves time.
inline constexpr double tolerableError = 0.05;

/// How far the trial of a recipe may be off in a channel; infinite where it is not worth while.
template <class... Step> double errorOf(const Steps<Step...>& steps, const Inputs& inputs)
{
    double error = 0.0;
    for (const ErrorBound r : inputs.red.at)
        for (const ErrorBound g : inputs.green.at)
            for (const ErrorBound b : inputs.blue.at) {
                const Colour<ErrorBound> c = applied(steps, Colour{r, g, b}, &inputs.weight, 0);
                for (const ErrorBound v : {c.r, c.g, c.b}) {
                    if (!(v.magnitude() < largestResult && v.error < tolerableError))
                        return std::numeric_limits<double>::infinity();
                    error = std::max(error, v.error);
                }
            }
    return error;
}

/// A result in parts, held at 0.5 and 255.5: beyond them the byte is certain.
inline constexpr auto inParts = [](float v) {
    const int parts = int(v * float(partsOfOne));
    const int notBelow = parts > partsOfOne / 2 ? parts : partsOfOne / 2;
    return notBelow < 255 * partsOfOne + partsOfOne / 2 ? notBelow : 255 * partsOfOne + partsOfOne / 2;
};

/// The pixels of a block on which a trial does not decide, in groups.
struct UnsurePixels {
    static constexpr int together = 8;
    int at[blockPixels + together], count = 0;

    /// Where `marked` is 1, among the first `pixels` of the block.
    UnsurePixels(const unsigned char (&marked)[blockPixels], int pixels)
    {
        for (int first = 0; first < pixels; first += 64) {
            std::uint64_t bits = 0;
            for (int i = 0; i < 64; i += 8)
                bits |= bitsOf(marked + first + i) << i;
            if (pixels - first < 64)
                bits &= (std::uint64_t(1) << (pixels - first)) - 1;
            for (; bits != 0; bits &= bits - 1)
                at[count++] = first + std::countr_zero(bits);
        }
        std::fill_n(at + count, together, 0); // so that the last group is whole
    }

private:
    /// Eight bytes of 0 or 1 as the bits of a byte, the first one as the lowest: the product brings them together in
    /// its top byte.
    static std::uint64_t bitsOf(const unsigned char* bytes)
    {
        std::uint64_t eight;
        std::memcpy(&eight, bytes, 8);
        if constexpr (std::endian::native == std::endian::big)
            eight = __builtin_bswap64(eight);
        return eight * 0x0102040810204080u >> 56;
    }
};

/// The exact recipe for these pixels.
template <class... Step, class ToByte>
void decideExactly(
    Block& block, const UnsurePixels& pixels, const Steps<Step...>& steps, const float* weights, ToByte toByte)
{
    constexpr int together = UnsurePixels::together;
    for (int first = 0; first < pixels.count; first += together) {
        const int* at = pixels.at + first;
        float r[together], g[together], b[together], weight[together] = {};
        for (int j = 0; j < together; j++) {
            r[j] = block.r.at[at[j]];
            g[j] = block.g.at[at[j]];
            b[j] = block.b.at[at[j]];
            if (weights)
                weight[j] = weights[at[j]];
        }
        steps.forEach([&](const auto& step) {
#pragma GCC unroll 1 // eight iterations written out would not become vector code
            for (int j = 0; j < together; j++) {
                const Rgb c = applied(step, Rgb{r[j], g[j], b[j]}, weight, j);
                r[j] = c.r;
                g[j] = c.g;
                b[j] = c.b;
            }
        });
        for (int j = 0; j < together && first + j < pixels.count; j++)
            block.setBytes(at[j], eachChannel(Rgb{r[j], g[j], b[j]}, toByte));
    }
}

/// Works a recipe into the bytes of a block, `error` being how far a trial may be off; the planes stay as they were.
template <class... Step, class ToByte>
void tryBlock(Block& block, const Steps<Step...>& steps, const float* weights, double error, ToByte toByte)
{
    Planes trial;
    const Planes* from = &block;
    steps.forEach([&](const auto& step) {
        for (int i = 0; i < blockPixels; i++) {
            const Rgb before = from->colour(i);
            const Colour<Single> c =
                applied(step, Colour<Single>{before.r, before.g, before.b}, SingleWeights{weights}, i);
            trial.setColour(i, {c.r.value, c.g.value, c.b.value});
        }
        from = &trial;
    });
    // One part more for what is cut off, and one for the error's own.
    const int reach = int(error * partsOfOne) + 2;
    alignas(64) unsigned char unsure[blockPixels];
    block.storeBytes([&](int i) {
        const Colour<int> parts = eachChannel(trial.colour(i), inParts);
        const Colour<int> beyondWhole = eachChannel(parts, [=](int v) { return (v + reach) & (partsOfOne - 1); });
        unsure[i] = smallest(beyondWhole) < 2 * reach ? 1 : 0;
        return eachChannel(parts, [&](int v) { return toByte.ofWhole(v >> partBits); });
    });
    decideExactly(block, UnsurePixels(unsure, block.count()), steps, weights, toByte);
}
