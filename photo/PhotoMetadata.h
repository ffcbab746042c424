#pragma once

#include <QByteArray>

/// What a photo's file carried beside the picture. A value: whoever keeps a photo keeps it with the photo and hands it
/// to the encoder as it is. Nothing in it: nothing is written.
struct PhotoMetadata {
    QByteArray exif; ///< the raw EXIF block, without its "Exif" heading

    bool operator==(const PhotoMetadata&) const = default;
};
