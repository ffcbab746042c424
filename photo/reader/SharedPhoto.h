// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/LoadedPhoto.h"
#include "photo/reader/Descriptor.h"
#include "photo/reader/Message.h"

#include <fcntl.h>

/// A photo on its way to the window.
struct SharedPhoto {
    ReaderAnswer answer;
    Descriptor memory; ///< none beside a refusal
};

/// Of its memory, so that nobody can change it or its size any more.
inline constexpr int photoSeals = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE | F_SEAL_SEAL;

/// The bytes of the memory where it is sealed, so that reading it cannot fail; 0 otherwise.
qint64 sealedBytes(const Descriptor& memory);

/// The photo or the reason of an answer that was unpacked with these sealedBytes. The picture stands in the shared
/// memory, and is not copied.
LoadedPhoto receivedPhoto(const SharedPhoto& shared);
