// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/PhotoMetadata.h"

#include <QImageIOHandler>

class PhotoRows;

/// A reader of our own. Beside the picture it tells what the platform's readers do not.
class PhotoHandler : public QImageIOHandler {
public:
    /// Whether read() gives the picture as it is to be seen. Where it does not, the EXIF block of the file tells how it
    /// is turned.
    virtual bool isUpright() const { return false; }
    /// Whether what is stored are sRGB colours, whose rows readRows() can give in place of read().
    virtual bool hasRows() const { return false; }
    /// Reads the picture into `rows`; false where it cannot be read.
    virtual bool readRows(PhotoRows&) { return false; }
    /// After that: whether the file ended before its picture did, so that a part of it is the reader's.
    virtual bool restIsMissing() const { return false; }
    /// After that: what the file carries beside the picture, where readMetadata does not know the format.
    virtual PhotoMetadata metadata() const { return {}; }
};
