// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/passes/PixelPass.h"
#include "image/toolkit/Blur.h"

#include <algorithm>
#include <cmath>

namespace lumora {

namespace {

/// How close a colour is to a reference, 0 .. 1.
template <class Channel> Channel closeness(Colour<Channel> c, Rgb reference)
{
    const auto factor = [](Channel v, float r) { return rounded((255.0f - larger(v - r, r - v)) * per255); };
    return factor(c.r, reference.r) * factor(c.g, reference.g) * factor(c.b, reference.b);
}

} // namespace

/// Black-and-white infrared film: foliage bright, skin and earth light, blue sky dark.
void CharImage::applyInfraredFilter()
{
    const auto film = [](auto c) {
        const auto foliage = closeness(c, {0.0f, 255.0f, 0.0f});
        const auto skin = closeness(c, {228.0f, 152.0f, 76.0f});
        const auto sky = closeness(c, {150.0f, 150.0f, 255.0f});
        return rounded(foliage * 0.5 + skin + sky * -0.4) * 255.0f;
    };
    const int blurSize = int(std::max(width, height) * 0.01);
    withRowsOf(*this, film, Stretch{0.01f, 0.01f, 0.0f, 255.0f, true, true},
        [&](auto makeRow) { blurNeutralRows(*this, blurSize, 3.0f, makeRow); });
}

} // namespace lumora
