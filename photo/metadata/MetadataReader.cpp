// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/metadata/MetadataReader.h"

#include "photo/JpegMarkers.h"
#include "photo/metadata/ExifBlock.h"
#include "photo/metadata/Exiv2Bytes.h"
#include "photo/metadata/FittingExif.h"

#include <QBuffer>
#include <QIODevice>
#include <QtEndian>
#include <algorithm>
#include <exception>
#include <exiv2/exiv2.hpp>

namespace {

constexpr int mostChunks = 100'000;

const Exiv2::byte* bytesOf(const QByteArray& data)
{
    return reinterpret_cast<const Exiv2::byte*>(data.constData());
}

/// An EXIF block with or without its heading.
QByteArray exifBlock(QByteArray block)
{
    if (block.startsWith(QByteArray("Exif\0\0", 6)))
        block.remove(0, 6);
    QBuffer buffer(&block);
    buffer.open(QIODevice::ReadOnly);
    return exifOf(buffer);
}

PhotoMetadata ofJpeg(const JpegMarkers& markers)
{
    return {markers.exif, markers.xmp, iptcAmong(markers.resources), markers.comment};
}

PhotoMetadata ofWebP(QIODevice& device)
{
    PhotoMetadata metadata;
    qint64 at = 12;
    for (int chunk = 0; chunk < mostChunks && device.seek(at); chunk++) {
        char heading[8];
        if (device.read(heading, 8) < 8)
            break;
        const qint64 size = qFromLittleEndian<quint32>(heading + 4);
        const QByteArrayView name(heading, 4);
        if (name == "EXIF" && size <= longestBlock)
            metadata.exif = exifBlock(device.read(size));
        else if (name == "XMP " && size <= longestBlock)
            metadata.xmp = device.read(size);
        at += 8 + size + size % 2;
    }
    return metadata;
}

/// The texts of a PNG file as a PNG file of their own, for the library, which would read the picture too. The EXIF
/// block and the comment, which it would not give as they are, go to `metadata`.
QByteArray withoutPicture(QIODevice& device, PhotoMetadata& metadata)
{
    QByteArray file = device.read(8);
    qint64 at = 8;
    for (int chunk = 0; chunk < mostChunks && device.seek(at); chunk++) {
        const QByteArray heading = device.read(8);
        if (heading.size() < 8)
            break;
        const qint64 size = qFromBigEndian<quint32>(heading.constData());
        const QByteArray name = heading.mid(4);
        if (name == "eXIf" && size <= longestBlock)
            metadata.exif = exifBlock(device.read(size));
        else if (size <= longestBlock && file.size() < 4 * longestBlock
            && (name == "IHDR" || name == "tEXt" || name == "zTXt" || name == "iTXt" || name == "IEND")) {
            const QByteArray data = device.read(size + 4);
            file += heading + data;
            if (name == "tEXt" && data.startsWith(QByteArray("Comment\0", 8)))
                metadata.comment = data.mid(8, size - 8);
        }
        at += 12 + size;
    }
    return file;
}

/// The entries as a block. Written anew, a maker's note would not stand where it was, and is left out.
QByteArray writtenAnew(Exiv2::ExifData& entries)
{
    for (auto entry = entries.begin(); entry != entries.end();)
        entry = entry->key() == "Exif.Photo.MakerNote" || Exiv2::ExifTags::isMakerGroup(entry->groupName())
            ? entries.erase(entry)
            : std::next(entry);
    if (entries.empty())
        return {};
    Exiv2::Blob blob;
    Exiv2::ExifParser::encode(blob, Exiv2::littleEndian, entries);
    return exifBlock(QByteArray(reinterpret_cast<const char*>(blob.data()), qsizetype(blob.size())));
}

PhotoMetadata ofPng(QIODevice& device)
{
    PhotoMetadata metadata;
    const QByteArray file = withoutPicture(device, metadata);
    const auto image = Exiv2::ImageFactory::open(bytesOf(file), long(file.size()));
    image->readMetadata();
    metadata.xmp = QByteArray::fromStdString(image->xmpPacket());
    if (metadata.comment.isEmpty())
        metadata.comment = QByteArray::fromStdString(image->comment());
    metadata.iptc = copied(Exiv2::IptcParser::encode(image->iptcData()));
    if (metadata.exif.isEmpty())
        metadata.exif = writtenAnew(image->exifData());
    return metadata;
}

/// The block of a file that stores a picture as a TIFF does, without what tells how: the size, which in a JPEG another
/// place tells, and how a sensor's pixels lie and are developed.
QByteArray withoutStorage(ExifBlock block)
{
    constexpr quint16 tags[] = {0x0100, 0x0101, 0x828D, 0x828E}, firstOfDng = 0xC612, lastOfDng = 0xCDFF;
    std::erase_if(block.image, [&](const ExifEntry& entry) {
        return std::ranges::count(tags, entry.tag) > 0 || (entry.tag >= firstOfDng && entry.tag <= lastOfDng);
    });
    return toBytes(block);
}

PhotoMetadata ofTiff(QIODevice& device)
{
    PhotoMetadata metadata;
    metadata.exif = withoutStorage(readExifBlock(device));
    metadata.xmp = blockOfTiff(device, 0x02BC, longestBlock);
    metadata.iptc = blockOfTiff(device, 0x83BB, longestBlock);
    if (metadata.iptc.isEmpty())
        metadata.iptc = iptcAmong(blockOfTiff(device, 0x8649, longestBlock));
    return metadata;
}

} // namespace

PhotoMetadata readMetadata(QIODevice& device, const JpegMarkers& markers)
{
    try {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        device.seek(0);
        const QByteArray start = device.peek(12);
        if (start.startsWith("\xFF\xD8"))
            return ofJpeg(markers);
        if (start.startsWith("\x89PNG\r\n\x1A\n"))
            return ofPng(device);
        if (start.startsWith("RIFF") && start.endsWith("WEBP"))
            return ofWebP(device);
        return ofTiff(device);
    } catch (const std::exception&) {
        return {};
    }
}

PhotoMetadata metadataByLibrary(const QByteArray& file)
{
    try {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        readBmff();
        const auto image = Exiv2::ImageFactory::open(bytesOf(file), long(file.size()));
        image->readMetadata();
        QByteArray block = writtenAnew(image->exifData());
        QBuffer buffer(&block);
        buffer.open(QIODevice::ReadOnly);
        return {withoutStorage(readExifBlock(buffer)), QByteArray::fromStdString(image->xmpPacket())};
    } catch (const std::exception&) {
        return {};
    }
}
