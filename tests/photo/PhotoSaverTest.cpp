#include "photo/PhotoSaver.h"
#include "photo/PhotoLoader.h"
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
        for (const PhotoMetadata& metadata : {PhotoMetadata(), cameraPhoto().metadata}) {
            const QByteArray file = encodeJpeg(picture, metadata);
            QVERIFY(file.startsWith("\xFF\xD8\xFF"));
            QVERIFY(file.contains("ICC_PROFILE"));
            QCOMPARE(decoded(file).colorSpace(), QColorSpace(QColorSpace::SRgb));
            QVERIFY(samples::showsQuarters(decoded(file), QSize(64, 48)));
        }
        QVERIFY(!picture.colorSpace().isValid()); // as it was
    }

    void qualityIsTheEncodersDefault()
    {
        QImage picture = samples::noise(64, 48);
        picture.setColorSpace(QColorSpace::SRgb);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QVERIFY(picture.save(&buffer, "jpeg"));
        QCOMPARE(encodeJpeg(picture, {}), buffer.data());
    }

    void otherFormatsAreEncodedToo()
    {
        for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied,
                 QImage::Format_Grayscale8, QImage::Format_RGBX64})
            QVERIFY(!decoded(encodeJpeg(samples::noise(9, 7).convertToFormat(format), {})).isNull());
    }

    void whatCannotBeEncodedIsEmpty()
    {
        QVERIFY(encodeJpeg(QImage(), {}).isEmpty());
        QVERIFY(encodeJpeg(samples::flat(65501, 1, Qt::red), {}).isEmpty());
        QVERIFY(!encodeJpeg(samples::flat(65500, 1, Qt::red), {}).isEmpty());
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
        QCOMPARE(Exiv2::ExifThumbC(exif).copy().size_, 0);
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
