// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

class QIODevice;

/// What stands between the pictures of a JPEG file.
struct JpegMarkers {
    QByteArray exif; ///< the EXIF block without its "Exif" heading; empty where there is none
    QByteArray xmp; ///< the XMP packet, without what continues it elsewhere
    QByteArray resources; ///< Photoshop's image resources, of all segments
    QByteArray comment; ///< the first one
    int scans = 0; ///< the passes in which the picture is stored
    int markers = 0; ///< all that were read
    qint64 pixels = 0; ///< of the picture, as its frame tells
};

/// The most markers of a JPEG file. Those of photos are a few hundred, and thousands where much metadata is split; the
/// decoder takes longer for each one the more there are.
inline constexpr int maxJpegMarkers = 5000;

/// Reads the markers of the JPEG file that stands at the device's beginning; nothing of another kind of file. Broken
/// data ends the reading, and so does the marker beyond maxJpegMarkers. The device's position is left anywhere.
JpegMarkers readJpegMarkers(QIODevice& device);
