// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/PhotoLoader.h"
#include "photo/FreeMemory.h"
#include "photo/PhotoDecoder.h"
#include "tests/photo/Samples.h"
#include "tests/photo/ScarceMemory.h"

#include <QColorSpace>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>
#include <cerrno>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using samples::bigEndian, samples::pngChunk;

template <class T> QByteArray littleEndian(T value)
{
    QByteArray bytes(sizeof(T), 0);
    qToLittleEndian(value, bytes.data());
    return bytes;
}

/// A PNG of grey levels of `depth` bits; `packed` is its picture data for zlib.
QByteArray greyPng(quint32 width, quint32 height, char depth, const QByteArray& packed)
{
    const QByteArray header = bigEndian(width) + bigEndian(height) + depth + QByteArray(4, 0);
    return "\x89PNG\r\n\x1a\n" + pngChunk("IHDR", header) + pngChunk("IDAT", packed) + pngChunk("IEND", {});
}

QByteArray bmpHeader(quint32 width, quint32 height)
{
    return "BM" + littleEndian(quint32(54 + 100)) + QByteArray(4, 0) + littleEndian(quint32(54))
        + littleEndian(quint32(40)) + littleEndian(width) + littleEndian(height) + littleEndian(quint16(1))
        + littleEndian(quint16(24)) + QByteArray(24, 0) + QByteArray(100, 'x');
}

/// A small JPEG file whose frame claims other sides.
QByteArray jpegThatClaims(quint16 width, quint16 height)
{
    QByteArray file = samples::jpeg(samples::JpegKind::Grey, 8, 8, QByteArray(64, 'x'));
    const qsizetype frame = file.indexOf("\xFF\xC0");
    return file.replace(frame + 5, 4, bigEndian(height) + bigEndian(width));
}

/// A GIF of 2 x 1 pixels with a red and a blue frame.
QByteArray twoFrameGif()
{
    const QByteArray frame = QByteArray("\x2C\0\0\0\0\x02\0\x01\0\0", 10);
    return QByteArray("GIF89a\x02\0\x01\0\x80\0\0\xFF\0\0\0\0\xFF", 19) + frame + QByteArray("\x02\x02\x04\x0A\0", 5)
        + frame + QByteArray("\x02\x02\x4C\x0A\0", 5) + ";";
}

