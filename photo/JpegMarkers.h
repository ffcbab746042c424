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
};

/// Reads the markers of the JPEG file that stands at the device's beginning; nothing of another kind of file. Broken
/// data ends the reading. The device's position is left anywhere.
JpegMarkers readJpegMarkers(QIODevice& device);
