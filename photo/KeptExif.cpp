#include "photo/KeptExif.h"

#include <cstdint>
#include <exception>
#include <exiv2/exiv2.hpp>

namespace {

const Exiv2::byte* bytesOf(const QByteArray& data)
{
    return reinterpret_cast<const Exiv2::byte*>(data.constData());
}

/// Sets a value only where the source has one.
template <class T> void replace(Exiv2::ExifData& exif, const char* key, const T& value)
{
    const auto entry = exif.findKey(Exiv2::ExifKey(key));
    if (entry != exif.end())
        *entry = value;
}

void makeFit(Exiv2::ExifData& exif, QSize size)
{
    const auto width = std::uint32_t(size.width()), height = std::uint32_t(size.height());
    Exiv2::ExifThumb(exif).erase();
    exif["Exif.Image.Orientation"] = std::uint16_t(1);
    exif["Exif.Photo.PixelXDimension"] = width;
    exif["Exif.Photo.PixelYDimension"] = height;
    replace(exif, "Exif.Image.ImageWidth", width);
    replace(exif, "Exif.Image.ImageLength", height);
    replace(exif, "Exif.Photo.ColorSpace", std::uint16_t(1));
    replace(exif, "Exif.Iop.InteroperabilityIndex", std::string("R98"));
}

} // namespace

QByteArray withExif(const QByteArray& jpeg, const QByteArray& exif, QSize size)
{
    try {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        Exiv2::ExifData entries;
        const Exiv2::ByteOrder order = Exiv2::ExifParser::decode(entries, bytesOf(exif), std::uint32_t(exif.size()));
        if (order == Exiv2::invalidByteOrder || entries.empty())
            return jpeg;
        makeFit(entries, size);
        const auto image = Exiv2::ImageFactory::open(bytesOf(jpeg), long(jpeg.size()));
        image->readMetadata();
        image->setByteOrder(order);
        image->setExifData(entries);
        image->writeMetadata();
        Exiv2::BasicIo& io = image->io();
        return QByteArray(reinterpret_cast<const char*>(io.mmap()), qsizetype(io.size()));
    } catch (const std::exception&) {
        return jpeg;
    }
}
