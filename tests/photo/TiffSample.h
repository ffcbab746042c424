// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>

namespace samples {

/// An entry of a TIFF directory.
struct TiffEntry {
    quint16 tag, type;
    quint32 count;
    QByteArray values; ///< little endian
};

TiffEntry bytes(quint16 tag, const QByteArray& values);
TiffEntry text(quint16 tag, const QByteArray& value);
TiffEntry shorts(quint16 tag, const QList<int>& values);
TiffEntry longs(quint16 tag, const QList<qint64>& values);
/// Each number over 10,000.
TiffEntry rationals(quint16 tag, const QList<double>& values, bool isSigned = false);

/// A little-endian TIFF file of one picture in strips, which stand in the order of the file. The entries tell all but
/// where the strips are.
QByteArray tiff(QList<TiffEntry> entries, const QList<QByteArray>& strips);

/// The entries of a picture without compression: `photometric` 1 is grey, 2 red, green and blue, 32803 a sensor's.
QList<TiffEntry> tiffPicture(int width, int height, int bits, int channels, int photometric, bool planar = false);

} // namespace samples
