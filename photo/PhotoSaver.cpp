// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/PhotoSaver.h"

#include "photo/formats/JpegEncoder.h"
#include "photo/metadata/JpegMetadata.h"

namespace {

QByteArray encoded(const QImage& image, JpegQuality quality)
{
    switch (quality) {
    case JpegQuality::High:
        return encodedPixels(image, 92, JpegColours::OfEachPixel);
    case JpegQuality::Best:
        return encodedPixels(image, 97, JpegColours::OfEachPixel);
    default:
        return encodedPixels(image, 75, JpegColours::OfFourPixels);
    }
}

} // namespace

QByteArray encodeJpeg(const QImage& image, const PhotoMetadata& metadata, Kept kept, JpegQuality quality)
{
    const QByteArray jpeg = encoded(image, quality);
    return jpeg.isEmpty() ? jpeg : withMetadata(jpeg, metadata, image.size(), kept);
}
