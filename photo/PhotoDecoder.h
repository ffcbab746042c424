// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/LoadedPhoto.h"
#include "photo/PhotoLimits.h"

class PhotoRows;
class QIODevice;

/// Decodes the photo that stands in `file`, a device that is open and can be sought in. The content decides the format;
/// of several frames the first is taken. `memory`: the bytes that there are for it; a picture that is too large for a
/// part of them (see blocksPerPhoto) is refused before it is decoded. A photo whose rows are stored as they are shown
/// goes into `rows`, where they are given, and comes without its picture. Opens no file.
LoadedPhoto decodePhoto(QIODevice& file, qint64 memory, PhotoRows* rows = nullptr);
