// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/looks/Colorcross.h"

#include "core/SixPlaces.h"
#include "image/looks/Variation.h"
#include "image/passes/PixelPass.h"

#include <cstdio>

namespace lumora {

ColorcrossParameters ColorcrossParameters::fixed()
{
    return {{2.83954f, 2.758001f, 0.683486f}};
}

ColorcrossParameters ColorcrossParameters::varied(const float* random)
{
    ColorcrossParameters p;
    for (int k = 0; k < 3; k++)
        p.exponent[k] = float(std::pow(random[20 + 2 * k], 1.7f) * 2.5 + 0.6);
    setApart(p.exponent, random[66]);
    return p;
}

void setApart(float (&exponent)[3], float choice)
{
    const float mean = float((exponent[2] + (exponent[0] + exponent[1])) * (1.0 / 3.0));
    for (const float e : exponent)
        if (std::fabs(e - mean) >= 0.3)
            return;
    float& chosen = exponent[int(choice * 1000.0f) % 3];
    chosen = chosen > 2.0f ? chosen * 0.5f : float(chosen * 1.6);
}

/// Cross-processed film: each channel under an S-curve of its own, off pure black and pure white.
void CharImage::applyCrossProcessFilter()
{
    const ColorcrossParameters p = currentParameters<ColorcrossParameters>();
    if (prints)
        std::printf("powers %s %s %s\n", sixPlaces(p.exponent[0]).c_str(), sixPlaces(p.exponent[1]).c_str(),
            sixPlaces(p.exponent[2]).c_str());
    forEachPixel(*this, ByteCurve(filmCurve(p.exponent[0])), ByteCurve(filmCurve(p.exponent[1])),
        ByteCurve(filmCurve(p.exponent[2])));
}

} // namespace lumora
