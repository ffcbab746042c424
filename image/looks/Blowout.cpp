// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/numbers/Hues.h"
#include "image/passes/PixelPass.h"

namespace lumora {

/// Over-exposure: light parts are pushed towards white much harder than dark ones.
void CharImage::applyBlowoutFilter()
{
    const Levels levels = levelsOf(*this, {0.01f, 0.1f, 20.0f, 255.0f, false, true});
    const auto blown = [](auto c) {
        const auto gain = lightnessOf(c) + 1.0f;
        return eachChannel(c, [=](auto v) { return v * gain; });
    };
    forEachPixel(*this, levels, blown);
}

} // namespace lumora
