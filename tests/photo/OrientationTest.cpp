// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/PhotoLoader.h"
#include "photo/PhotoSaver.h"
#include "tests/photo/Samples.h"
#include "tests/photo/TiffSample.h"

#include <QColorSpace>
#include <QTemporaryDir>
#include <QTest>
#include <QTransform>

namespace {

/// How the camera stores an upright picture under that orientation: the inverse of what a viewer does.
QImage stored(const QImage& upright, int orientation)
{
    const QTransform clockwise = QTransform().rotate(90), counterClockwise = QTransform().rotate(-90);
    switch (orientation) {
    case 2:
        return upright.mirrored(true, false);
    case 3:
        return upright.mirrored(true, true);
    case 4:
        return upright.mirrored(false, true);
    case 5: // mirrored along the diagonal: its own inverse
        return upright.mirrored(true, false).transformed(counterClockwise);
    case 6: // a viewer turns it clockwise
        return upright.transformed(counterClockwise);
    case 7: // mirrored along the other diagonal: its own inverse
        return upright.mirrored(true, false).transformed(clockwise);
    case 8:
        return upright.transformed(clockwise);
    default:
        return upright;
    }
}

QByteArray littleEndian(qsizetype value, int bytes)
{
    QByteArray number(bytes, 0);
    for (int i = 0; i < bytes; i++)
        number[i] = char(value >> (8 * i));
    return number;
}

QByteArray webpWithExif(const QImage& picture, const QByteArray& exif)
{
    const QByteArray plain = samples::encoded(picture, "webp");
    const auto chunk = [](const QByteArray& name, const QByteArray& data) {
        return name + littleEndian(data.size(), 4) + data + QByteArray(data.size() % 2, 0);
    };
    const QByteArray hasExif("\x08\0\0\0", 4);
    const QByteArray canvas = littleEndian(picture.width() - 1, 3) + littleEndian(picture.height() - 1, 3);
    const QByteArray chunks = "WEBP" + chunk("VP8X", hasExif + canvas) + plain.mid(12) + chunk("EXIF", exif);
    return "RIFF" + littleEndian(chunks.size(), 4) + chunks;
}

/// A file whose orientation the platform's own decoder tells.
QByteArray tiffOf(const QImage& picture, int orientation)
{
    constexpr int orientationTag = 274, copyrightTag = 33432;
    const QImage rgb = picture.convertToFormat(QImage::Format_RGB888);
    QByteArray rows;
    for (int y = 0; y < rgb.height(); y++)
        rows.append(reinterpret_cast<const char*>(rgb.constScanLine(y)), 3 * qsizetype(rgb.width()));
    return samples::tiff(samples::tiffPicture(rgb.width(), rgb.height(), 8, 3, 2)
            << samples::shorts(orientationTag, {orientation}) << samples::text(copyrightTag, "A. Person"),
        {rows});
}

/// A file of that format.
QByteArray fileWithExif(const QByteArray& format, const QImage& picture, int orientation, bool bigEndian)
{
    const QByteArray exif = samples::cameraExif(orientation, bigEndian);
    if (format == "jpeg")
        return samples::withCameraExif(samples::encoded(picture, "jpeg"), orientation, bigEndian);
    if (format == "psd")
        return samples::psd(picture, exif);
    if (format == "tiff")
        return tiffOf(picture, orientation);
    if (format == "webp")
        return webpWithExif(picture, exif);
    return samples::encoded(picture, "png").insert(33, samples::pngChunk("eXIf", exif));
}

} // namespace

class OrientationTest : public QObject {
    Q_OBJECT

private slots:
    void photosOpenAndStayUpright_data()
    {
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<int>("orientation");
        QTest::addColumn<bool>("bigEndian");
        for (const char* format : {"jpeg", "png", "webp", "psd", "tiff"})
            for (int orientation = 0; orientation <= 9; orientation++)
                for (const bool bigEndian : {false, true})
                    if (!bigEndian || QByteArray(format) != "tiff")
                        QTest::addRow("%s, %d, %s endian", format, orientation, bigEndian ? "big" : "little")
                            << QByteArray(format) << orientation << bigEndian;
    }
    void photosOpenAndStayUpright()
    {
        QFETCH(QByteArray, format);
        QFETCH(int, orientation);
        QFETCH(bool, bigEndian);
        QTemporaryDir folder;
        const QByteArray path = folder.path().toLocal8Bit() + "/photo.jpg";
        const QImage upright = samples::quarters(96, 64);
        samples::writeFile(path, fileWithExif(format, stored(upright, orientation), orientation, bigEndian));
        const LoadedPhoto photo = loadPhoto(path);
        QCOMPARE(photo.reason, QString());
        QVERIFY(samples::showsQuarters(photo.image, upright.size()));
        QCOMPARE(photo.image.colorSpace(), QColorSpace(QColorSpace::SRgb));

        // What is saved stands upright too, for a viewer that turns by the orientation and for one that does not.
        const QByteArray saved = encodeJpeg(photo.image, photo.metadata);
        QVERIFY(saved.contains("A. Person"));
        samples::writeFile(path, saved);
        QVERIFY(samples::showsQuarters(loadPhoto(path).image, upright.size()));
        QVERIFY(samples::showsQuarters(QImage(QString::fromLocal8Bit(path)), upright.size()));
    }
};

QTEST_GUILESS_MAIN(OrientationTest)
#include "OrientationTest.moc"
