// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/PhotoSaver.h"
#include "photo/PhotoLoader.h"
#include "photo/metadata/Exiv2Bytes.h"
#include "tests/photo/Samples.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QTemporaryDir>
#include <QTest>
#include <exiv2/exiv2.hpp>
#include <random>

namespace {

Exiv2::ExifData exifOf(const QByteArray& jpegFile)
{
    const auto image =
        Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte*>(jpegFile.constData()), long(jpegFile.size()));
    image->readMetadata();
    return image->exifData();
}

QString value(const Exiv2::ExifData& exif, const char* key)
{
    const auto entry = exif.findKey(Exiv2::ExifKey(key));
    return entry == exif.end() ? QStringLiteral("none") : QString::fromStdString(entry->toString());
}

QImage decoded(QByteArray file)
{
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    return QImageReader(&buffer, "jpeg").read();
}

/// The segments of a JPEG file with that marker, one after the other.
QByteArray segments(const QByteArray& file, char marker)
{
    QByteArray found;
    for (qsizetype at = 2; file[at] == '\xFF' && file[at + 1] != '\xDA';) {
        const qsizetype length = 2 + uchar(file[at + 2]) * 256 + uchar(file[at + 3]);
        if (file[at + 1] == marker)
            found += file.mid(at, length);
        at += length;
    }
    return found;
}

/// A photo as the loader gives it, from a JPEG file with the EXIF of a camera.
LoadedPhoto cameraPhoto(int orientation = 6, bool bigEndian = false)
{
    QTemporaryDir folder;
    const QByteArray path = folder.path().toLocal8Bit() + "/photo.jpg";
    const QByteArray plain = samples::encoded(samples::quarters(64, 48), "jpeg");
    samples::writeFile(path, samples::withCameraExif(plain, orientation, bigEndian));
    return loadPhoto(path);
}

} // namespace

class PhotoSaverTest : public QObject {
    Q_OBJECT

private slots:
    void jpegIsMarkedAsSRgb()
    {
        const QImage picture = samples::quarters(64, 48);
        for (const PhotoMetadata& metadata : {PhotoMetadata(), cameraPhoto().metadata})
            for (const JpegQuality quality : {JpegQuality::Standard, JpegQuality::High, JpegQuality::Best}) {
                const QByteArray file = encodeJpeg(picture, metadata, Kept::Everything, quality);
                QVERIFY(file.startsWith("\xFF\xD8\xFF"));
                QVERIFY(file.contains("ICC_PROFILE"));
                QCOMPARE(decoded(file).colorSpace(), QColorSpace(QColorSpace::SRgb));
                QVERIFY(samples::showsQuarters(decoded(file), QSize(64, 48)));
                QCOMPARE(value(exifOf(file), "Exif.Image.Make"), metadata.exif.isEmpty() ? "none" : "Prism");
            }
        QVERIFY(!picture.colorSpace().isValid()); // as it was
    }

