// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/PhotoMetadata.h"

#include <QImage>
#include <QString>

/// A photo from a file, or why there is none.
struct LoadedPhoto {
    QImage image; ///< upright, sRGB, Format_RGBX8888 or Format_RGB32, laid on white; null when refused
    PhotoMetadata metadata; ///< what the file carried
    bool restIsMissing = false; ///< the file ended before its picture did, and a part of that is not the file's
    QString reason; ///< for people, set when `image` is null
};

/// No photo, but the reason.
LoadedPhoto refusedPhoto(const QString& reason);

/// The reason where the memory ran out.
QString noMemoryForPhoto();
