// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/Orientation.h"

#include "photo/metadata/ExifBlock.h"

#include <QBuffer>
#include <QColorSpace>
#include <QTransform>
#include <QtEndian>

int orientationOf(const QByteArray& exif)
{
    constexpr quint16 orientation = 0x0112;
    QBuffer buffer;
    buffer.setData(exif);
    buffer.open(QIODevice::ReadOnly);
    ExifBlock block = readExifBlock(buffer);
    const ExifEntry* const entry = ExifBlock::find(block.image, orientation);
    if (!entry || entry->value.size() != 2)
        return 1;
    const char* value = entry->value.constData();
    const int told = block.bigEndian ? qFromBigEndian<quint16>(value) : qFromLittleEndian<quint16>(value);
    return told >= 1 && told <= 8 ? told : 1;
}

QImage turnedUpright(const QImage& stored, int orientation)
{
    // 2 to 4 are mirrored alone; 5 to 8 are those of 1 to 4 and a quarter turn.
    const bool mirrored = orientation == 2 || orientation == 4 || orientation == 5 || orientation == 7;
    QImage image = mirrored ? stored.mirrored(true, false) : stored;
    const int turns[] = {0, 0, 180, 180, -90, 90, 90, -90};
    if (turns[orientation - 1] != 0)
        image = image.transformed(QTransform().rotate(turns[orientation - 1]));
    image.setColorSpace(stored.colorSpace());
    return image;
}
