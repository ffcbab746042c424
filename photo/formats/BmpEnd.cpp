// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/BmpEnd.h"

#include <QIODevice>
#include <QtEndian>
#include <cstdlib>

bool bmpBreaksOff(QIODevice& file)
{
    file.seek(0);
    const QByteArray head = file.read(38);
    if (head.size() < 38)
        return true;
    const auto number = [&](int at) { return qint64(qFromLittleEndian<qint32>(head.constData() + at)); };
    const auto small = [&](int at) { return qint64(qFromLittleEndian<quint16>(head.constData() + at)); };
    const qint64 pixels = number(10), headerSize = number(14);
    if (pixels < 14 + headerSize) // decoders take them from behind the header then, wherever that ends
        return false;
    constexpr int ofOldSystems = 12;
    const bool isOld = headerSize == ofOldSystems;
    enum { runsOfBytes = 1, runsOfHalfBytes = 2 };
    const qint64 compression = isOld ? 0 : number(30);
    if (compression == runsOfBytes || compression == runsOfHalfBytes)
        return file.size() < pixels + number(34);
    const qint64 width = isOld ? small(18) : number(18), height = std::abs(isOld ? small(20) : number(22));
    const qint64 bits = width * small(isOld ? 24 : 28);
    // What fills the last row up to four bytes may be left away.
    return file.size() < pixels + (height - 1) * ((bits + 31) / 32 * 4) + (bits + 7) / 8;
}
