// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/ExifItem.h"

#include <QtEndian>

QByteArray exifOfItem(const QByteArray& item)
{
    constexpr qsizetype numberSize = 4;
    if (item.size() < numberSize)
        return {};
    const qsizetype begin = numberSize + qsizetype(qFromBigEndian<quint32>(item.constData()));
    const QByteArray block = begin < item.size() ? item.mid(begin) : QByteArray();
    const QByteArray heading("Exif\0\0", 6); // some writers count it to the block
    return block.startsWith(heading) ? block.mid(heading.size()) : block;
}
