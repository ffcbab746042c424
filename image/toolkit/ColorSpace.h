// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Api.h"

namespace lumora {

// One pixel between RGB and two cylindrical models. RGB is on 0 .. 255 as floats, neither rounded nor clamped on the
// way out. HSL hue is a fraction of a turn (0 .. 1), HSV hue is in degrees (0 .. 360). Each function reads all of its
// inputs before it writes, so an output array may be the input array.

/// RGB (clamped to 0 .. 255 first) to hue, saturation and lightness, each 0 .. 1, after K. Fishkin ("A Fast HSL-to-RGB
/// Transform", Graphics Gems). A colour whose maximum is red and whose green equals its blue has the hue 1.0, not 0.
LUMORA_API void rgbToHsl(float* rgb, float* h, float* s, float* l);
LUMORA_API void rgbToHsl(float r, float g, float b, float* h, float* s, float* l);

/// Hue, saturation and lightness, each 0 .. 1, to RGB. The hue does not wrap: 1.0 and more, or -1/6 and less, is grey.
LUMORA_API void hslToRgb(float h, float s, float l, float* rgb);

/// RGB to hue (0 to below 360), saturation and value (each 0 .. 1), after A. R. Smith ("Color Gamut Transform Pairs").
LUMORA_API void rgbToHsv(float* rgb, float* h, float* s, float* v);

/// Hue in degrees, saturation and value (0 .. 1) to RGB. A hue outside 0 .. 300 takes the last sextant: 360 is not red.
LUMORA_API void hsvToRgb(float h, float s, float v, float* rgb);

} // namespace lumora
