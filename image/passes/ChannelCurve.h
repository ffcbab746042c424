// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/numbers/Arithmetic.h"

#include <algorithm>

namespace lumora {

/// What each value of a channel becomes as a float: a per-channel curve needs no more than 256 evaluations.
struct ChannelCurve {
    float at[256];
};

template <class Function> ChannelCurve channelCurve(Function f)
{
    ChannelCurve curve;
    for (int v = 0; v < 256; v++)
        curve.at[v] = f(v);
    return curve;
}

/// The same, as a byte each.
struct ByteCurve {
    unsigned char at[256];

    explicit ByteCurve(const ChannelCurve& curve) { std::transform(curve.at, curve.at + 256, at, truncateAndClamp); }
};

/// The curve of one channel of a film: the S-curve on the byte's share of 255, held off pure black and pure white at
/// 20 .. 250.
inline ChannelCurve filmCurve(float exponent)
{
    return channelCurve([=](int v) {
        const float z = sCurve(float(v * per255), exponent) * 255.0f;
        return z < 20.0f ? 20.0f : z > 250.0f ? 250.0f : z;
    });
}

} // namespace lumora
