// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/GrowArray.h"

#include <QByteArray>
#include <QImage>
#include <QSizeF>
#include <QStringList>

// From a render to its file: what the window and `lumora-render` share.

/// The size of an export whose longer side is `maxSide`, also when that enlarges.
QSizeF exportSize(const QSize& render, int maxSide);
/// The bitmap of a fractional size: halves are rounded up, and no side is below 1.
QSize bitmapSize(const QSizeF& size);
/// Scales a render to its exportSize; gives the exact size before it was rounded to pixels. The image is null where
/// there is no memory for it.
QSizeF scaleForExport(QImage& render, int maxSide);

/// What people are told where encodeJpeg could not encode a picture of that size.
QString jpegRefusal(const QSize& picture);

/// The names that the levels of Kept and of JpegQuality have in the arguments of `lumora-render`, in their order.
QStringList keptNames();
QStringList qualityNames();

/// The name that is proposed for a photo (its file's name without folders, any bytes) under looks: without its ending,
/// then the names of the looks, then `ending`, as in "over Helga Mono.jpg". "over.jpg" without a look.
QByteArray exportName(const QByteArray& photo, const lumora::GrowArray<int>& looks, const QByteArray& ending = ".jpg");
