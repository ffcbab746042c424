#pragma once

#include <QByteArray>
#include <QImage>

/// JPEG data of a picture, marked as sRGB, at a quality from 1 to 100 and with the colours of each pixel (4:4:4).
/// Transparent parts come out black. Empty when it cannot be encoded: a null picture, a side beyond 65500 pixels, too
/// little memory.
QByteArray fineJpeg(const QImage& image, int quality);
