// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/OnWhite.h"

#include <utility>

QImage onWhite(QImage image)
{
    if (!image.hasAlphaChannel()) {
        image.convertTo(QImage::Format_RGBX8888);
        return image;
    }
    image.convertTo(QImage::Format_RGBA8888);
    for (int y = 0; y < image.height(); y++) {
        unsigned char* pixel = image.scanLine(y);
        for (int x = 0; x < image.width(); x++, pixel += 4) {
            const int alpha = pixel[3];
            for (int channel = 0; channel < 3; channel++)
                pixel[channel] = static_cast<unsigned char>((pixel[channel] * alpha + 255 * (255 - alpha) + 127) / 255);
            pixel[3] = 255;
        }
    }
    image.reinterpretAsFormat(QImage::Format_RGBX8888);
    return image;
}

QImage onWhiteInEitherOrder(QImage image)
{
    if (image.format() == QImage::Format_RGB32)
        return image;
    return onWhite(std::move(image));
}
