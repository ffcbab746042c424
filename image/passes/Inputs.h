// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/numbers/ErrorBound.h"
#include "image/passes/ChannelCurve.h"

#include <algorithm>

namespace lumora {

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

} // namespace lumora
