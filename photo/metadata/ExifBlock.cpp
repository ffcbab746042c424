// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/metadata/ExifBlock.h"

#include "photo/TiffReader.h"

#include <QtEndian>
#include <algorithm>

namespace {

constexpr quint16 exifPointer = 0x8769, placePointer = 0x8825, interoperabilityPointer = 0xA005;
constexpr quint16 shortType = 3, longType = 4, textType = 2, lastType = 12;

/// Tags of a picture's storage in its own file, of previews, and of blocks that are kept by themselves.
constexpr quint16 leftOut[] = {0x00FE, 0x00FF, 0x0102, 0x0103, 0x0106, 0x0107, 0x010A, 0x0111, 0x0115, 0x0116, 0x0117,
    0x0118, 0x0119, 0x011C, 0x0120, 0x0121, 0x0122, 0x0123, 0x0124, 0x0125, 0x013D, 0x0140, 0x0142, 0x0143, 0x0144,
    0x0145, 0x014A, 0x014C, 0x0152, 0x0153, 0x0154, 0x0155, 0x015B, 0x0200, 0x0201, 0x0202, 0x0203, 0x0205, 0x0206,
    0x0207, 0x0208, 0x0209, 0x02BC, 0x83BB, 0x8649, 0x8773, exifPointer, placePointer, interoperabilityPointer};

/// Whether a JPEG picture begins in the bytes. Some makers spoil the first byte of their previews.
bool holdsPicture(const QByteArray& bytes)
{
    return bytes.contains("\xD8\xFF\xDB") || bytes.contains("\xD8\xFF\xE0") || bytes.contains("\xD8\xFF\xE1")
        || bytes.contains("\xD8\xFF\xC4") || bytes.contains("\xFF\xD8\xFF");
}

/// The entries at that position; the pointers among them go to `pointers`.
ExifBlock::Directory directoryAt(TiffReader& reader, quint64 position, std::vector<ExifEntry>* pointers = nullptr)
{
    ExifBlock::Directory entries;
    qsizetype total = 0;
    for (const TiffField& field : reader.fields(position)) {
        if (field.size == 0 || field.type > lastType || field.size > quint64(longestExif)
            || ExifBlock::find(entries, field.tag))
            continue;
        const ExifEntry entry = {field.tag, field.type, quint32(field.count), reader.bytes(field.position, field.size),
            quint32(field.position)};
        total += entry.value.size();
        if (entry.value.isEmpty() || total > 4 * longestExif)
            continue;
        if (std::ranges::count(leftOut, entry.tag) == 0 && !holdsPicture(entry.value))
            entries.push_back(entry);
        else if (pointers && field.size == 4)
            pointers->push_back(entry);
    }
    return entries;
}

/// Lays the directories and their values round the maker's note, which stays where it is.
class Writer {
public:
    Writer(bool bigEndian, const ExifEntry* note)
        : m_bigEndian(bigEndian)
        , m_bytes(8, 0)
    {
        if (!note)
            return;
        m_notePosition = note->position;
        m_bytes = QByteArray(m_notePosition, 0) + note->value;
    }

    /// Room for a directory of so many entries.
    quint32 directoryRoom(std::size_t entries) { return room(qsizetype(2 + 12 * entries + 4)); }

    void putDirectory(quint32 position, ExifBlock::Directory entries)
    {
        std::ranges::sort(entries, {}, &ExifEntry::tag);
        put16(position, quint16(entries.size()));
        quint32 at = position + 2;
        for (const ExifEntry& entry : entries) {
            put16(at, entry.tag);
            put16(at + 2, entry.type);
            put32(at + 4, entry.count);
            if (entry.value.size() <= 4)
                m_bytes.replace(at + 8, entry.value.size(), entry.value);
            else if (m_notePosition > 0 && entry.tag == makerNoteTag)
                put32(at + 8, quint32(m_notePosition));
            else
                put32(at + 8, putValue(entry.value));
            at += 12;
        }
        put32(at, 0);
    }

    QByteArray finish(quint32 firstDirectory)
    {
        m_bytes.replace(0, 2, m_bigEndian ? "MM" : "II");
        put16(2, 42);
        put32(4, firstDirectory);
        return m_bytes;
    }

private:
    quint32 room(qsizetype size)
    {
        m_gapBegins += m_gapBegins % 2;
        if (m_gapBegins + size <= m_notePosition) {
            const qsizetype position = m_gapBegins;
            m_gapBegins += size;
            return quint32(position);
        }
        const qsizetype position = m_bytes.size() + m_bytes.size() % 2;
        m_bytes.resize(position + size, 0);
        return quint32(position);
    }

    quint32 putValue(const QByteArray& value)
    {
        const quint32 position = room(value.size());
        m_bytes.replace(position, value.size(), value);
        return position;
    }

    void put16(quint32 position, quint16 value)
    {
        m_bigEndian ? qToBigEndian(value, m_bytes.data() + position)
                    : qToLittleEndian(value, m_bytes.data() + position);
    }

