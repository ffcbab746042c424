// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Api.h"

#include <cstddef>

/// A picture in memory that is only read: 4 bytes a pixel, rows top first, `bytesPerRow` apart.
struct PixelRows {
    const unsigned char* data;
    std::size_t bytesPerRow;
    int width, height;

    const unsigned char* row(int y) const { return data + std::size_t(y) * bytesPerRow; }
};

/// Where a picture lies in an output, in output pixels from the top left corner. It may reach beyond the output.
struct PlacedRect {
    double x, y, width, height;
};

/// Draws `source`, of at least one pixel, scaled into `rect` of the block `out` (outWidth x outHeight x 4 bytes), all
/// four bytes of a pixel alike. A side that shrinks averages the area of each output pixel, a side that grows
/// interpolates linearly; `nearest` takes one pixel instead. An average is off by half a step from rounding, and by an
/// eighth at most besides; one colour stays that colour. A source at its own size on whole pixels is copied as it
/// is. A pixel that the rectangle touches belongs to the picture, without a seam of the background; the others are left
/// alone.
LUMORA_API void drawScaled(
    const PixelRows& source, const PlacedRect& rect, bool nearest, unsigned char* out, int outWidth, int outHeight);

/// The same, of which `out` takes `rowCount` rows from `firstRow` on.
LUMORA_API void drawScaledRows(const PixelRows& source, const PlacedRect& rect, bool nearest, unsigned char* out,
    int outWidth, int outHeight, int firstRow, int rowCount);
