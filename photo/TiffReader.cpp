// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/TiffReader.h"

#include <QIODevice>
#include <algorithm>
#include <limits>

namespace {

constexpr quint64 mostFields = 4096;

quint64 sizeOf(quint16 type)
{
    constexpr quint64 sizes[] = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4, 0, 0, 8, 8, 8};
    return type < std::size(sizes) ? sizes[type] : 0;
}

bool isWholeNumber(quint16 type)
{
    enum { byte = 1, shortNumber = 3, longNumber = 4, directory = 13, longestNumber = 16 };
    return type == byte || type == shortNumber || type == longNumber || type == directory || type == longestNumber;
}

} // namespace

TiffReader::TiffReader(QIODevice& file)
    : m_file(file)
    , m_size(quint64(file.size()))
{
    const QByteArray order = bytes(0, 2);
    m_isBigEndian = order == "MM";
    if (m_isBigEndian || order == "II")
        m_version = numberAt(2, 2);
}

quint64 TiffReader::firstDirectory()
{
    return isWide() ? numberAt(8, 8) : numberAt(4, 4);
}

QList<TiffField> TiffReader::fields(quint64 directory)
{
    const int wide = isWide() ? 8 : 4;
    const quint64 headSize = isWide() ? 8 : 2, fieldSize = isWide() ? 20 : 12;
    if (directory == 0 || directory > m_size || m_size - directory < headSize)
        return {};
    const quint64 begin = directory + headSize;
    const quint64 count = std::min({numberAt(directory, int(headSize)), mostFields, (m_size - begin) / fieldSize});
    const QByteArray table = bytes(begin, count * fieldSize);
    QList<TiffField> found;
    for (qsizetype at = 0; at < table.size(); at += qsizetype(fieldSize)) {
        const QByteArrayView entry = QByteArrayView(table).sliced(at);
        TiffField field;
        field.tag = quint16(number(entry.first(2)));
        field.type = quint16(number(entry.sliced(2, 2)));
        field.count = number(entry.sliced(4, wide));
        const quint64 size = sizeOf(field.type);
        field.size = size > 0 && field.count > std::numeric_limits<quint64>::max() / size
            ? std::numeric_limits<quint64>::max()
            : field.count * size;
        const quint64 inside = begin + quint64(at) + 4 + quint64(wide);
        field.position = field.size <= quint64(wide) ? inside : number(entry.sliced(4 + wide, wide));
        found << field;
    }
    return found;
}

QByteArray TiffReader::bytes(quint64 position, quint64 size)
{
    if (size == 0 || position > m_size || size > m_size - position || !m_file.seek(qint64(position)))
        return {};
    const QByteArray found = m_file.read(qint64(size));
    return quint64(found.size()) == size ? found : QByteArray();
}

QList<quint64> TiffReader::numbers(const TiffField& field, quint64 most)
{
    if (!isWholeNumber(field.type))
        return {};
    const quint64 size = sizeOf(field.type);
    const QByteArray values = bytes(field.position, std::min(field.count, most) * size);
    QList<quint64> found;
    for (qsizetype at = 0; at < values.size(); at += qsizetype(size))
        found << number(QByteArrayView(values).sliced(at, qsizetype(size)));
    return found;
}

quint64 TiffReader::number(QByteArrayView bytes) const
{
    quint64 result = 0;
    for (qsizetype i = 0; i < bytes.size(); i++)
        result |= quint64(uchar(bytes[m_isBigEndian ? bytes.size() - 1 - i : i])) << (8 * i);
    return result;
}
