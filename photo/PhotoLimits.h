// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

/// The most pixels that a photo may have, told from its header before anything is decoded: 16384 x 16384, which takes
/// 1 GiB as a picture.
inline constexpr qint64 maxPhotoPixels = qint64(1) << 28;

/// Blocks of the decoded size that the free memory must hold: the photo, the turned or rendered one, and one to spare.
inline constexpr int blocksPerPhoto = 3;

/// The most scans of a JPEG, and the most pixels of all its scans together. Encoders write about ten; each one costs a
/// walk over the whole picture, so that a small file with thousands would take hours. A tiny file may have so many
/// pixels in its scans as are decoded in some two seconds by a slow machine, and any other so many more for each byte.
inline constexpr int maxJpegScans = 100;
inline constexpr qint64 maxJpegScanPixels = 10 * maxPhotoPixels;
inline constexpr qint64 maxScanPixelsOfTinyJpeg = 1'200'000'000, maxScanPixelsPerByte = 100;

/// Up to so many pixels a picture may stand in any number of bytes; a larger one needs a byte for every so many pixels.
/// A blank page of the most thrifty formats has more than that.
inline constexpr qint64 maxPixelsOfTinyFile = qint64(1) << 25, maxPixelsPerByte = 10'000;
