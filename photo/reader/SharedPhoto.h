// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/LoadedPhoto.h"
#include "photo/reader/Descriptor.h"
#include "photo/reader/Message.h"

class QIODevice;

/// A photo on its way to the window.
struct SharedPhoto {
    ReaderAnswer answer;
    Descriptor memory; ///< none beside a refusal
};

/// Decodes the file's photo as decodePhoto does, which tells of the arguments: the photo or its reason, to be sent. The
/// memory is sealed: nobody can change it or its size any more. A photo that finds no room is refused.
SharedPhoto sharedPhoto(QIODevice& file, qint64 memory);

/// The bytes of the memory where it is sealed, so that reading it cannot fail; 0 otherwise.
qint64 sealedBytes(const Descriptor& memory);

/// The photo or the reason of an answer that was unpacked with these sealedBytes. The picture stands in the shared
/// memory, and is not copied.
LoadedPhoto receivedPhoto(const SharedPhoto& shared);
