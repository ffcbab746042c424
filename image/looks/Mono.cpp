// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/looks/Mono.h"

#include "image/looks/Variation.h"
#include "image/passes/PixelPass.h"

namespace lumora {

MonoParameters MonoParameters::fixed()
{
    return {{255.0f, 255.0f, 128.0f}};
}

MonoParameters MonoParameters::varied(const float* random)
{
    MonoParameters p;
    for (int k = 0; k < 3; k++) {
        const int v = int(random[27 + k] * 270.0);
        p.gain[k] = v < 50 ? 50.0f : v > 255 ? 255.0f : float(v);
    }
    return p;
}

/// Black and white from a weighted mix of the channels, stretched to the full range.
void CharImage::applyMonoFilter()
{
    const MonoParameters p = currentParameters<MonoParameters>();
    const auto weighted = [=](auto c) {
        const auto share = [](auto v, float weight) { return rounded(v * weight * per255); };
        return luminance(Colour{share(c.r, p.gain[0]), share(c.g, p.gain[1]), share(c.b, p.gain[2])});
    };
    forEachPixel(*this, weighted, Stretch{0.01f, 0.01f, 0.0f, 255.0f, true, true});
}

} // namespace lumora
