// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/UnsupportedKind.h"

#include "photo/formats/TiffDirectories.h"

#include <QIODevice>
#include <QtEndian>
#include <algorithm>

namespace {

bool isUnsupportedBmp(const QByteArray& head)
{
    if (head.size() < 30 || !head.startsWith("BM"))
        return false;
    const auto headerSize = qFromLittleEndian<quint32>(head.constData() + 14);
    const bool isKnownSize = headerSize == 12 || headerSize == 40 || headerSize == 108 || headerSize == 124;
    const bool isOtherSize = headerSize > 12 && headerSize < 124 && !isKnownSize;
    return isOtherSize
        || (isKnownSize && qFromLittleEndian<quint16>(head.constData() + (headerSize == 12 ? 24 : 28)) == 2);
}

bool isUnsupportedTiff(QIODevice& file)
{
    const QList<TiffDirectory> directories = readTiffDirectories(file);
    if (directories.isEmpty())
        return false;
    const TiffDirectory& first = directories.first();
    const bool isRareDepth = std::any_of(first.bits.begin(), first.bits.end(),
        [&](int bits) { return bits != 1 && bits != 8 && bits != 16 && (bits != 32 || first.format != 3); });
    constexpr int planes = 2;
    return isRareDepth || (first.planar == planes && first.channels > 1 && first.bits.value(0) > 8);
}

} // namespace

bool isUnsupportedKind(QIODevice& file)
{
    return file.seek(0) && (isUnsupportedBmp(file.peek(32)) || isUnsupportedTiff(file));
}
