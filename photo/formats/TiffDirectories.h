// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>

class QIODevice;

/// What one picture of a TIFF file says of itself.
struct TiffDirectory {
    QList<int> bits; ///< of each channel
    int photometric = 1, planar = 1, format = 1; ///< as in the file
    int channels = 1;
    bool isDng = false;

    /// Whether its pixels are what a camera's sensor saw.
    bool isOfSensor() const { return isDng || photometric == 32803 || photometric == 34892; }
};

/// Whether a file that begins so is a TIFF.
bool isTiff(const QByteArray& head);

/// The first pictures of a TIFF file and those that stand within them, 32 at most; none of another file. The device is
/// left anywhere.
QList<TiffDirectory> readTiffDirectories(QIODevice& file);
