// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Exact.h"

namespace lumora {

class CharImage;

/// CharImage::vignette without softened edges, but only for the pixels that stand nearer than `radius`, the outer one,
/// to the centre: what is painted over anyway costs nothing.
void vignetteDisc(
    CharImage& image, float innerRadius, float radius, float exponent, float strength, bool boostSaturation);

/// The same by visiting only the pixels between the two radii: for a ring of a few.
void vignetteRing(
    CharImage& image, float innerRadius, float radius, float exponent, float strength, bool boostSaturation);

} // namespace lumora
