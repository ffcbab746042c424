// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/CharImage.h"

#include <cstdlib>
#include <cstring>

namespace lumora {

float CharImage::random[100] = {};
int CharImage::useRandom = 1;
bool CharImage::prints = true;
unsigned char* CharImage::samplePixels = new unsigned char[108];

CharImage::CharImage(unsigned char* pixels, int columns, int rows)
    : width(columns < 1 ? 1 : columns)
    , height(rows < 1 ? 1 : rows)
    , bytesPerPixel(4)
    , data(pixels)
{
}

CharImage::CharImage(const CharImage& other)
    : width(other.width)
    , height(other.height)
    , bytesPerPixel(other.bytesPerPixel)
    , data(new unsigned char[other.pixelCount() * other.bytesPerPixel])
{
    if (pixelCount() > 0)
        std::memcpy(data, other.data, pixelCount() * bytesPerPixel);
}

CharImage::~CharImage()
{
    delete[] data;
}

std::size_t CharImage::pixelCount() const
{
    return width > 0 && height > 0 ? std::size_t(width) * std::size_t(height) : 0;
}

void CharImage::copyToRGBACharArray(unsigned char* out) const
{
    const std::size_t count = pixelCount();
    for (std::size_t i = 0; i < count; i++) {
        const unsigned char* pixel = data + i * bytesPerPixel;
        out[4 * i] = pixel[0];
        out[4 * i + 1] = pixel[1];
        out[4 * i + 2] = pixel[2];
        out[4 * i + 3] = 1; // padding to whoever reads this array; the value is fixed on purpose
    }
}

void CharImage::renewRandomNumbers()
{
    for (float& value : random)
        value = float(std::rand() % 1000000 * 1e-6);
}

} // namespace lumora
