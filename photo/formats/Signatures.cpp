// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/Signatures.h"

#include "photo/formats/TiffDirectories.h"

#include <QIODevice>
#include <QtEndian>
#include <algorithm>

namespace {

/// The names of the kinds that a file of boxes says it can be read as; empty for another file.
QByteArrayList brandsOf(const QByteArray& head)
{
    if (head.mid(4, 4) != "ftyp")
        return {};
    const qsizetype size = std::min<qsizetype>(qFromBigEndian<quint32>(head.constData()), head.size());
    QByteArrayList brands;
    for (qsizetype at = 8; at + 4 <= size; at += 4)
        if (at != 12) // a version
            brands << head.mid(at, 4);
    return brands;
}

bool isAnyOf(const QByteArrayList& brands, std::initializer_list<const char*> wanted)
{
    return std::any_of(wanted.begin(), wanted.end(), [&](const char* brand) { return brands.contains(brand); });
}

bool isRawMagic(const QByteArray& head)
{
    const QByteArray starts[] = {"FUJIFILMCCD-RAW ", "IIRO", "IIRS", "MMOR", QByteArray("IIU\0", 4), "FOVb",
        QByteArray("\0MRM", 4), QByteArray("II\x1A\0\0\0HEAPCCDR", 14)};
    return std::any_of(
        std::begin(starts), std::end(starts), [&](const QByteArray& start) { return head.startsWith(start); });
}

bool isRawTiff(QIODevice& file)
{
    const QList<TiffDirectory> directories = readTiffDirectories(file);
    return std::any_of(
        directories.begin(), directories.end(), [](const TiffDirectory& directory) { return directory.isOfSensor(); });
}

} // namespace

Signature signatureOf(QIODevice& file)
{
    file.seek(0);
    const QByteArray head = file.peek(256);
    const QByteArrayList brands = brandsOf(head);
    if (brands.contains("crx "))
        return Signature::Raw;
    if (isAnyOf(brands, {"heic", "heix", "heim", "heis", "hevc", "hevx", "mif1", "msf1", "avif", "avis"}))
        return Signature::Heif;
    if (head.startsWith("\xFF\x0A") || head.startsWith(QByteArray("\0\0\0\x0CJXL \r\n\x87\n", 12)))
        return Signature::Jxl;
    const bool isRaw = isRawMagic(head) || (isTiff(head) && head.mid(8, 2) == "CR") || isRawTiff(file);
    return isRaw ? Signature::Raw : Signature::Other;
}
