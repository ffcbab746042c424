// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/metadata/JpegMetadata.h"

#include "photo/metadata/FittingExif.h"
#include "photo/metadata/FittingXmp.h"

#include <QtEndian>

namespace {

constexpr char app0 = char(0xE0), app1 = char(0xE1), app13 = char(0xED), comment = char(0xFE);

QByteArray number(quint16 value)
{
    QByteArray bytes(2, 0);
    qToBigEndian(value, bytes.data());
    return bytes;
}

/// A marker segment; empty without a payload, or where it is too long for one.
QByteArray segment(char marker, const QByteArray& heading, const QByteArray& payload)
{
    const qsizetype length = 2 + heading.size() + payload.size();
    if (payload.isEmpty() || length > 0xFFFF)
        return {};
    return QByteArray("\xFF") + marker + number(quint16(length)) + heading + payload;
}

/// The records as an image resource, the only one.
QByteArray asResource(const QByteArray& iptc)
{
    if (iptc.isEmpty() || iptc.size() > 0xFFFF)
        return {};
    return QByteArray("8BIM\x04\x04\0\0\0\0", 10) + number(quint16(iptc.size())) + iptc
        + QByteArray(iptc.size() % 2, 0);
}

/// Where the segments go: after the start of the picture and the segment that names the format.
qsizetype endOfHeading(const QByteArray& jpeg)
{
    const bool isNamed = jpeg.size() > 6 && jpeg[2] == char(0xFF) && jpeg[3] == app0;
    return isNamed ? 4 + qFromBigEndian<quint16>(jpeg.constData() + 4) : 2;
}

} // namespace

QByteArray withMetadata(const QByteArray& jpeg, const PhotoMetadata& metadata, QSize size, Kept kept)
{
    if (kept == Kept::Nothing)
        return jpeg;
    const bool withPlace = kept == Kept::Everything;
    const QByteArray segments = segment(app1, QByteArray("Exif\0\0", 6), fittingExif(metadata.exif, size, withPlace))
        + segment(app1, QByteArray("http://ns.adobe.com/xap/1.0/\0", 29), fittingXmp(metadata.xmp, size, withPlace))
        + segment(app13, QByteArray("Photoshop 3.0\0", 14), asResource(fittingIptc(metadata.iptc, withPlace)))
        + segment(comment, {}, metadata.comment);
    return segments.isEmpty() ? jpeg : QByteArray(jpeg).insert(endOfHeading(jpeg), segments);
}
