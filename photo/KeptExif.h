#pragma once

#include <QByteArray>
#include <QSize>

/// The JPEG data with the raw EXIF block `exif` of its source, made to fit: upright, of `size` pixels, in sRGB, without
/// the source's thumbnail. The data as it is where the block is broken or does not fit into a JPEG.
QByteArray withExif(const QByteArray& jpeg, const QByteArray& exif, QSize size);
