#include "photo/formats/TiffDirectories.h"

#include <QIODevice>
#include <QtEndian>
#include <algorithm>

namespace {

constexpr int mostDirectories = 32, mostEntries = 512, mostValues = 64;

/// Reads the numbers of a file in its byte order.
class Numbers {
public:
    Numbers(QIODevice& file, bool isBig)
        : m_file(file)
        , m_isBig(isBig)
    {
    }

    quint16 word(const char* at) const
    {
        return m_isBig ? qFromBigEndian<quint16>(at) : qFromLittleEndian<quint16>(at);
    }
    quint32 number(const char* at) const
    {
        return m_isBig ? qFromBigEndian<quint32>(at) : qFromLittleEndian<quint32>(at);
    }

    QByteArray at(qint64 position, qint64 size) const
    {
        return m_file.seek(position) ? m_file.read(size) : QByteArray();
    }

    /// The first whole numbers of a directory's entry of 12 bytes.
    QList<quint32> values(const char* entry) const
    {
        const int type = word(entry + 2), size = type == 1 ? 1 : type == 3 ? 2 : type == 4 || type == 13 ? 4 : 0;
        const auto count = std::min<quint32>(number(entry + 4), mostValues);
        if (size == 0 || count == 0)
            return {};
        const QByteArray bytes =
            size * count <= 4 ? QByteArray(entry + 8, 4) : at(number(entry + 8), qint64(size) * count);
        QList<quint32> found;
        for (qsizetype i = 0; i < qsizetype(count) && (i + 1) * size <= bytes.size(); i++) {
            const char* value = bytes.constData() + i * size;
            found << (size == 1 ? quint8(*value) : size == 2 ? word(value) : number(value));
        }
        return found;
    }

private:
    QIODevice& m_file;
    bool m_isBig;
};

/// Takes one entry; `further` gets where other directories are.
void take(TiffDirectory& directory, int tag, const QList<quint32>& values, QList<qint64>& further)
{
    enum {
        bitsOfChannels = 258,
        photometric = 262,
        channels = 277,
        planar = 284,
        within = 330,
        format = 339,
        dngVersion = 50706
    };
    if (values.isEmpty())
        return;
    const int first = int(values.first());
    switch (tag) {
    case bitsOfChannels:
        directory.bits = QList<int>(values.begin(), values.end());
        break;
    case photometric:
        directory.photometric = first;
        break;
    case channels:
        directory.channels = first;
        break;
    case planar:
        directory.planar = first;
        break;
    case format:
        directory.format = first;
        break;
    case dngVersion:
        directory.isDng = true;
        break;
    case within:
        further += QList<qint64>(values.begin(), values.end());
        break;
    default:
        break;
    }
}

} // namespace

bool isTiff(const QByteArray& head)
{
    return head.startsWith(QByteArray("II*\0", 4)) || head.startsWith(QByteArray("MM\0*", 4));
}

QList<TiffDirectory> readTiffDirectories(QIODevice& file)
{
    file.seek(0);
    const QByteArray head = file.read(8);
    if (head.size() < 8 || !isTiff(head))
        return {};
    const Numbers numbers(file, head.startsWith('M'));
    QList<qint64> places = {numbers.number(head.constData() + 4)};
    QList<TiffDirectory> found;
    for (qsizetype i = 0; i < places.size() && i < mostDirectories; i++) {
        const QByteArray count = numbers.at(places[i], 2);
        if (count.size() < 2)
            continue;
        const int entries = std::min<int>(numbers.word(count.constData()), mostEntries);
        const QByteArray table = numbers.at(places[i] + 2, entries * 12);
        TiffDirectory directory;
        for (qsizetype at = 0; at + 12 <= table.size(); at += 12)
            take(directory, numbers.word(table.constData() + at), numbers.values(table.constData() + at), places);
        found << directory;
    }
    return found;
}
