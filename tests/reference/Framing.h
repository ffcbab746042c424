// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/reference/Picture.h"

/// Slow literal evaluations of the border drawing.
namespace reference {

void addBorder(Picture& picture, int left, int right, int top, int bottom, float red, float green, float blue);
void fillBorder(Picture& picture, int left, int right, int top, int bottom, const unsigned char* colour);
void fillRoundedBorder(
    Picture& picture, int left, int right, int top, int bottom, int radius, const unsigned char* colour);
/// `margins` are the fractions of the style: left, right, top, bottom.
void applyFilterBorder(Picture& picture, int border, int maxSide, const float (&margins)[4]);

} // namespace reference
