// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <optional>

class QIODevice;

/// A TIFF file of four inks with a profile that tells what they look like. The platform's decoder makes colours of them
/// that the profile does not know any more; told that they are colours, it gives them as they are.
struct InkTiff {
    qint64 kind; ///< where in the file a byte tells of inks
    QByteArray profile;
};

/// None for any other file, which is left anywhere.
std::optional<InkTiff> findInkTiff(QIODevice& file);

/// The file's bytes, changed so that they tell of colours. Throws std::bad_alloc where there is no room for them.
QByteArray toldAsColours(QIODevice& file, const InkTiff& inks);

/// Makes sRGB of what the platform's decoder gave for such bytes. False where that cannot be.
bool convertInks(QImage& image, const InkTiff& inks);
