// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/heif/ItemReferences.h"

#include <QHash>
#include <QList>
#include <QtEndian>
#include <algorithm>

namespace {

constexpr int maxDepth = 8;
constexpr int maxSteps = 1'000'000;

/// The pictures that each picture is made of, by their numbers in the file.
using Parts = QHash<quint32, QList<quint32>>;

/// Takes big-endian numbers from some bytes, which are gone then; 0 beyond the end.
template <class Number> Number take(QByteArrayView& bytes)
{
    const bool isThere = bytes.size() >= qsizetype(sizeof(Number));
    const Number number = isThere ? qFromBigEndian<Number>(bytes.data()) : 0;
    bytes = isThere ? bytes.sliced(sizeof(Number)) : QByteArrayView();
    return number;
}

struct Box {
    QByteArrayView type, content;
};

/// The size of the box, the type and what stands before its content.
quint64 takeHeader(QByteArrayView& bytes, QByteArrayView& type)
{
    quint64 size = take<quint32>(bytes);
    type = bytes.first(std::min<qsizetype>(bytes.size(), 4));
    take<quint32>(bytes);
    if (size == 1)
        size = take<quint64>(bytes);
    return size;
}

/// The next box; one that claims more than there is ends with the bytes.
Box takeBox(QByteArrayView& bytes)
{
    Box box;
    const QByteArrayView whole = bytes;
    const quint64 size = takeHeader(bytes, box.type);
    const qsizetype headerSize = whole.size() - bytes.size();
    const quint64 contentSize = size == 0 ? quint64(bytes.size()) : size - std::min<quint64>(size, headerSize);
    box.content = bytes.first(qsizetype(std::min<quint64>(contentSize, quint64(bytes.size()))));
    bytes = bytes.sliced(box.content.size());
    return box;
}

/// Reads references as the library does, which passes over the sizes that their headers claim.
void addReferences(QByteArrayView bytes, Parts& parts)
{
    const bool isWide = (take<quint32>(bytes) >> 24) != 0;
    const auto takeNumber = [&] { return isWide ? take<quint32>(bytes) : take<quint16>(bytes); };
    while (!bytes.isEmpty()) {
        QByteArrayView type;
        takeHeader(bytes, type);
        const quint32 from = takeNumber();
        for (int count = take<quint16>(bytes); count > 0 && !bytes.isEmpty(); count--) {
            const quint32 to = takeNumber();
            if (type == "dimg")
                parts[from] << to;
            else if (type == "auxl")
                parts[to] << from;
        }
    }
}

Parts partsOf(QByteArrayView file)
{
    Parts parts;
    while (!file.isEmpty()) {
        Box box = takeBox(file);
        if (box.type != "meta")
            continue;
        take<quint32>(box.content); // its version
        while (!box.content.isEmpty())
            if (const Box inner = takeBox(box.content); inner.type == "iref")
                addReferences(inner.content, parts);
    }
    return parts;
}

bool comesToAnEnd(const Parts& parts, quint32 picture, int depth, int& steps)
{
    if (depth > maxDepth || ++steps > maxSteps)
        return false;
    const QList<quint32> of = parts.value(picture);
    return std::all_of(of.begin(), of.end(), [&](quint32 part) { return comesToAnEnd(parts, part, depth + 1, steps); });
}

} // namespace

bool itemsComeToAnEnd(const QByteArray& file)
{
    const Parts parts = partsOf(file);
    int steps = 0;
    return std::all_of(
        parts.keyBegin(), parts.keyEnd(), [&](quint32 picture) { return comesToAnEnd(parts, picture, 0, steps); });
}
