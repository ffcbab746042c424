#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

/// A photo from a file, or why there is none.
struct LoadedPhoto {
    QImage image; ///< upright, sRGB, Format_RGBX8888 or Format_RGB32, laid on white; null when refused
    QByteArray exif; ///< what the camera wrote: the raw EXIF block of a JPEG, empty where there is none
    QString reason; ///< for people, set when `image` is null
};

/// The most pixels that a photo may have, told from its header before anything is decoded: 16384 x 16384, which takes
/// 1 GiB as a picture.
inline constexpr qint64 maxPhotoPixels = qint64(1) << 28;

/// Blocks of the decoded size that the free memory must hold: the photo, the turned or rendered one, and one to spare.
inline constexpr int blocksPerPhoto = 3;

/// The most scans of a JPEG. Encoders write about ten; each one costs a walk over the whole picture, so that a small
/// file with thousands would take hours.
inline constexpr int maxJpegScans = 100;

/// The one way from a path to a photo. `path` is the file's name as the file system has it, any bytes. The file's
/// content decides the format, not its name; of several frames the first is taken. Only a regular file is read, and
/// nothing is waited for.
LoadedPhoto loadPhoto(const QByteArray& path);
