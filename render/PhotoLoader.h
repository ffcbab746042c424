#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

/// A photo from a file, or why there is none.
struct LoadedPhoto {
    QImage image; ///< upright, sRGB, Format_RGBX8888, laid on white; null when refused
    QByteArray exif; ///< what the camera wrote: the raw EXIF block of a JPEG, empty where there is none
    QString reason; ///< for people, set when `image` is null
};

/// The one way from a path to a photo. `path` is the file's name as the file system has it, any bytes.
/// The file's content decides the format, not its name.
LoadedPhoto loadPhoto(const QByteArray& path);
