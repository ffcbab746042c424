// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QIODevice;

/// The most pixels of an animation's canvas, of which decoders hold several copies.
inline constexpr qint64 maxAnimationPixels = qint64(1) << 25;

/// What the headers of a TIFF or WebP file tell against decoding it: counts and sizes that make their libraries take
/// much more memory or time than the picture needs, before anybody could ask how large it is. Empty where nothing does,
/// and for files of other formats. The device's position is left anywhere.
QString boundsRefusal(QIODevice& file);
