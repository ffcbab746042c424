// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/PhotoSaver.h"
#include "tests/photo/CarriedMetadata.h"
#include "tests/photo/Samples.h"

#include <QFile>
#include <QProcess>
#include <QTest>
#include <exiv2/exiv2.hpp>

// The programs that people look into their photos with read a saved file without a warning where they read the one that
// was opened without one.

namespace {

/// What the program prints; `onlyErrors`: to where errors go.
QByteArray printed(const char* program, const QStringList& arguments, bool onlyErrors)
{
    QProcess process;
    process.start(QString::fromUtf8(program), arguments);
    if (!process.waitForFinished(60'000) || process.exitStatus() != QProcess::NormalExit)
        qFatal("%s does not run", program);
    return (onlyErrors ? QByteArray() : process.readAllStandardOutput()) + process.readAllStandardError();
}

QByteArray warnings(const QString& file)
{
    return printed(EXIV2, {"-pa", file}, true) + printed(EXIFTOOL, {"-a", "-s3", "-Warning", "-Error", file}, false);
}

/// A file of that format as a camera and a catalogue write it.
QByteArray carrying(const QByteArray& format)
{
    const QByteArray plain = samples::encoded(samples::quarters(64, 48), format.constData());
    const auto image = openedImage(plain);
    Exiv2::ExifData& exif = image->exifData();
    exif["Exif.Image.Make"] = "Canon";
    exif["Exif.Image.Copyright"] = "A. Person";
    exif["Exif.Image.Orientation"] = std::uint16_t(6);
    exif["Exif.Photo.DateTimeOriginal"] = "2021:06:05 04:03:02";
    exif["Exif.Photo.UserComment"] = "charset=Ascii said";
    exif["Exif.GPSInfo.GPSLatitudeRef"] = "N";
    exif["Exif.GPSInfo.GPSLatitude"] = "52/1 30/1 0/1";
    if (format == "jpeg") {
        exif["Exif.Canon.OwnerName"] = "Somebody with a name of some length";
        const QByteArray preview = samples::encoded(samples::flat(16, 16, Qt::red), "jpeg");
        Exiv2::ExifThumb(exif).setJpegThumbnail(
            reinterpret_cast<const Exiv2::byte*>(preview.constData()), long(preview.size()));
    }
    image->xmpData()["Xmp.dc.title"] = "A title";
    image->xmpData()["Xmp.photoshop.City"] = "Berlin";
    if (format != "webp")
        image->iptcData()["Iptc.Application2.Caption"] = "A caption";
    image->writeMetadata();
    Exiv2::BasicIo& io = image->io();
    return QByteArray(reinterpret_cast<const char*>(io.mmap()), qsizetype(io.size()));
}

} // namespace

class ReadByOthersTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

private slots:
    void savedFilesAreReadWithoutAWarning_data()
    {
        QTest::addColumn<QByteArray>("format");
        for (const char* format : {"jpeg", "png", "webp", "tiff"})
            QTest::newRow(format) << QByteArray(format);
    }
    void savedFilesAreReadWithoutAWarning()
    {
        QFETCH(QByteArray, format);
        const LoadedPhoto photo = samples::loaded(m_folder, carrying(format), "source");
        QCOMPARE(photo.reason, QString());
        QCOMPARE(warnings(m_folder.filePath("source")), QByteArray());
        const QString saved = m_folder.filePath("saved.jpg");
        for (const Kept kept : {Kept::Everything, Kept::WithoutPlace, Kept::Nothing}) {
            samples::writeFile(QFile::encodeName(saved), encodeJpeg(photo.image, photo.metadata, kept));
            QCOMPARE(warnings(saved), QByteArray());
            for (const auto& [tag, value] : {std::pair("-Copyright", "A. Person\n"), std::pair("-Title", "A title\n")})
                QCOMPARE(printed(EXIFTOOL, {"-s3", tag, saved}, false), kept == Kept::Nothing ? "" : value);
            QVERIFY(QFile::remove(saved));
        }
    }
};

QTEST_GUILESS_MAIN(ReadByOthersTest)
#include "ReadByOthersTest.moc"
