// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

/// The EXIF block of an item of a HEIF or JPEG XL file, in which a number of 32 bits before it tells how far behind
/// that it begins. Empty where the number leads out of the item.
QByteArray exifOfItem(const QByteArray& item);
