// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

/// How the picture of an EXIF block is stored, 1 to 8 as its orientation tag has it: 1 is upright. 1 also where the
/// block does not tell.
int orientationOf(const QByteArray& exif);

/// A picture that is stored so, as it is to be seen. Null where there is no memory for it.
QImage turnedUpright(const QImage& stored, int orientation);
