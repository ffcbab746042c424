// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSize>

class QIODevice;

/// The EXIF block of a photo's file, or of a TIFF file itself, small enough for a JPEG file: without previews. Empty
/// where there is none.
QByteArray exifOf(QIODevice& block);

/// The EXIF block `exif` for a picture of `size` pixels, upright and in sRGB, from this program; empty where it is
/// broken. Without the place, too, where that is not to be kept; the maker's note may tell it and goes then.
QByteArray fittingExif(const QByteArray& exif, QSize size, bool withPlace);