    void standardQualityIsThePlatformsDefault()
    {
        for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_RGBX8888}) {
            QImage picture = samples::noise(64, 48).convertToFormat(format);
            picture.setColorSpace(QColorSpace::SRgb);
            QBuffer buffer;
            buffer.open(QIODevice::WriteOnly);
            QVERIFY(picture.save(&buffer, "jpeg"));
            constexpr qsizetype heading = 20; // tells the density of the screen, which is nothing of the picture's
            QVERIFY(buffer.data().size() > 1000);
            QCOMPARE(encodeJpeg(picture, {}).mid(heading), buffer.data().mid(heading));
        }
    }

    void pictureHasNoDensity()
    {
        QImage picture = samples::noise(9, 7);
        const QByteArray file = encodeJpeg(picture, {});
        picture.setDotsPerMeterX(6000);
        picture.setDotsPerMeterY(5000);
        QCOMPARE(encodeJpeg(picture, {}), file);
    }

    void otherQualitiesAreNumbersOfTheSameScale_data()
    {
        QTest::addColumn<JpegQuality>("quality");
        QTest::addColumn<int>("number");
        QTest::newRow("high") << JpegQuality::High << 92;
        QTest::newRow("best") << JpegQuality::Best << 97;
    }
    void otherQualitiesAreNumbersOfTheSameScale()
    {
        QFETCH(JpegQuality, quality);
        QFETCH(int, number);
        const QImage picture = samples::noise(64, 48);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QVERIFY(picture.save(&buffer, "jpeg", number));
        constexpr char tables = '\xDB';
        const QByteArray file = encodeJpeg(picture, {}, Kept::Everything, quality);
        QVERIFY(!segments(file, tables).isEmpty());
        QCOMPARE(segments(file, tables), segments(buffer.data(), tables));
    }

    void otherQualitiesKeepTheColourOfEachPixel()
    {
        QImage stripes(64, 48, QImage::Format_RGB32);
        for (int y = 0; y < 48; y++)
            for (int x = 0; x < 64; x++)
                stripes.setPixelColor(x, y, x % 2 ? Qt::red : Qt::blue);
        for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_RGBX8888}) {
            const auto redOf = [&](int x, JpegQuality quality) {
                const QByteArray file = encodeJpeg(stripes.convertToFormat(format), {}, Kept::Everything, quality);
                return decoded(file).pixelColor(x, 20).red();
            };
            for (const JpegQuality quality : {JpegQuality::High, JpegQuality::Best}) {
                QVERIFY(redOf(30, quality) < 20);
                QVERIFY(redOf(31, quality) > 235);
            }
            QVERIFY(qAbs(redOf(30, JpegQuality::Standard) - redOf(31, JpegQuality::Standard)) < 100);
        }
    }

    void otherFormatsAreEncodedToo()
    {
        for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied,
                 QImage::Format_Grayscale8, QImage::Format_RGBX64})
            for (const JpegQuality quality : {JpegQuality::Standard, JpegQuality::High, JpegQuality::Best}) {
                const QImage picture = samples::noise(9, 7).convertToFormat(format);
                QCOMPARE(decoded(encodeJpeg(picture, {}, Kept::Everything, quality)).size(), QSize(9, 7));
            }
    }

    void whatCannotBeEncodedIsEmpty()
    {
        for (const JpegQuality quality : {JpegQuality::Standard, JpegQuality::High, JpegQuality::Best}) {
            const auto isEncoded = [quality](const QImage& picture) {
                return !encodeJpeg(picture, {}, Kept::Everything, quality).isEmpty();
            };
            QVERIFY(!isEncoded(QImage()));
            QVERIFY(!isEncoded(samples::flat(65501, 1, Qt::red)));
            QVERIFY(isEncoded(samples::flat(65500, 1, Qt::red)));
        }
    }

    void whatTheCameraWroteStays_data()
    {
        QTest::addColumn<bool>("bigEndian");
        QTest::newRow("little endian") << false;
        QTest::newRow("big endian") << true;
    }
    void whatTheCameraWroteStays()
    {
        QFETCH(bool, bigEndian);
        const LoadedPhoto photo = cameraPhoto(6, bigEndian);
        QVERIFY(!photo.metadata.exif.isEmpty());
        const QByteArray file = encodeJpeg(samples::noise(30, 20), photo.metadata);
        const Exiv2::ExifData exif = exifOf(file);
        QCOMPARE(value(exif, "Exif.Image.Make"), QStringLiteral("Prism"));
        QCOMPARE(value(exif, "Exif.Image.Model"), QStringLiteral("Model 7"));
        QCOMPARE(value(exif, "Exif.Image.Copyright"), QStringLiteral("A. Person"));
        QCOMPARE(value(exif, "Exif.Photo.DateTimeOriginal"), QStringLiteral("2021:06:05 04:03:02"));
        QCOMPARE(value(exif, "Exif.GPSInfo.GPSLatitudeRef"), QStringLiteral("N"));
        QCOMPARE(value(exif, "Exif.GPSInfo.GPSLatitude"), QStringLiteral("52/1 30/1 0/1"));
        QCOMPARE(file.contains(bigEndian ? QByteArray("Exif\0\0MM", 8) : QByteArray("Exif\0\0II", 8)), true);
    }

    void whatNoLongerHoldsIsChanged()
    {
        const LoadedPhoto photo = cameraPhoto();
        const Exiv2::ExifData exif = exifOf(encodeJpeg(samples::noise(30, 20), photo.metadata));
        QCOMPARE(value(exif, "Exif.Image.Orientation"), QStringLiteral("1"));
        QCOMPARE(value(exif, "Exif.Photo.PixelXDimension"), QStringLiteral("30"));
        QCOMPARE(value(exif, "Exif.Photo.PixelYDimension"), QStringLiteral("20"));
        QCOMPARE(value(exif, "Exif.Image.ImageWidth"), QStringLiteral("30"));
        QCOMPARE(value(exif, "Exif.Image.ImageLength"), QStringLiteral("none")); // as in the source
        QCOMPARE(value(exif, "Exif.Photo.ColorSpace"), QStringLiteral("1"));
        QVERIFY(QByteArray(photo.metadata.exif).contains("\xFF\xD8\xFF")); // the source's thumbnail
        QCOMPARE(copied(Exiv2::ExifThumbC(exif).copy()), QByteArray());
        for (const auto& entry : exif)
            QVERIFY2(entry.groupName() != "Thumbnail", entry.key().c_str());
    }

    void savedAgainAndAgain()
    {
        PhotoMetadata metadata = cameraPhoto().metadata;
        QTemporaryDir folder;
        const QByteArray path = folder.path().toLocal8Bit() + "/photo.jpg";
        for (int round = 0; round < 3; round++) {
            samples::writeFile(path, encodeJpeg(samples::noise(30, 20), metadata));
            metadata = loadPhoto(path).metadata;
        }
        QCOMPARE(value(exifOf(samples::readFile(path)), "Exif.Image.Make"), QStringLiteral("Prism"));
    }

    void sourceWithoutExifGetsNone()
    {
        const QByteArray file = encodeJpeg(samples::noise(30, 20), {});
        QVERIFY(!file.contains("Exif"));
        QVERIFY(exifOf(file).empty());
    }

    void brokenExifNeverPreventsSaving()
    {
        const QImage picture = samples::quarters(64, 48);
        const QByteArray whole = cameraPhoto().metadata.exif;
        QVERIFY(samples::showsQuarters(decoded(encodeJpeg(picture, {QByteArray(100, 'x')})), QSize(64, 48)));
        QVERIFY(samples::showsQuarters(decoded(encodeJpeg(picture, {QByteArray(1, 'I')})), QSize(64, 48)));
        for (qsizetype length = 0; length < whole.size(); length += 13)
            QVERIFY(samples::showsQuarters(decoded(encodeJpeg(picture, {whole.left(length)})), QSize(64, 48)));
        std::mt19937 random(3);
        for (int round = 0; round < 300; round++) {
            QByteArray broken = whole;
            for (int i = 0; i < 8; i++)
                broken[qsizetype(random() % 300)] = char(random());
            QVERIFY(samples::showsQuarters(decoded(encodeJpeg(picture, {broken})), QSize(64, 48)));
        }
    }

    void brokenExifNeverPreventsOpening()
    {
        QTemporaryDir folder;
        const QByteArray path = folder.path().toLocal8Bit() + "/photo.jpg";
        QByteArray file = samples::withCameraExif(samples::encoded(samples::quarters(64, 48), "jpeg"), 1);
        const qsizetype block = file.indexOf("Exif") + 6;
        file.replace(block + 8, 60, QByteArray(60, char(0xFF)));
        samples::writeFile(path, file);
        const LoadedPhoto photo = loadPhoto(path);
        QVERIFY(samples::showsQuarters(photo.image, QSize(64, 48)));
        QVERIFY(!encodeJpeg(photo.image, photo.metadata).isEmpty());
    }
};

QTEST_GUILESS_MAIN(PhotoSaverTest)
#include "PhotoSaverTest.moc"
