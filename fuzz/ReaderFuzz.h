// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/PhotoLimits.h"

#include <QBuffer>
#include <QImage>
#include <QVariant>
#include <cstdint>

/// A library takes room for what a file claims, and time for each pixel of it: large pictures would only be slow.
inline constexpr qint64 pixelsForLibraries = qint64(1) << 20;

/// Has a reader read a file of any bytes, which must give a picture of the size that it told before, or none. A picture
/// of more pixels is left alone, as the loader leaves one of more than maxPhotoPixels.
template <class Handler>
void readAnyBytes(const std::uint8_t* data, std::size_t size, qint64 maxPixels = maxPhotoPixels)
{
    QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly);
    Handler handler;
    handler.setDevice(&file);
    const QSize told = handler.option(Handler::Size).toSize();
    if (qint64(told.width()) * told.height() > maxPixels)
        return;
    QImage image;
    if (handler.read(&image) && image.size() != told)
        __builtin_trap();
    handler.metadata(); // also of a picture that cannot be read
}
