// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/PhotoLoader.h"

#include "photo/FreeMemory.h"
#include "photo/PhotoDecoder.h"
#include "photo/PhotoFile.h"

#include <QFile>

LoadedPhoto loadPhoto(const QByteArray& path)
{
    QFile file;
    const QString reason = openPhotoFile(path, file);
    return reason.isEmpty() ? decodePhoto(file, freeMemory()) : refusedPhoto(reason);
}
