// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

/// What a photo's file carried beside the picture, as plain blocks that nobody has looked into yet: they may be broken.
/// A value: whoever keeps a photo keeps it with the photo and hands it to the encoder as it is. Nothing in it: nothing
/// is written.
struct PhotoMetadata {
    QByteArray exif = {}; ///< the EXIF block, which begins with its byte order
    QByteArray xmp = {}; ///< the XMP packet
    QByteArray iptc = {}; ///< the records of the IPTC
    QByteArray comment = {}; ///< text of any encoding

    bool operator==(const PhotoMetadata&) const = default;
};

/// The most bytes of such a block that is kept.
inline constexpr qint64 longestBlock = 4'000'000;

/// How much of it goes into a saved file.
enum class Kept {
    Everything,
    WithoutPlace, ///< not where the photo was taken: coordinates and names of places
    Nothing,
};
