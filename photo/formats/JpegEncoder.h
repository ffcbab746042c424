// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>

/// How finely a picture's colours are kept, beside its brightness.
enum class JpegColours {
    OfFourPixels, ///< two by two pixels share theirs (4:2:0)
    OfEachPixel, ///< 4:4:4
};

/// JPEG data of a picture, marked as sRGB, at a quality from 1 to 100. Nothing else than the pixels goes in.
/// Transparent parts come out black. Empty when it cannot be encoded: a null picture, a side beyond 65500 pixels, too
/// little memory.
QByteArray encodedPixels(const QImage& image, int quality, JpegColours colours);
