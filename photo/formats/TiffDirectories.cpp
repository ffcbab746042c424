// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/TiffDirectories.h"

#include "photo/TiffReader.h"

namespace {

constexpr qsizetype mostDirectories = 32;
constexpr quint64 mostValues = 64;

/// Takes one entry; `further` gets where other directories are.
void take(TiffDirectory& directory, int tag, const QList<quint64>& values, QList<quint64>& further)
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
        further += values;
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
    TiffReader reader(file);
    if (!reader.isValid() || reader.isWide())
        return {};
    QList<quint64> places = {reader.firstDirectory()};
    QList<TiffDirectory> found;
    for (qsizetype i = 0; i < places.size() && i < mostDirectories; i++) {
        const QList<TiffField> fields = reader.fields(places[i]);
        TiffDirectory directory;
        for (const TiffField& field : fields)
            take(directory, field.tag, reader.numbers(field, mostValues), places);
        if (!fields.isEmpty())
            found << directory;
    }
    return found;
}
