// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/metadata/FittingXmp.h"

#include "photo/metadata/Exiv2Bytes.h"

#include <QLatin1String>
#include <QString>
#include <algorithm>
#include <exception>
#include <exiv2/exiv2.hpp>

namespace {

/// Properties of the picture as it was, of others that stood behind it in the file, and of further XMP elsewhere.
constexpr const char* stale[] = {"Xmp.xmp.Thumbnails", "Xmp.xmpNote.HasExtendedXMP", "Xmp.GImage.", "Xmp.GDepth.",
    "Xmp.GContainer.", "Xmp.Container.", "Xmp.GCamera.MicroVideo", "Xmp.GCamera.MotionPhoto", "Xmp.hdrgm."};

/// Names of places; coordinates are known by their names.
constexpr const char* places[] = {"Xmp.photoshop.City", "Xmp.photoshop.State", "Xmp.photoshop.Country",
    "Xmp.iptc.Location", "Xmp.iptc.CountryCode", "Xmp.iptcExt.LocationShown", "Xmp.iptcExt.LocationCreated"};
constexpr const char* iptcPlaces[] = {"Iptc.Application2.City", "Iptc.Application2.SubLocation",
    "Iptc.Application2.ProvinceState", "Iptc.Application2.CountryCode", "Iptc.Application2.CountryName",
    "Iptc.Application2.LocationCode", "Iptc.Application2.LocationName"};

template <std::size_t n> bool beginsWithOne(const std::string& key, const char* const (&beginnings)[n])
{
    return std::ranges::any_of(beginnings, [&](const char* beginning) { return key.starts_with(beginning); });
}

/// A JPEG picture in base 64.
bool isPicture(const Exiv2::Xmpdatum& property)
{
    const std::string text = property.toString();
    return text.starts_with("/9j/") && text.size() > 100;
}

bool isPlace(const std::string& key)
{
    const QString name = QString::fromStdString(key);
    const auto tells = [&](const char* word) { return name.contains(QLatin1String(word), Qt::CaseInsensitive); };
    return beginsWithOne(key, places) || tells("gps") || tells("latitude") || tells("longitude");
}

/// Sets a value only where the source has one.
void replace(Exiv2::XmpData& xmp, const char* key, const std::string& value)
{
    const auto property = xmp.findKey(Exiv2::XmpKey(key));
    if (property != xmp.end())
        property->setValue(value);
}

template <class Data, class Condition> void removeIf(Data& data, Condition condition)
{
    for (auto entry = data.begin(); entry != data.end();)
        entry = condition(*entry) ? data.erase(entry) : std::next(entry);
}

} // namespace

QByteArray fittingXmp(const QByteArray& packet, QSize size, bool withPlace)
{
    try {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        Exiv2::XmpData xmp;
        if (packet.isEmpty() || Exiv2::XmpParser::decode(xmp, packet.toStdString()) != 0 || xmp.empty())
            return {};
        removeIf(xmp, [&](const Exiv2::Xmpdatum& property) {
            return beginsWithOne(property.key(), stale) || isPicture(property)
                || (!withPlace && isPlace(property.key()));
        });
        const std::string width = std::to_string(size.width()), height = std::to_string(size.height());
        replace(xmp, "Xmp.tiff.Orientation", "1");
        replace(xmp, "Xmp.tiff.ImageWidth", width);
        replace(xmp, "Xmp.tiff.ImageLength", height);
        replace(xmp, "Xmp.exif.PixelXDimension", width);
        replace(xmp, "Xmp.exif.PixelYDimension", height);
        replace(xmp, "Xmp.exif.ColorSpace", "1");
        replace(xmp, "Xmp.photoshop.ICCProfile", "sRGB");
        replace(xmp, "Xmp.tiff.Software", "Lumora");
        xmp["Xmp.xmp.CreatorTool"] = std::string("Lumora");
        std::string encoded;
        if (Exiv2::XmpParser::encode(encoded, xmp, Exiv2::XmpParser::useCompactFormat) != 0)
            return {};
        return QByteArray::fromStdString(encoded);
    } catch (const std::exception&) {
        return {};
    }
}

QByteArray fittingIptc(const QByteArray& records, bool withPlace)
{
    try {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        Exiv2::IptcData iptc;
        if (records.isEmpty()
            || Exiv2::IptcParser::decode(
                   iptc, reinterpret_cast<const Exiv2::byte*>(records.constData()), std::uint32_t(records.size()))
                != 0)
            return {};
        if (withPlace)
            return records;
        removeIf(iptc, [](const Exiv2::Iptcdatum& entry) { return beginsWithOne(entry.key(), iptcPlaces); });
        return copied(Exiv2::IptcParser::encode(iptc));
    } catch (const std::exception&) {
        return {};
    }
}
