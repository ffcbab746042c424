// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/JpegMarkers.h"
#include "photo/PhotoLoader.h"
#include "photo/PhotoSaver.h"
#include "photo/formats/ExifItem.h"
#include "photo/metadata/MetadataReader.h"
#include "tests/photo/CarriedMetadata.h"
#include "tests/photo/PhoneSamples.h"
#include "tests/photo/Samples.h"
#include "tests/photo/TiffSample.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <QTest>
#include <exiv2/exiv2.hpp>
#include <iterator>
#include <random>

namespace {

using Image = decltype(openedImage({}));

QByteArray written(Image& image)
{
    image->writeMetadata();
    Exiv2::BasicIo& io = image->io();
    return QByteArray(reinterpret_cast<const char*>(io.mmap()), qsizetype(io.size()));
}

/// The value under a key of any of the three kinds; "none" without one.
std::string value(const Image& image, const std::string& key)
{
    const auto found = [](const auto& data, const auto& dataKey) {
        const auto entry = data.findKey(dataKey);
        return entry == data.end() ? std::string("none") : entry->toString();
    };
    if (key.starts_with("Exif."))
        return found(image->exifData(), Exiv2::ExifKey(key));
    if (key.starts_with("Xmp."))
        return found(image->xmpData(), Exiv2::XmpKey(key));
    return found(image->iptcData(), Exiv2::IptcKey(key));
}

const std::pair<const char*, const char*> values[] = {
    {"Exif.Image.Make", "Canon"},
    {"Exif.Image.Copyright", "A. Person"},
    {"Exif.Photo.DateTimeOriginal", "2021:06:05 04:03:02"},
    {"Xmp.dc.title", "lang=\"x-default\" A title"},
    {"Xmp.xmp.Rating", "4"},
    {"Xmp.dc.rights", "lang=\"x-default\" All rights"},
    {"Iptc.Application2.Caption", "A caption"},
    {"Iptc.Application2.Keywords", "one"},
};

const std::pair<const char*, const char*> places[] = {
    {"Exif.GPSInfo.GPSLatitudeRef", "N"},
    {"Exif.GPSInfo.GPSLatitude", "52/1 30/1 0/1"},
    {"Xmp.exif.GPSLatitude", "52,30.0N"},
    {"Xmp.drone.Latitude", "52.5000"},
    {"Xmp.photoshop.City", "Berlin"},
    {"Xmp.photoshop.Country", "Germany"},
    {"Xmp.iptc.Location", "Zoo"},
    {"Iptc.Application2.City", "Berlin"},
    {"Iptc.Application2.SubLocation", "Zoo"},
    {"Iptc.Application2.CountryName", "Germany"},
};

bool canHold(const QByteArray& format, const std::string& key)
{
    const bool hasResources = format == "jpeg" || format == "png" || format == "tiff" || format == "psd";
    return hasResources || !key.starts_with("Iptc.");
}

void set(Image& image, const std::string& key, const std::string& text)
{
    if (key.starts_with("Exif."))
        image->exifData()[key] = text;
    else if (key.starts_with("Xmp."))
        image->xmpData()[key] = text;
    else
        image->iptcData()[key] = text;
}

/// A photo's file of that format, which the library writes, that carries all of the values and the places.
QByteArray fileByLibrary(const QByteArray& format)
{
    Exiv2::XmpProperties::registerNs("https://example.org/drone/", "drone"); // one that the library does not know
    const QImage picture = samples::quarters(64, 48);
    Image image =
        openedImage(format == "psd" ? samples::psd(picture, {}) : samples::encoded(picture, format.constData()));
    for (const auto& [key, text] : values)
        set(image, key, text);
    for (const auto& [key, text] : places)
        set(image, key, text);
    image->exifData()["Exif.GPSInfo.GPSLatitude"].setValue("52/1 30/1 0/1");
    image->xmpData()["Xmp.tiff.Orientation"] = "6";
    image->xmpData()["Xmp.tiff.ImageWidth"] = "9999";
    image->xmpData()["Xmp.exif.PixelYDimension"] = "9999";
    return written(image);
}

/// The same of any format.
QByteArray richFile(const QByteArray& format)
{
    const bool isHeic = format == "heic", isAvif = format == "avif", isJxl = format.startsWith("jxl");
    if (!isHeic && !isAvif && !isJxl)
        return fileByLibrary(format);
    const QTemporaryDir folder;
    const PhotoMetadata carried = samples::loaded(folder, fileByLibrary("jpeg")).metadata;
    const QImage picture = samples::quarters(64, 48);
    if (isJxl)
        return samples::jxl(
            picture, 1, format == "jxl" ? samples::JxlKind::Lossless : samples::JxlKind::Lossy, carried);
    return samples::heif(picture, isHeic ? samples::HeifKind::Hevc : samples::HeifKind::Av1, 1, carried);
}

QByteArray withNote(std::size_t size = 0)
{
    Image image = openedImage(richFile("jpeg"));
    Exiv2::ExifData& exif = image->exifData();
    exif["Exif.Canon.OwnerName"] = "Somebody with a name of some length";
    exif["Exif.Canon.SerialNumber"] = std::uint32_t(123456);
    exif["Exif.Canon.FirmwareVersion"] = "Firmware 1.1.1";
    exif["Exif.Photo.SpectralSensitivity"] = "four"; // an odd number of bytes, with that at the end
    if (size > 0) {
        const QByteArray preview = samples::encoded(samples::flat(64, 64, Qt::red), "jpeg");
        Exiv2::DataValue data(reinterpret_cast<const Exiv2::byte*>(preview.constData()), long(preview.size()));
        exif.add(Exiv2::ExifKey("Exif.Canon.0x4242"), &data);
    }
    return written(image);
}

qsizetype picturesIn(const QByteArray& file)
{
    return file.count("\xFF\xD8\xFF");
}

} // namespace

