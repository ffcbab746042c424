// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <vector>

class QIODevice;

/// A value of an EXIF block, in the byte order of the block.
struct ExifEntry {
    quint16 tag = 0;
    quint16 type = 0;
    quint32 count = 0;
    QByteArray value;
    quint32 position = 0; ///< where the value stood in the block
};

/// What an EXIF block or a TIFF file says about its first picture, without previews and without what only describes how
/// the pixels of that file are stored.
struct ExifBlock {
    using Directory = std::vector<ExifEntry>;

    bool bigEndian = false;
    Directory image, photo, place, interoperability;

    bool isEmpty() const { return image.empty() && photo.empty() && place.empty(); }
    static ExifEntry* find(Directory& directory, quint16 tag);
    static void remove(Directory& directory, quint16 tag);
    /// Sets a whole number of 16 bits.
    void setShort(Directory& directory, quint16 tag, quint16 value) const;
    /// Sets a whole number of 32 bits.
    void setLong(Directory& directory, quint16 tag, quint32 value) const;
    static void setText(Directory& directory, quint16 tag, const QByteArray& text);
};

constexpr quint16 makerNoteTag = 0x927C; ///< what only the camera's maker can read, in `photo`

/// The most bytes of an EXIF block in a JPEG file.
constexpr qsizetype longestExif = 65527;

/// Reads a block or a TIFF file from the device's beginning. What is broken or larger than a block can be is left out;
/// nothing of what is neither.
ExifBlock readExifBlock(QIODevice& device);

/// The value of one tag of a TIFF file's first directory, as a block that is kept by itself; empty where there is none,
/// or one of more than `longest` bytes.
QByteArray blockOfTiff(QIODevice& device, quint16 tag, qint64 longest);

/// The block as bytes. A maker's note stays where it was, as it may count from the block's beginning; it is left out
/// where that is too far away, and so is the longest of the rest until all fits. Empty for an empty block.
QByteArray toBytes(ExifBlock block);
