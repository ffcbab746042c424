// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>

class QIODevice;

/// What a TIFF directory tells of one tag.
struct TiffField {
    quint16 tag = 0, type = 0;
    quint64 count = 0;
    quint64 size = 0; ///< of all values in bytes; 0 of an unknown type
    quint64 position = 0; ///< of the values in the file
};

/// Walks through the directories of a TIFF file, or of a block that is built like one, as EXIF is: of either byte order
/// and either size of its numbers. Nothing in it is believed: what is not wholly in the file is not there.
class TiffReader {
public:
    /// The file begins where the device does; the device is left anywhere.
    explicit TiffReader(QIODevice& file);

    bool isValid() const { return m_version == 42 || isWide(); }
    bool isWide() const { return m_version == 43; } ///< BigTIFF
    bool isBigEndian() const { return m_isBigEndian; }

    /// Where it is; 0 for none.
    quint64 firstDirectory();
    /// The first 4096 fields of the directory there. One that is cut off ends there.
    QList<TiffField> fields(quint64 directory);
    /// Empty where they are not all in the file.
    QByteArray bytes(quint64 position, quint64 size);
    /// The first values of a field, which is one of whole numbers without a sign; none of other fields.
    QList<quint64> numbers(const TiffField& field, quint64 most);
    quint64 number(QByteArrayView bytes) const;

private:
    quint64 numberAt(quint64 position, int size) { return number(bytes(position, quint64(size))); }

    QIODevice& m_file;
    quint64 m_size;
    bool m_isBigEndian = false;
    quint64 m_version = 0;
};
