// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/passes/PixelPass.h"
#include "image/toolkit/Blur.h"

#include <algorithm>
#include <cmath>

namespace lumora {

namespace {

/// float(distance * per255) for a whole distance of 0 .. 255.
constexpr float shareOf255(float distance)
{
    return productWithSplit(distance, 257.0f / 65536.0f, per255);
}

static_assert([] {
    for (int distance = 0; distance < 256; distance++)
        if (shareOf255(float(distance)) != float(distance * per255))
            return false;
    return true;
}());

/// How close a colour is to a reference, 0 .. 1.
float closeness(Rgb c, Rgb reference)
{
    const auto factor = [](float v, float r) { return shareOf255(255.0f - std::abs(v - r)); };
    return factor(c.r, reference.r) * factor(c.g, reference.g) * factor(c.b, reference.b);
}

} // namespace

/// Black-and-white infrared film: foliage bright, skin and earth light, blue sky dark.
void CharImage::applyInfraredFilter()
{
    const auto film = [](Rgb c) {
        const float foliage = closeness(c, {0.0f, 255.0f, 0.0f});
        const float skin = closeness(c, {228.0f, 152.0f, 76.0f});
        const float sky = closeness(c, {150.0f, 150.0f, 255.0f});
        return float(foliage * 0.5 + skin + sky * -0.4) * 255.0f;
    };
    const int blurSize = int(std::max(width, height) * 0.01);
    withRowsOf(*this, film, Stretch{0.01f, 0.01f, 0.0f, 255.0f, true, true},
        [&](auto makeRow) { blurNeutralRows(*this, blurSize, 3.0f, makeRow); });
}

} // namespace lumora
