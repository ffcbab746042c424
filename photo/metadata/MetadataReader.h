// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/PhotoMetadata.h"

struct JpegMarkers;
class QIODevice;

/// What the JPEG, PNG, WebP or TIFF file at the device's beginning carries; nothing of another kind of file. `markers`
/// are the file's, if it is a JPEG. Broken parts are passed over. The device's position is left anywhere.
PhotoMetadata readMetadata(QIODevice& device, const JpegMarkers& markers);

/// The EXIF and XMP that the library finds in a file of whatever format, but for the maker's note, whose values would
/// not stay where they were. Broken parts are passed over.
PhotoMetadata metadataByLibrary(const QByteArray& file);
