// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/looks/Look1962.h"

#include "image/looks/Variation.h"
#include "image/passes/PixelPass.h"

namespace lumora {

Look1962Parameters Look1962Parameters::fixed()
{
    return {{1.0f, 1.0f, 1.5f}, 0.1f, 0.1f, 15.0f, 1.33f, 100.0f};
}

Look1962Parameters Look1962Parameters::varied(const float* random)
{
    Look1962Parameters p;
    for (int k = 0; k < 3; k++)
        p.gain[k] = float(random[33 + k] * 0.5 + 0.8); // blue loses its extra weight on purpose
    p.darkFraction = float((random[4] * 1.8 + 0.2) * 0.1);
    p.brightFraction = float((random[5] * 1.8 + 0.2) * 0.1);
    p.darkLevel = random[6] * 16.0f - 8.0f + 15.0f;
    p.contrast = float((random[2] * 0.4 + 0.8) * 1.33);
    p.pivot = random[3] * 50.0f - 50.0f + 100.0f;
    return p;
}

/// A contrasty black-and-white print: levels first, on the colours, then grey and contrast about a pivot.
void CharImage::apply1962Filter()
{
    const Look1962Parameters p = currentParameters<Look1962Parameters>();
    const Levels levels = levelsOf(*this, {p.darkFraction, p.brightFraction, p.darkLevel, 245.0f, false, false});
    forEachPixel(*this, levels, [=](auto c) {
        const auto level = luminance(Colour{c.r * p.gain[0], c.g * p.gain[1], c.b * p.gain[2]});
        return p.contrast * (level - p.pivot) + p.pivot;
    });
}

} // namespace lumora
