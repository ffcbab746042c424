// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/LoadedPhoto.h"

/// Reads the photo of that path in this process. `path` is the file's name as the file system has it, any bytes. The
/// file's content decides the format, not its name; of several frames the first is taken. Only a regular file is read,
/// and nothing is waited for.
LoadedPhoto loadPhoto(const QByteArray& path);
