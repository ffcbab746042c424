// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/metadata/FittingExif.h"

#include "photo/metadata/ExifBlock.h"

#include <QBuffer>
#include <exception>
#include <exiv2/exiv2.hpp>

namespace {

constexpr quint16 imageWidth = 0x0100, imageLength = 0x0101, orientation = 0x0112, software = 0x0131;
constexpr quint16 yCbCrPositioning = 0x0213, centred = 1;
constexpr quint16 colourSpace = 0xA001, pixelXDimension = 0xA002, pixelYDimension = 0xA003, interoperability = 0x0001;

using NoteValues = std::multimap<std::string, std::string>;

/// What the maker's note of a block says.
NoteValues noteValues(const QByteArray& exif)
{
    NoteValues values;
    Exiv2::ExifData entries;
    Exiv2::ExifParser::decode(
        entries, reinterpret_cast<const Exiv2::byte*>(exif.constData()), std::uint32_t(exif.size()));
    for (const Exiv2::Exifdatum& entry : entries)
        if (Exiv2::ExifTags::isMakerGroup(entry.groupName()))
            values.emplace(entry.key(), entry.toString());
    return values;
}

/// Whether the note of both blocks says the same; it does not where a part of it stood outside of it.
bool notesAreEqual(const QByteArray& a, const QByteArray& b)
{
    try {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        return noteValues(a) == noteValues(b);
    } catch (const std::exception&) {
        return false;
    }
}

ExifBlock blockOf(const QByteArray& exif)
{
    QBuffer buffer;
    buffer.setData(exif);
    buffer.open(QIODevice::ReadOnly);
    return readExifBlock(buffer);
}

} // namespace

QByteArray exifOf(QIODevice& device)
{
    return toBytes(readExifBlock(device));
}

QByteArray fittingExif(const QByteArray& exif, QSize size, bool withPlace)
{
    ExifBlock block = blockOf(exif);
    if (block.isEmpty())
        return {};
    if (!withPlace) {
        block.place.clear();
        ExifBlock::remove(block.photo, makerNoteTag);
    }
    block.setShort(block.image, orientation, 1);
    ExifBlock::setText(block.image, software, "Lumora");
    block.setShort(block.image, yCbCrPositioning, centred);
    if (ExifBlock::find(block.image, imageWidth))
        block.setLong(block.image, imageWidth, quint32(size.width()));
    if (ExifBlock::find(block.image, imageLength))
        block.setLong(block.image, imageLength, quint32(size.height()));
    block.setLong(block.photo, pixelXDimension, quint32(size.width()));
    block.setLong(block.photo, pixelYDimension, quint32(size.height()));
    if (ExifBlock::find(block.photo, colourSpace))
        block.setShort(block.photo, colourSpace, 1);
    if (ExifBlock::find(block.interoperability, interoperability))
        ExifBlock::setText(block.interoperability, interoperability, "R98");
    const QByteArray bytes = toBytes(block);
    if (!ExifBlock::find(block.photo, makerNoteTag) || notesAreEqual(exif, bytes))
        return bytes;
    ExifBlock::remove(block.photo, makerNoteTag);
    return toBytes(block);
}
