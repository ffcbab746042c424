// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/TiffSample.h"

#include <QtEndian>
#include <algorithm>
#include <cmath>

namespace samples {

namespace {

template <class Number> QByteArray little(Number number)
{
    QByteArray result(sizeof number, '\0');
    qToLittleEndian(number, result.data());
    return result;
}

} // namespace

TiffEntry bytes(quint16 tag, const QByteArray& values)
{
    return {tag, 1, quint32(values.size()), values};
}

TiffEntry text(quint16 tag, const QByteArray& value)
{
    return {tag, 2, quint32(value.size() + 1), value + '\0'};
}

TiffEntry shorts(quint16 tag, const QList<int>& values)
{
    TiffEntry entry = {tag, 3, quint32(values.size()), {}};
    for (const int value : values)
        entry.values += little(quint16(value));
    return entry;
}

TiffEntry longs(quint16 tag, const QList<qint64>& values)
{
    TiffEntry entry = {tag, 4, quint32(values.size()), {}};
    for (const qint64 value : values)
        entry.values += little(quint32(value));
    return entry;
}

TiffEntry rationals(quint16 tag, const QList<double>& values, bool isSigned)
{
    TiffEntry entry = {tag, quint16(isSigned ? 10 : 5), quint32(values.size()), {}};
    for (const double value : values)
        entry.values += little(qint32(std::lround(value * 10000))) + little(qint32(10000));
    return entry;
}

QByteArray tiff(QList<TiffEntry> entries, const QList<QByteArray>& strips)
{
    constexpr qint64 headerSize = 8, entrySize = 12;
    QByteArray data;
    QList<qint64> offsets, sizes;
    for (const QByteArray& strip : strips) {
        offsets << headerSize + data.size();
        sizes << strip.size();
        data += strip + QByteArray(strip.size() % 2, '\0');
    }
    entries << longs(273, offsets) << longs(279, sizes);
    std::sort(entries.begin(), entries.end(), [](const auto& a, const auto& b) { return a.tag < b.tag; });
    const qint64 directory = headerSize + data.size();
    qint64 after = directory + 2 + entries.size() * entrySize + 4;
    QByteArray table = little(quint16(entries.size())), beyond;
    for (const TiffEntry& entry : entries) {
        table += little(entry.tag) + little(entry.type) + little(entry.count);
        if (entry.values.size() <= 4) {
            table += entry.values.leftJustified(4, '\0');
            continue;
        }
        table += little(quint32(after + beyond.size()));
        beyond += entry.values + QByteArray(entry.values.size() % 2, '\0');
    }
    return QByteArray("II*\0", 4) + little(quint32(directory)) + data + table + QByteArray(4, '\0') + beyond;
}

QList<TiffEntry> tiffPicture(int width, int height, int bits, int channels, int photometric, bool planar)
{
    return {shorts(256, {width}), shorts(257, {height}), shorts(258, QList<int>(channels, bits)), shorts(259, {1}),
        shorts(262, {photometric}), shorts(277, {channels}), shorts(278, {height}), shorts(284, {planar ? 2 : 1})};
}

} // namespace samples