/// Runs `child` in a process of its own: true when it gives 0.
template <class Function> bool succeedsInChild(Function child)
{
    const pid_t process = fork();
    if (process == 0)
        _exit(child());
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

class PhotoLoaderTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QByteArray pathOf(const QByteArray& name) { return m_folder.path().toLocal8Bit() + '/' + name; }

    LoadedPhoto loadData(const QByteArray& data) { return samples::loaded(m_folder, data); }

private slots:
    void namesAreBytes_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("spaces") << QByteArray(" my photo .png ");
        QTest::newRow("percent") << QByteArray("100%s %n%d %1 %20.png");
        QTest::newRow("newline") << QByteArray("two\nlines\r\n.png");
        QTest::newRow("non-Latin") << QByteArray("写真 фото ☀.png");
        QTest::newRow("decomposed accent") << QByteArray("e\xCC\x81t\xC3\xA9.png");
        QTest::newRow("invalid UTF-8") << QByteArray("\xFF\xFE\xC3 photo.png");
        QTest::newRow("quotes and a backslash") << QByteArray("'\"\\`$(x)&.png");
        QTest::newRow("leading dash") << QByteArray("-rf.png");
        QTest::newRow("no extension") << QByteArray("photo");
        QTest::newRow("another extension") << QByteArray("photo.jpg");
        QTest::newRow("as long as names get") << QByteArray(251, 'n') + ".png";
    }
    void namesAreBytes()
    {
        QFETCH(QByteArray, name);
        const QImage picture = samples::noise(5, 4);
        samples::writeFile(pathOf(name), samples::encoded(picture, "png"));
        const LoadedPhoto photo = loadPhoto(pathOf(name));
        QCOMPARE(photo.reason, QString());
        QCOMPARE(samples::largestDifference(photo.image, picture), 0);
        QVERIFY(unlink(pathOf(name).constData()) == 0);
    }

    void foldersAreBytesToo()
    {
        const QByteArray folder = pathOf("\xFE\xFF");
        QVERIFY(mkdir(folder.constData(), 0755) == 0);
        samples::writeFile(folder + "/photo.png", samples::encoded(samples::noise(5, 4), "png"));
        QVERIFY(!loadPhoto(folder + "/photo.png").image.isNull());
        QVERIFY(unlink((folder + "/photo.png").constData()) == 0 && rmdir(folder.constData()) == 0);
    }

    void formatsAreToldByContent_data()
    {
        QTest::addColumn<QByteArray>("format");
        for (const char* format : {"png", "bmp", "ppm", "tiff", "webp", "jpeg"})
            QTest::newRow(format) << QByteArray(format);
    }
    void formatsAreToldByContent()
    {
        QFETCH(QByteArray, format);
        const LoadedPhoto photo = loadData(samples::encoded(samples::quarters(64, 48), format.constData()));
        QCOMPARE(photo.reason, QString());
        QVERIFY(photo.image.format() == QImage::Format_RGBX8888 || photo.image.format() == QImage::Format_RGB32);
        QCOMPARE(photo.image.colorSpace(), QColorSpace(QColorSpace::SRgb));
        QVERIFY(samples::showsQuarters(photo.image, QSize(64, 48)));
        QCOMPARE(photo.metadata.exif.isEmpty(), format != "tiff"); // which is such a block itself
    }

    void firstFrameOfAnAnimation()
    {
        const LoadedPhoto photo = loadData(twoFrameGif());
        QCOMPARE(photo.reason, QString());
        QCOMPARE(samples::largestDifference(photo.image, samples::flat(2, 1, Qt::red)), 0);
    }

    void throughASymbolicLink()
    {
        samples::writeFile(pathOf("target"), samples::encoded(samples::noise(5, 4), "png"));
        QVERIFY(symlink("target", pathOf("link").constData()) == 0);
        QVERIFY(!loadPhoto(pathOf("link")).image.isNull());
    }

    void whatIsNoPhotoIsRefused_data()
    {
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QString>("reason");
        samples::writeFile(pathOf("empty"), {});
        samples::writeFile(pathOf("text"), "Dear diary,\n");
        // Its decoder would allocate the gigabyte that the file claims.
        samples::writeFile(pathOf("icon"), QByteArray("icns\x40\0\0\x10ic07\x40\0\0\x08", 16));
        QVERIFY(mkfifo(pathOf("pipe").constData(), 0644) == 0);
        QVERIFY(symlink("loop", pathOf("loop").constData()) == 0);
        QTest::newRow("missing") << pathOf("missing") << "The file does not exist.";
        QTest::newRow("no name") << QByteArray() << "The file does not exist.";
        QTest::newRow("below a file") << pathOf("text/photo.png") << "The file does not exist.";
        QTest::newRow("folder") << pathOf("") << "It is a folder, not a picture.";
        QTest::newRow("empty") << pathOf("empty") << "The file is empty.";
        QTest::newRow("text") << pathOf("text") << "The file is not a picture of a kind that can be read.";
        QTest::newRow("icon") << pathOf("icon") << "The file is not a picture of a kind that can be read.";
        QTest::newRow("pipe that nobody writes to") << pathOf("pipe") << "It is not a file with a picture.";
        QTest::newRow("device") << QByteArray("/dev/zero") << "It is not a file with a picture.";
        const QString loop = qt_error_string(ELOOP); // in the system's language
        QTest::newRow("link to itself") << pathOf("loop") << QString("The file cannot be opened: %1.").arg(loop);
    }
    void whatIsNoPhotoIsRefused()
    {
        QFETCH(QByteArray, path);
        QFETCH(QString, reason);
        const LoadedPhoto photo = loadPhoto(path);
        QVERIFY(photo.image.isNull());
        QCOMPARE(photo.reason, reason);
    }

    void unreadableFileIsRefused()
    {
        const QByteArray path = pathOf("unreadable");
        samples::writeFile(path, samples::encoded(samples::noise(5, 4), "png"));
        QVERIFY(chmod(path.constData(), 0) == 0 && chmod(pathOf("").constData(), 0755) == 0);
        QVERIFY(succeedsInChild([&] {
            if (geteuid() == 0 && setresuid(65534, 65534, 65534) != 0)
                return 1;
            return loadPhoto(path).reason == "There is no permission to read the file." ? 0 : 2;
        }));
    }

    void damagedPngIsRefused()
    {
        const QByteArray whole = samples::encoded(samples::noise(40, 30), "png");
        for (qsizetype length = 1; length < whole.size() - 20; length += 37)
            QVERIFY2(loadData(whole.left(length)).image.isNull(), qPrintable(QString::number(length)));
        QByteArray flipped = whole;
        flipped[whole.size() / 2] = char(flipped[whole.size() / 2] ^ 0x10);
        QCOMPARE(loadData(flipped).reason, QStringLiteral("The picture is damaged and cannot be read."));
    }

    void truncatedJpegOpensOrIsRefused()
    {
        const QByteArray whole = samples::withCameraExif(samples::encoded(samples::noise(40, 30), "jpeg"), 6);
        for (qsizetype length = 1; length <= whole.size(); length++) {
            const LoadedPhoto photo = loadData(whole.left(length));
            QCOMPARE(photo.image.isNull(), !photo.reason.isEmpty());
        }
        QVERIFY(!loadData(whole.left(whole.size() - 100)).image.isNull());
    }

    void mutatedFilesOpenOrAreRefused()
    {
        const QImage picture = samples::noise(17, 11);
        const QByteArray seeds[] = {samples::encoded(picture, "png"), samples::encoded(picture, "bmp"),
            samples::encoded(picture, "webp"), samples::encoded(picture, "tiff"), twoFrameGif(),
            samples::withCameraExif(samples::encoded(picture, "jpeg"), 5)};
        std::mt19937 random(7);
        for (int round = 0; round < 1200; round++) {
            QByteArray data = seeds[round % std::size(seeds)];
            for (unsigned changes = random() % 6; changes-- > 0;)
                data[qsizetype(random() % unsigned(std::min<qsizetype>(data.size(), 600)))] = char(random());
            const LoadedPhoto photo = loadData(data);
            QCOMPARE(photo.image.isNull(), !photo.reason.isEmpty());
        }
    }

    void hugeClaimsAreRefusedWithoutTheirMemory_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<bool>("sizeIsKnown");
        QTest::newRow("png") << greyPng(60000, 60000, 8, qCompress(QByteArray(1000, 0)).mid(4)) << true;
        QTest::newRow("png beyond 2^31 pixels a side") << greyPng(0x7FFFFFFF, 0x7FFFFFFF, 16, {}) << false;
        QTest::newRow("bmp") << bmpHeader(60000, 60000) << false;
        QTest::newRow("bmp upside down") << bmpHeader(60000, quint32(-60000)) << false;
        QTest::newRow("jpeg") << jpegThatClaims(60000, 60000) << true;
        QTest::newRow("ppm") << QByteArray("P6 60000 60000 255\nxxxxxxxxxxxxxxxxxxxxxx") << false;
        QTest::newRow("gif") << QByteArray("GIF89a\x60\xEA\x60\xEA\x80\0\0\xFF\0\0\0\0\xFF", 19)
                + QByteArray("\x2C\0\0\0\0\x60\xEA\x60\xEA\0\x02\x02\x04\x0A\0;", 16)
                             << true;
        QTest::newRow("one row beyond the limit") << greyPng(16384, 16385, 1, {}) << true;
    }
    void hugeClaimsAreRefusedWithoutTheirMemory()
    {
        QFETCH(QByteArray, data);
        QFETCH(bool, sizeIsKnown);
        rusage before, after;
        getrusage(RUSAGE_SELF, &before);
        const LoadedPhoto photo = loadData(data);
        QVERIFY(photo.image.isNull());
        QVERIFY(!photo.reason.isEmpty());
        if (sizeIsKnown)
            QVERIFY2(photo.reason.startsWith("The picture is too large: "), qPrintable(photo.reason));
        getrusage(RUSAGE_SELF, &after);
        QVERIFY(after.ru_maxrss - before.ru_maxrss < 50 * 1024);
    }

    void tooManyScansAreRefused()
    {
        const QByteArray pixels(64 * 64 * 3, 'x');
        const LoadedPhoto photo = loadData(samples::jpeg(samples::JpegKind::ManyScans, 64, 64, pixels));
        QVERIFY(photo.image.isNull());
        QCOMPARE(photo.reason, QStringLiteral("The picture is damaged: it has too many parts."));
    }

    void quarterOfAGigapixelOpens()
    {
        // 16000 x 15625 pixels of one bit: rows of a filter byte and 2000 bytes.
        QByteArray rows(15625 * 2001, char(0xFF));
        for (qsizetype row = 0; row < 15625; row++)
            rows[row * 2001] = 0;
        const QByteArray file = greyPng(16000, 15625, 1, qCompress(rows, 1).mid(4));
        const bool fits = freeMemory() / blocksPerPhoto > qint64(16000) * 15625 * 4 + (64 << 20);
        const LoadedPhoto photo = loadData(file);
        if (fits) {
            QCOMPARE(photo.reason, QString());
            QCOMPARE(photo.image.size(), QSize(16000, 15625));
            QCOMPARE(photo.image.pixel(15999, 15624), qRgb(255, 255, 255));
        } else {
            QVERIFY(photo.reason.startsWith("There is not enough free memory"));
        }
    }

    void whereMemoryWouldNotDoThereIsAReason()
    {
        const QByteArray path = pathOf("wide");
        samples::writeFile(path, greyPng(8000, 8000, 1, qCompress(QByteArray(8000 * 1001, 0), 1).mid(4)));
        QVERIFY(!loadPhoto(path).image.isNull());
        const ScarceMemory memory(500 << 20);
        const QString wanted = "There is not enough free memory for a picture of 8000 x 8000 pixels.";
        QCOMPARE(loadPhoto(path).reason, wanted);
    }
};

QTEST_GUILESS_MAIN(PhotoLoaderTest)
#include "PhotoLoaderTest.moc"
