// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/PhotoMetadata.h"

#include <QByteArray>
#include <QImage>
#include <QString>

/// How much of a picture a JPEG holds.
enum class JpegQuality {
    Standard, ///< 75 of 100, as encoders have it; four pixels share their colour
    High, ///< 92 of 100; each pixel has its colour
    Best, ///< 97 of 100; each pixel has its colour
};

/// JPEG data of a picture, marked as sRGB. `metadata` is what the source carried: as much of it as is to be kept goes
/// in, with orientation 1, the picture's size, this program's name and no preview. What is broken does not. Empty data
/// when the picture cannot be encoded, as with a side beyond 65500 pixels.
QByteArray encodeJpeg(const QImage& image, const PhotoMetadata& metadata, Kept kept = Kept::Everything,
    JpegQuality quality = JpegQuality::Standard);

/// Whether a save looks for what killed ones have left behind. It lists the whole folder: who writes many files into
/// one calls removeLeftovers once.
enum class Leftovers { Remove, Leave };

/// Writes `data` to `path` (any bytes) so that a file that stands there is replaced whole or left as it was, whatever
/// fails. A replaced file's owner, permissions, access control list and `user.*` attributes stay, or its rights become
/// narrower; through a symbolic link its target is written. False and a `reason` for people when it could not be
/// written. Only a killed process can leave a hidden ".lumora-" file in the folder, which the next save there removes.
bool writeFileAtomically(
    const QByteArray& path, const QByteArray& data, QString* reason, Leftovers leftovers = Leftovers::Remove);

/// The same for a file that is not there yet: one that stands there by the time that the data is complete is left as it
/// is, and so is a link that leads nowhere.
bool writeNewFile(
    const QByteArray& path, const QByteArray& data, QString* reason, Leftovers leftovers = Leftovers::Remove);

/// Whether `writeFileAtomically` is likely to write so many bytes to `path`: whether what stands there may be replaced,
/// a file be made in its folder, and the disk has room. False and a `reason` otherwise. Nothing is changed.
bool mayWriteFile(const QByteArray& path, qint64 bytes, QString* reason);