    void put32(quint32 position, quint32 value)
    {
        m_bigEndian ? qToBigEndian(value, m_bytes.data() + position)
                    : qToLittleEndian(value, m_bytes.data() + position);
    }

    bool m_bigEndian;
    QByteArray m_bytes;
    qsizetype m_notePosition = 0; ///< 0: no note
    qsizetype m_gapBegins = 8; ///< from here to the note there is room
};

QByteArray laidOut(ExifBlock block)
{
    const ExifEntry* const note = ExifBlock::find(block.photo, makerNoteTag);
    Writer writer(block.bigEndian, note && note->value.size() > 4 ? note : nullptr);
    // The first directory stands first where there is room, as some programs take it to.
    const bool hasInteroperability = !block.interoperability.empty();
    const bool hasPhoto = !block.photo.empty() || hasInteroperability, hasPlace = !block.place.empty();
    const quint32 first = writer.directoryRoom(block.image.size() + hasPhoto + hasPlace);
    const auto putPart = [&](const ExifBlock::Directory& part, ExifBlock::Directory& parent, quint16 pointer) {
        const quint32 position = writer.directoryRoom(part.size());
        writer.putDirectory(position, part);
        block.setLong(parent, pointer, position);
    };
    if (hasInteroperability)
        putPart(block.interoperability, block.photo, interoperabilityPointer);
    if (hasPhoto)
        putPart(block.photo, block.image, exifPointer);
    if (hasPlace)
        putPart(block.place, block.image, placePointer);
    writer.putDirectory(first, block.image);
    return writer.finish(first);
}

/// Removes the entry that takes most room.
void removeLongest(ExifBlock& block)
{
    ExifBlock::Directory* found = nullptr;
    std::size_t longest = 0;
    for (ExifBlock::Directory* directory : {&block.image, &block.photo, &block.place, &block.interoperability})
        for (std::size_t i = 0; i < directory->size(); i++)
            if (!found || (*directory)[i].value.size() > (*found)[longest].value.size()) {
                found = directory;
                longest = i;
            }
    found->erase(found->begin() + std::ptrdiff_t(longest));
}

} // namespace

ExifEntry* ExifBlock::find(Directory& directory, quint16 tag)
{
    const auto entry = std::ranges::find(directory, tag, &ExifEntry::tag);
    return entry == directory.end() ? nullptr : &*entry;
}

void ExifBlock::remove(Directory& directory, quint16 tag)
{
    std::erase_if(directory, [tag](const ExifEntry& entry) { return entry.tag == tag; });
}

void ExifBlock::setShort(Directory& directory, quint16 tag, quint16 value) const
{
    QByteArray bytes(2, 0);
    bigEndian ? qToBigEndian(value, bytes.data()) : qToLittleEndian(value, bytes.data());
    remove(directory, tag);
    directory.push_back({tag, shortType, 1, bytes, 0});
}

void ExifBlock::setLong(Directory& directory, quint16 tag, quint32 value) const
{
    QByteArray bytes(4, 0);
    bigEndian ? qToBigEndian(value, bytes.data()) : qToLittleEndian(value, bytes.data());
    remove(directory, tag);
    directory.push_back({tag, longType, 1, bytes, 0});
}

void ExifBlock::setText(Directory& directory, quint16 tag, const QByteArray& text)
{
    remove(directory, tag);
    directory.push_back({tag, textType, quint32(text.size() + 1), text + '\0', 0});
}

ExifBlock readExifBlock(QIODevice& device)
{
    ExifBlock block;
    TiffReader reader(device);
    if (!reader.isValid() || reader.isWide())
        return block;
    block.bigEndian = reader.isBigEndian();
    std::vector<ExifEntry> pointers, photoPointers;
    block.image = directoryAt(reader, reader.firstDirectory(), &pointers);
    const auto pointed = [&](std::vector<ExifEntry>& from, quint16 tag) {
        const ExifEntry* const pointer = ExifBlock::find(from, tag);
        return pointer ? reader.number(pointer->value) : 0;
    };
    block.photo = directoryAt(reader, pointed(pointers, exifPointer), &photoPointers);
    block.place = directoryAt(reader, pointed(pointers, placePointer));
    block.interoperability = directoryAt(reader, pointed(photoPointers, interoperabilityPointer));
    return block;
}

QByteArray blockOfTiff(QIODevice& device, quint16 tag, qint64 longest)
{
    TiffReader reader(device);
    if (!reader.isValid() || reader.isWide())
        return {};
    for (const TiffField& field : reader.fields(reader.firstDirectory()))
        if (field.tag == tag && field.size > 4 && field.size <= quint64(longest))
            return reader.bytes(field.position, field.size);
    return {};
}

QByteArray toBytes(ExifBlock block)
{
    const ExifEntry* const note = ExifBlock::find(block.photo, makerNoteTag);
    if (note && note->value.size() > 4 && (note->position < 8 || note->position > longestExif - note->value.size()))
        ExifBlock::remove(block.photo, makerNoteTag);
    while (!block.isEmpty()) {
        const QByteArray bytes = laidOut(block);
        if (bytes.size() <= longestExif)
            return bytes;
        removeLongest(block);
    }
    return {};
}
