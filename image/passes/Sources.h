// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/passes/Block.h"
#include "image/passes/Inputs.h"
#include "image/passes/Levels.h"
#include "image/passes/ToneTable.h"

namespace lumora {

// What a pass starts from: each of these fills the planes of a block with colours, and gives the weights of its pixels,
// if any. `inputs` is all that a recipe may be given.

/// The colours as they are.
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

} // namespace lumora
