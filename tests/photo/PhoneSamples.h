// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/PhotoMetadata.h"

#include <QImage>

/// Files as phones and cameras write them, made by the libraries themselves. Empty where this program is built without
/// the library.
namespace samples {

enum class HeifKind { Hevc, Av1 };
/// `orientation`: as in EXIF, how a viewer turns the stored picture. The picture's colour profile is kept, and
/// so are the EXIF and the XMP.
QByteArray heif(const QImage& stored, HeifKind kind, int orientation = 1, const PhotoMetadata& carried = {});

enum class JxlKind { Lossless, Lossy };
/// A lossy file packs what it carries.
QByteArray jxl(
    const QImage& stored, int orientation = 1, JxlKind kind = JxlKind::Lossless, const PhotoMetadata& carried = {});

/// A DNG file: a sensor of red, green, green and blue pixels with 16 bits that saw the channels of that picture.
/// `neutral`: what they say of a grey that is as bright as can be, on 0 .. 1.
QByteArray dng(const QImage& seen, const QList<double>& neutral, int orientation = 1);
/// The same of one colour all over. `seen`: what they say of red, green and blue, on 0 .. 1.
QByteArray dng(QSize size, const QList<double>& seen, const QList<double>& neutral, int orientation = 1);

} // namespace samples