/// What a photo's file carried and what a saved one carries of it.
class MetadataTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QByteArray saved(const QByteArray& file, Kept kept = Kept::Everything)
    {
        const LoadedPhoto photo = samples::loaded(m_folder, file);
        return encodeJpeg(samples::noise(30, 20), photo.metadata, kept);
    }

    static void formats()
    {
        QTest::addColumn<QByteArray>("format");
        for (const char* format : {
                 "jpeg",
                 "png",
                 "webp",
                 "tiff",
                 "psd",
#ifdef LUMORA_HEIF
                 "heic",
                 "avif",
#endif
#ifdef LUMORA_JXL
                 "jxl",
                 "jxl, packed",
#endif
             })
            QTest::newRow(format) << QByteArray(format);
    }

private slots:
    void everythingIsKept_data()
    {
        formats();
    }
    void everythingIsKept()
    {
        QFETCH(QByteArray, format);
        const Image image = openedImage(saved(richFile(format)));
        for (const auto& [key, text] : values)
            QCOMPARE(value(image, key), canHold(format, key) ? text : std::string("none"));
        for (const auto& [key, text] : places)
            QCOMPARE(value(image, key), canHold(format, key) ? text : std::string("none"));
    }

    void whatNoLongerHoldsIsChanged_data()
    {
        formats();
    }
    void whatNoLongerHoldsIsChanged()
    {
        QFETCH(QByteArray, format);
        const Image image = openedImage(saved(richFile(format)));
        for (const auto& [key, text] : {std::pair("Exif.Image.Orientation", "1"),
                 std::pair("Exif.Image.Software", "Lumora"), std::pair("Exif.Photo.PixelXDimension", "30"),
                 std::pair("Exif.Photo.PixelYDimension", "20"), std::pair("Xmp.tiff.Orientation", "1"),
                 std::pair("Xmp.tiff.ImageWidth", "30"), std::pair("Xmp.tiff.ImageLength", "none"),
                 std::pair("Xmp.exif.PixelYDimension", "20"), std::pair("Xmp.xmp.CreatorTool", "Lumora"),
                 std::pair("Exif.Image.StripOffsets", "none"), std::pair("Exif.Image.Compression", "none")})
            QCOMPARE(value(image, key), std::string(text));
    }

    void whatTheFileSaysOfItsColoursIsTrue()
    {
        const std::pair<const char*, const char*> told[] = {{"Exif.Photo.ColorSpace", "1"},
            {"Exif.Iop.InteroperabilityIndex", "R98"}, {"Exif.Image.YCbCrPositioning", "1"},
            {"Xmp.exif.ColorSpace", "1"}, {"Xmp.photoshop.ICCProfile", "sRGB"}, {"Xmp.tiff.Software", "Lumora"}};
        Image image = openedImage(fileByLibrary("jpeg"));
        image->exifData()["Exif.Photo.ColorSpace"] = std::uint16_t(65535);
        image->exifData()["Exif.Iop.InteroperabilityIndex"] = "R03";
        image->exifData()["Exif.Image.YCbCrPositioning"] = std::uint16_t(2);
        image->xmpData()["Xmp.exif.ColorSpace"] = "65535";
        image->xmpData()["Xmp.photoshop.ICCProfile"] = "Adobe RGB (1998)";
        image->xmpData()["Xmp.tiff.Software"] = "Another program";
        const Image changed = openedImage(saved(written(image)));
        for (const auto& [key, text] : told)
            QCOMPARE(value(changed, key), std::string(text));
        const Image plain = openedImage(saved(fileByLibrary("jpeg"))); // where nothing is said, nothing is added
        for (const char* key : {"Exif.Photo.ColorSpace", "Exif.Iop.InteroperabilityIndex", "Xmp.exif.ColorSpace",
                 "Xmp.photoshop.ICCProfile", "Xmp.tiff.Software"})
            QCOMPARE(value(plain, key), std::string("none"));
    }

    void whatTellsOfAGainMapGoesAndAShortTextStays()
    {
        LoadedPhoto photo = samples::loaded(m_folder, samples::encoded(samples::quarters(64, 48), "jpeg"));
        photo.metadata.xmp =
            "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
            "<rdf:Description rdf:about=\"\" xmlns:hdrgm=\"http://ns.adobe.com/hdr-gain-map/1.0/\" "
            "xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\" hdrgm:Version=\"1.0\" xmp:Label=\"/9j/\"/>"
            "</rdf:RDF></x:xmpmeta>";
        const QByteArray file = encodeJpeg(samples::quarters(64, 48), photo.metadata);
        QVERIFY(!file.contains("hdrgm"));
        QCOMPARE(value(openedImage(file), "Xmp.xmp.Label"), std::string("/9j/"));
    }

    void whatIsWrittenIsInOrder_data()
    {
        formats();
        QTest::newRow("round a note") << QByteArray();
    }
    void whatIsWrittenIsInOrder()
    {
        QFETCH(QByteArray, format);
        const QByteArray file = saved(format.isEmpty() ? withNote() : richFile(format));
        const qsizetype begin = file.indexOf(QByteArray("Exif\0\0", 6)) + 6;
        const bool isBig = file[begin] == 'M';
        const auto number = [&](quint32 at, int bytes) {
            quint32 value = 0;
            for (int i = 0; i < bytes; i++)
                value |= quint32(quint8(file[begin + at + quint32(i)])) << 8 * (isBig ? bytes - 1 - i : i);
            return value;
        };
        QList<quint32> directories = {number(4, 4)};
        for (qsizetype i = 0; i < directories.size(); i++) {
            const quint32 directory = directories[i], count = number(directory, 2);
            QCOMPARE(directory % 2, 0u);
            for (quint32 at = directory + 2, last = 0; at < directory + 2 + 12 * count; at += 12) {
                const quint32 tag = number(at, 2), type = number(at + 2, 2), place = number(at + 8, 4);
                QVERIFY(tag > last);
                last = tag;
                const quint32 sizes[] = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8};
                QVERIFY(type < std::size(sizes));
                if (sizes[type] * number(at + 4, 4) > 4)
                    QCOMPARE(place % 2, 0u);
                if (tag == 0x8769 || tag == 0x8825)
                    directories << place;
            }
        }
        QCOMPARE(directories.size(), 3); // the picture's, the exposure's and the place's
    }

    void placeMayStayAway_data()
    {
        formats();
    }
    void placeMayStayAway()
    {
        QFETCH(QByteArray, format);
        const QByteArray file = saved(richFile(format), Kept::WithoutPlace);
        const Image image = openedImage(file);
        for (const auto& [key, text] : values)
            QCOMPARE(value(image, key), canHold(format, key) ? text : std::string("none"));
        for (const auto& [key, text] : places)
            QCOMPARE(value(image, key), std::string("none"));
        for (const char* word : {"Berlin", "Germany", "Zoo", "52,30", "52.50"})
            QVERIFY(!file.contains(word));
    }

    void nothingMayBeKept_data()
    {
        formats();
    }
    void nothingMayBeKept()
    {
        QFETCH(QByteArray, format);
        QCOMPARE(saved(richFile(format), Kept::Nothing), encodeJpeg(samples::noise(30, 20), {}));
    }

    void commentStaysAComment_data()
    {
        QTest::addColumn<QByteArray>("comment");
        QTest::newRow("plain") << QByteArray("A comment");
        QTest::newRow("like a key and its value") << QByteArray("Key: value");
        QTest::newRow("any bytes") << QByteArray("\xFF\xD9\0\x80", 4);
    }
    void commentStaysAComment()
    {
        QFETCH(QByteArray, comment);
        const QByteArray marker = QByteArray("\xFF\xFE\0", 3) + char(comment.size() + 2) + comment;
        const QByteArray file = saved(samples::encoded(samples::quarters(64, 48), "jpeg").insert(2, marker));
        QCOMPARE(file.count(QByteArray("\xFF\xFE\0", 3)), 1);
        QVERIFY(file.contains(marker));
    }

    void theFirstBlockOfAKindCounts()
    {
        const auto segment = [](const QByteArray& payload) {
            return QByteArray("\xFF\xE1\0", 3) + char(payload.size() + 2) + payload;
        };
        const QByteArray exif("Exif\0\0", 6), xmp("http://ns.adobe.com/xap/1.0/\0", 29);
        QByteArray file("\xFF\xD8");
        for (const char* text : {"first", "second"})
            file += segment(exif + text) + segment(xmp + text);
        QBuffer device(&file);
        QVERIFY(device.open(QIODevice::ReadOnly));
        const JpegMarkers found = readJpegMarkers(device);
        QCOMPARE(found.exif, QByteArray("first"));
        QCOMPARE(found.xmp, QByteArray("first"));
    }

    void aRestartInThePictureIsNoBlock()
    {
        QByteArray file("\xFF\xD8" // begin
                        "\xFF\xDA\0\2" // a scan without a header
                        "picture\xFF\xD0picture" // with a restart in it
                        "\xFF\xFE\0\7after",
            31);
        QBuffer device(&file);
        QVERIFY(device.open(QIODevice::ReadOnly));
        const JpegMarkers found = readJpegMarkers(device);
        QCOMPARE(found.comment, QByteArray("after"));
        QCOMPARE(found.scans, 1);
    }

    void textsOfAPictureAreNoComments()
    {
        QImage picture = samples::noise(30, 20);
        picture.setText(QStringLiteral("Description"), QStringLiteral("a text"));
        QCOMPARE(encodeJpeg(picture, {}), encodeJpeg(samples::noise(30, 20), {}));
        QCOMPARE(picture.text(QStringLiteral("Description")), QStringLiteral("a text"));
    }

    void pngCarriesItsBlockAndComment()
    {
        const QByteArray exif = samples::loaded(m_folder, withNote()).metadata.exif;
        QByteArray file = samples::encoded(samples::quarters(64, 48), "png");
        file.insert(33, samples::pngChunk("eXIf", exif) + samples::pngChunk("tEXt", QByteArray("Comment\0said", 12)));
        const Image image = openedImage(saved(file));
        QCOMPARE(value(image, "Exif.Image.Copyright"), std::string("A. Person"));
        QCOMPARE(value(image, "Exif.Canon.SerialNumber"), std::string("123456"));
        QCOMPARE(image->comment(), std::string("said"));
        file.replace(samples::pngChunk("tEXt", QByteArray("Comment\0said", 12)),
            samples::pngChunk("zTXt", QByteArray("Comment\0\0", 9) + qCompress("packed").mid(4)));
        QCOMPARE(samples::loaded(m_folder, file).metadata.comment, QByteArray()); // its bytes are no words
    }

    void anItemTellsWhereItsBlockBegins()
    {
        const auto item = [](quint32 begin, const QByteArray& rest) { return samples::bigEndian(begin) + rest; };
        QCOMPARE(exifOfItem(item(0, "II*")), QByteArray("II*"));
        QCOMPARE(exifOfItem(item(2, "xxII*")), QByteArray("II*"));
        QCOMPARE(exifOfItem(item(6, QByteArray("Exif\0\0II*", 9))), QByteArray("II*"));
        QCOMPARE(exifOfItem(item(0, QByteArray("Exif\0\0II*", 9))), QByteArray("II*"));
        for (const QByteArray& broken : {QByteArray(), QByteArray("\0\0\0", 3), item(3, "II*"), item(~0u, "II*")})
            QCOMPARE(exifOfItem(broken), QByteArray());
    }

    void rawPhotosKeepWhatTheyCarry_data()
    {
        QTest::addColumn<QByteArray>("magic");
        QTest::newRow("a TIFF") << QByteArray("II*\0", 4);
        QTest::newRow("another kind") << QByteArray("IIRO");
    }
    void rawPhotosKeepWhatTheyCarry()
    {
        QFETCH(QByteArray, magic);
        QByteArray file = samples::dng(QSize(96, 64), {0.2, 0.4, 0.2}, {1, 1, 1}, 6).replace(0, 4, magic);
        QBuffer device(&file);
        QVERIFY(device.open(QIODevice::ReadOnly));
        const PhotoMetadata metadata = magic == "IIRO" ? metadataByLibrary(file) : readMetadata(device, {});
        const Image image = openedImage(encodeJpeg(samples::noise(30, 20), metadata));
        for (const auto& [key, text] : {std::pair("Exif.Image.Make", "Prism"), std::pair("Exif.Image.Model", "Model 7"),
                 std::pair("Exif.Image.Orientation", "1"), std::pair("Exif.Image.ImageWidth", "none"),
                 std::pair("Exif.Image.CFAPattern", "none"), std::pair("Exif.Image.ColorMatrix1", "none")})
            QCOMPARE(key + value(image, key), key + std::string(text));
#ifdef LUMORA_RAW
        if (magic != "IIRO")
            QCOMPARE(samples::loaded(m_folder, file).metadata, metadata);
#endif
    }

    void rawPhotosInBoxesKeepWhatTheyCarry()
    {
        const auto box = [](const QByteArray& name, const QByteArray& data) {
            return samples::bigEndian(quint32(8 + data.size())) + name + data;
        };
        const QByteArray camera = samples::tiff({samples::text(0x010F, "Prism"), samples::text(0x0110, "Model 7")}, {});
        const QByteArray moment = samples::tiff({samples::shorts(0x8827, {800})}, {});
        const QByteArray boxes =
            QByteArray::fromHex("85c0b687820f11e08111f4ce462b6a48") + box("CMT1", camera) + box("CMT2", moment);
        const QByteArray file = box("ftyp", QByteArray("crx \0\0\0\1crx isom", 16)) + box("moov", box("uuid", boxes));
        const Image image = openedImage(encodeJpeg(samples::noise(30, 20), metadataByLibrary(file)));
        for (const auto& [key, text] : {std::pair("Exif.Image.Make", "Prism"), std::pair("Exif.Image.Model", "Model 7"),
                 std::pair("Exif.Photo.ISOSpeedRatings", "800"), std::pair("Exif.Image.Orientation", "1")})
            QCOMPARE(key + value(image, key), key + std::string(text));
    }

    void notesStayWhereTheyWere()
    {
        const QByteArray file = withNote();
        const Image before = openedImage(file), after = openedImage(saved(file));
        for (const char* key : {"Exif.Canon.OwnerName", "Exif.Canon.SerialNumber", "Exif.Canon.FirmwareVersion",
                 "Exif.MakerNote.Offset", "Exif.Photo.MakerNote"})
            QCOMPARE(value(after, key), value(before, key));
        QVERIFY(value(after, "Exif.Canon.SerialNumber") != "none");
        // It may tell the place.
        QCOMPARE(value(openedImage(saved(file, Kept::WithoutPlace)), "Exif.Photo.MakerNote"), std::string("none"));
    }

    void noteThatWouldBreakIsLeftOut()
    {
        // A value of the note stands outside of it.
        QByteArray file = withNote();
        const qsizetype block = file.indexOf(QByteArray("Exif\0\0", 6)) + 6;
        const qsizetype outside = file.indexOf("A. Person") - block, inside = file.indexOf("Somebody") - block;
        const auto number = [](qsizetype at) {
            QByteArray bytes(4, 0);
            qToLittleEndian(quint32(at), bytes.data());
            return bytes;
        };
        file.replace(file.indexOf(number(inside), block), 4, number(outside));
        const Image image = openedImage(saved(file));
        QCOMPARE(value(image, "Exif.Photo.MakerNote"), std::string("none"));
        QCOMPARE(value(image, "Exif.Image.Copyright"), std::string("A. Person"));
    }

    void noPreviewIsKept()
    {
        QByteArray file = withNote(1);
        Image image = openedImage(file);
        const QByteArray preview = samples::encoded(samples::flat(64, 64, Qt::red), "jpeg");
        Exiv2::ExifThumb(image->exifData())
            .setJpegThumbnail(reinterpret_cast<const Exiv2::byte*>(preview.constData()), long(preview.size()));
        const std::string base64 = preview.toBase64().toStdString();
        image->xmpData()["Xmp.xmp.Thumbnails"] = "";
        Exiv2::XmpTextValue list;
        list.setXmpArrayType(Exiv2::XmpValue::xaAlt);
        image->xmpData().erase(image->xmpData().findKey(Exiv2::XmpKey("Xmp.xmp.Thumbnails")));
        image->xmpData().add(Exiv2::XmpKey("Xmp.xmp.Thumbnails"), &list);
        image->xmpData()["Xmp.xmp.Thumbnails[1]/xmpGImg:width"] = "64";
        image->xmpData()["Xmp.xmp.Thumbnails[1]/xmpGImg:image"] = base64;
        image->xmpData()["Xmp.dc.source"] = base64;
        file = written(image);
        // Photoshop's, among the resources.
        const QByteArray resource = QByteArray("8BIM\x04\x0C\0\0", 8) + samples::bigEndian(quint32(28 + preview.size()))
            + QByteArray(28, 0) + preview;
        const QByteArray segment = QByteArray("Photoshop 3.0\0", 14) + resource;
        file.insert(2, QByteArray("\xFF\xED") + samples::bigEndian(quint16(segment.size() + 2)) + segment);
        QVERIFY(picturesIn(file) >= 4 && file.contains(base64.substr(0, 100).c_str()));
        const QByteArray after = saved(file);
        QCOMPARE(picturesIn(after), 1);
        QVERIFY(!after.contains("/9j/"));
        QVERIFY(!after.contains("Thumbnails"));
        QVERIFY(!after.contains("8BIM\x04\x0C"));
        const Image result = openedImage(after);
        QCOMPARE(value(result, "Exif.Photo.MakerNote"), std::string("none"));
        QCOMPARE(value(result, "Exif.Image.Copyright"), std::string("A. Person"));
        QCOMPARE(value(result, "Xmp.dc.title"), std::string("lang=\"x-default\" A title"));
    }

    void blocksThatAreTooLargeAreLeftOut()
    {
        LoadedPhoto photo = samples::loaded(m_folder, richFile("jpeg"));
        photo.metadata.xmp.replace("A title", QByteArray(70000, 't'));
        photo.metadata.comment = QByteArray(65534, 'c');
        const QByteArray file = encodeJpeg(samples::quarters(64, 48), photo.metadata);
        const Image image = openedImage(file);
        QCOMPARE(value(image, "Exif.Image.Copyright"), std::string("A. Person"));
        QCOMPARE(value(image, "Xmp.xmp.Rating"), std::string("none"));
        QCOMPARE(image->comment(), std::string());
        QVERIFY(samples::showsQuarters(QImage::fromData(file), QSize(64, 48)));
    }

    void aBlockMayFillItsSegment()
    {
        const auto lengthWith = [&](qsizetype letters) {
            Image image = openedImage(richFile("tiff"));
            image->exifData()["Exif.Image.Copyright"] = std::string(std::size_t(letters), 'c');
            const QByteArray file = saved(written(image)), heading("Exif\0\0", 6);
            const qsizetype begin = file.indexOf(heading);
            return begin < 0 ? 0 : qFromBigEndian<quint16>(file.constData() + begin - 2);
        };
        const qsizetype letters = 60000 + 0xFFFF - lengthWith(60000);
        QCOMPARE(lengthWith(letters), 0xFFFF);
        QVERIFY(lengthWith(letters + 1) < 10000); // without the longest value
    }

    void recordsTakeAnEvenNumberOfBytes()
    {
        for (const char* words : {"one", "four"}) {
            const QByteArray record = QByteArray("\x1C\x02\x78\0", 4) + char(qstrlen(words)) + words;
            LoadedPhoto photo = samples::loaded(m_folder, samples::encoded(samples::quarters(64, 48), "jpeg"));
            photo.metadata.iptc = record;
            const QByteArray file = encodeJpeg(samples::quarters(64, 48), photo.metadata);
            const qsizetype begin = file.indexOf("Photoshop 3.0"), records = file.indexOf(record);
            QVERIFY(begin > 0 && records > begin);
            const qsizetype end = begin - 2 + qFromBigEndian<quint16>(file.constData() + begin - 2);
            QCOMPARE(end, records + record.size() + record.size() % 2);
        }
    }

    void whatNoJpegHoldsStaysNothing()
    {
        const LoadedPhoto photo = samples::loaded(m_folder, richFile("jpeg"));
        QCOMPARE(encodeJpeg(QImage(65501, 1, QImage::Format_RGBX8888), photo.metadata), QByteArray());
    }

    void longestValuesGoUntilTheRestFits()
    {
        Image image = openedImage(samples::encoded(samples::quarters(64, 48), "tiff"));
        image->exifData()["Exif.Image.Copyright"] = "A. Person";
        image->exifData()["Exif.Image.ImageDescription"] = std::string(50000, 'd');
        image->exifData()["Exif.Photo.UserComment"] = std::string(40000, 'u');
        const Image result = openedImage(saved(written(image)));
        QCOMPARE(value(result, "Exif.Image.Copyright"), std::string("A. Person"));
        QCOMPARE(value(result, "Exif.Image.ImageDescription"), std::string("none"));
        QVERIFY(value(result, "Exif.Photo.UserComment").size() > 40000 - 10);
    }

    void brokenFilesNeverPreventSaving_data()
    {
        formats();
    }
    void brokenFilesNeverPreventSaving()
    {
        QFETCH(QByteArray, format);
        const QByteArray whole = format == "jpeg" ? withNote() : richFile(format);
        const PhotoMetadata metadata = samples::loaded(m_folder, whole).metadata;
        const QImage picture = samples::quarters(64, 48);
        std::mt19937 random(3);
        const auto broken = [&](QByteArray block) {
            for (int i = 0; i < 6 && !block.isEmpty(); i++)
                block[qsizetype(random() % std::uint32_t(block.size()))] = char(random());
            return random() % 8 == 0 ? block.left(block.size() / 2) : block;
        };
        for (int round = 0; round < 200; round++) {
            const PhotoMetadata blocks = {
                broken(metadata.exif), broken(metadata.xmp), broken(metadata.iptc), broken(metadata.comment)};
            for (const Kept kept : {Kept::Everything, Kept::WithoutPlace})
                QVERIFY(samples::showsQuarters(QImage::fromData(encodeJpeg(picture, blocks, kept)), QSize(64, 48)));
            samples::loaded(m_folder, broken(whole));
        }
    }
};

QTEST_GUILESS_MAIN(MetadataTest)
#include "MetadataTest.moc"
