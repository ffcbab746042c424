#pragma once

#include <QImage>

/// Where a picture lies in an output, in output pixels from the top left corner. It may reach beyond the output.
struct PlacedRect {
    double x, y, width, height;
};

/// Draws `source` (Format_RGBX8888) scaled into `rect` of the exchange block `out` (outWidth x outHeight x 4 bytes).
/// A side that shrinks averages the area of each output pixel, a side that grows interpolates linearly; `nearest` takes
/// one pixel instead. A source at its own size on whole pixels is copied as it is. A pixel that the rectangle touches
/// belongs to the picture, without a seam of the background; the others are left alone.
void drawScaled(
    const QImage& source, const PlacedRect& rect, bool nearest, unsigned char* out, int outWidth, int outHeight);
