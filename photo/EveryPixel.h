// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

class QImageReader;

/// Reads the first picture of a reader of the platform, whose device can be sought in and stands at its beginning, so
/// that every pixel is the file's own: some decoders leave pixels unwritten, and would show what the memory held
/// before, be it another photo. What a GIF or a BMP leaves out, as it may, is white. False where there is no picture,
/// or where a part of another format's is not in the file; `image` holds anything then.
bool readEveryPixel(QImageReader& reader, QImage& image);
