// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/reader/SharedPhoto.h"

class QIODevice;

// The reader's part of a SharedPhoto: it calls the decoders, which the programs that receive photos are free of.

/// Decodes the file's photo as decodePhoto does, which tells of the arguments: the photo or its reason, to be sent. Its
/// memory has photoSeals. A photo that finds no room is refused.
SharedPhoto sharedPhoto(QIODevice& file, qint64 memory);
