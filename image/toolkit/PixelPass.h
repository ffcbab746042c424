#pragma once

#include "image/CharImage.h"
#include "image/toolkit/Arithmetic.h"

// Passes over the pixels of an image. A look gives what happens to one pixel; the loop and the byte conversions live
// here.

inline Rgb pixelAt(const unsigned char* pixel)
{
    return {float(pixel[0]), float(pixel[1]), float(pixel[2])};
}

/// Replaces each pixel's colour by `function(colour)`, truncated and clamped to bytes.
template <class Function> void forEachPixel(CharImage& image, Function function)
{
    const std::size_t count = image.pixelCount();
    for (std::size_t i = 0; i < count; i++) {
        unsigned char* pixel = image.data + i * image.bytesPerPixel;
        const Rgb c = function(pixelAt(pixel));
        pixel[0] = truncateAndClamp(c.r);
        pixel[1] = truncateAndClamp(c.g);
        pixel[2] = truncateAndClamp(c.b);
    }
}

/// The same with the pixel's place: `function(colour, x, y)`.
template <class Function> void forEachPixelAt(CharImage& image, Function function)
{
    for (int y = 0; y < image.height; y++) {
        unsigned char* row = image.data + std::size_t(y) * image.width * image.bytesPerPixel;
        for (int x = 0; x < image.width; x++) {
            unsigned char* pixel = row + std::size_t(x) * image.bytesPerPixel;
            const Rgb c = function(pixelAt(pixel), x, y);
            pixel[0] = truncateAndClamp(c.r);
            pixel[1] = truncateAndClamp(c.g);
            pixel[2] = truncateAndClamp(c.b);
        }
    }
}
