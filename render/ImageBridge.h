// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <memory>

namespace lumora {
class CharImage;
}

// Pictures of the platform to CharImage and back. A pixel exchange block is an array-new block of width x height x 4
// bytes, rows top first without padding, red, green, blue and a spare byte per pixel. Points equal pixels.

/// The size in pixels of what charImageFromNSImage makes of a picture of that size.
QSize fittedSize(const QSize& image, float aspect, int boxWidth, int boxHeight, int orientation);

/// Crops `image` round its centre to `aspect` (width / height; negative: no crop), scales it into the box (pixels;
/// negative: the picture's own side; 0: the same, but a box of two zeros takes the picture's size as it is) and gives a
/// new CharImage that the caller deletes. Margins, `fast` and `orientation` are those of getRGBACharImageArray.
lumora::CharImage* charImageFromNSImage(const QImage& image, float aspect, int boxWidth, int boxHeight, int left,
    int right, int top, int bottom, bool fast, int orientation);

/// Draws `image` into a new exchange block of outWidth x outHeight pixels that the caller owns. The picture fills the
/// area inside the margins (pixels) on its tighter side and overflows equally on both ends of the other. `orientation`:
/// 3 upright, 1 half turn, 0 a quarter turn of the drawing by -90 degrees, 2 by +90 degrees (counter-clockwise is
/// positive). `fast` takes the nearest pixel; otherwise shrinking averages areas. A picture drawn at its own size is
/// copied byte for byte. Transparency is laid on white.
unsigned char* getRGBACharImageArray(const QImage& image, int outWidth, int outHeight, int orientation, int left,
    int right, int top, int bottom, bool fast);

/// A new exchange block for so many pixels. What it holds is undefined.
std::unique_ptr<unsigned char[]> newExchangeBlock(int width, int height);

/// What getRGBACharImageArray draws, upright and without margins, into a block that is there.
void drawIntoBlock(const QImage& image, unsigned char* block, int outWidth, int outHeight);

/// The same, of which `block` takes `rowCount` rows from `firstRow` on.
void drawRowsIntoBlock(
    const QImage& image, unsigned char* block, int outWidth, int outHeight, int firstRow, int rowCount);

/// A picture over an exchange block without a copy. The picture takes the block over and frees it; the spare bytes are
/// set to 255, as the format asks.
QImage getImageRefFromRGBACharArray(unsigned char* pixels, int width, int height);

/// The same where the spare bytes are 255 already: those of getRGBACharImageArray are, and looks and borders leave them
/// alone.
QImage opaqueImage(unsigned char* pixels, int width, int height);

/// A picture of `image`, which is not changed and may be deleted afterwards.
QImage NSImageFromCharImage(const lumora::CharImage* image);
