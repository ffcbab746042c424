// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/looks/Look1974.h"

#include "image/looks/Variation.h"
#include "image/passes/PixelPass.h"

namespace lumora {

Look1974Parameters Look1974Parameters::fixed()
{
    return {{151, 93, 17}, 0.43f};
}

Look1974Parameters Look1974Parameters::varied(const float* random)
{
    Look1974Parameters p = fixed();
    for (int k = 0; k < 3; k++)
        p.tint[k] = static_cast<unsigned char>(p.tint[k] * (random[79 + k] * 0.14 + 0.93));
    p.amount = float((random[77] * 0.5 + 0.8) * 0.43);
    return p;
}

/// A hard colour print under a brown wash that is strongest in the shadows.
void CharImage::apply1974Filter()
{
    const Look1974Parameters p = currentParameters<Look1974Parameters>();
    const Rgb tint = {float(p.tint[0]), float(p.tint[1]), float(p.tint[2])};
    const ToneTable washes([=](float lum) {
        const float shade = std::pow(float(lum * per255), 1.5f);
        return float(p.amount * (1.0 - shade) + 0.27);
    });
    const auto printed = [=](auto c, auto w) {
        // The factor is extreme on purpose: most values leave 0 .. 255 here and come back in the end.
        c = eachChannel(c, [](auto v) { return withContrast(v, 3.05); });
        return Colour{tint.r * w + c.r * (1.0f - w), tint.g * w + c.g * (1.0f - w), tint.b * w + c.b * (1.0f - w)};
    };
    const auto muted = [](auto c) { return withSaturation(c, 0.51f); };
    forEachPixel(*this, washes, Steps(printed, muted), Stretch{0.0f, 0.005f, 20.0f, 250.0f, true, true});
}

} // namespace lumora
