// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/PhotoLoader.h"
#include "tests/photo/Samples.h"
#include "tests/photo/TiffSample.h"

#include <QCryptographicHash>
#include <QImageWriter>
#include <QTest>
#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

// What a photo shows is its file's own, whatever the memory held before.

namespace {

using samples::shorts;

/// A BMP of 200 x 10 pixels in runs, of which the first and the last give two and the rest is passed over.
QByteArray bmpThatPassesOver()
{
    const QByteArray header("BM\0\0\0\0\0\0\0\0\x3E\0\0\0\x28\0\0\0\xC8\0\0\0\x0A\0\0\0\1\0\x08\0\1\0\0\0", 34);
    const QByteArray rest("\x0A\0\0\0\0\0\0\0\0\0\0\0\2\0\0\0\0\0\0\0", 20);
    const QByteArray colours("\x20\x80\xE0\0\0\0\xFF\0", 8); // orange, red
    return header + rest + colours + QByteArray("\2\1\0\2\xC4\x09\2\1\0\1", 10);
}

/// A GIF of 40 x 10 pixels, whose only frame covers two: one red, and one of a colour that its palette does not have.
QByteArray gifThatLeavesOut()
{
    const QByteArray screen("GIF89a\x28\0\x0A\0\x80\0\0\0\0\xFF\0\xFF\0", 19), frame("\x2C\1\0\1\0\2\0\1\0\x80", 10);
    const QByteArray colours("\0\xFF\0\xFF\0\0", 6);
    // Codes of three bits: begin, red, the fourth colour, end.
    return screen + frame + colours + QByteArray("\2\2\xCC\x0A\0;", 6);
}

QByteArray planarTiff(int bits)
{
    constexpr int width = 40, height = 30;
    const qsizetype size = qsizetype(width) * height * bits / 8;
    return samples::tiff(samples::tiffPicture(width, height, bits, 3, 2, true),
        {QByteArray(size, 'r'), QByteArray(size, 'g'), QByteArray(size, 'b')});
}

/// What the file opens as in a process whose memory is full of `byte`: a digest of the pixels, or the reason.
QByteArray shown(const QByteArray& path, int byte)
{
    int ends[2];
    if (pipe(ends) != 0)
        qFatal("no pipe");
    const pid_t child = fork();
    if (child == 0) {
        mallopt(M_PERTURB, byte);
        const LoadedPhoto photo = loadPhoto(path);
        QCryptographicHash digest(QCryptographicHash::Md5);
        for (int y = 0; y < photo.image.height(); y++)
            digest.addData(QByteArrayView(photo.image.constScanLine(y), photo.image.width() * 4));
        const QByteArray told = photo.image.isNull() ? photo.reason.toUtf8() : digest.result().toHex();
        _exit(write(ends[1], told.constData(), std::size_t(told.size())) == told.size() ? 0 : 1);
    }
    close(ends[1]);
    char text[500];
    const ssize_t size = read(ends[0], text, sizeof text);
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    return status == 0 ? QByteArray(text, size) : QByteArray();
}

} // namespace

class EveryPixelTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

private slots:
    void whatMemoryHeldIsNotSeen_data()
    {
        QTest::addColumn<QByteArray>("file");
        QImage picture = samples::noise(40, 30).convertToFormat(QImage::Format_ARGB32);
        picture.setPixel(3, 3, qRgba(10, 20, 30, 40));
        for (const QByteArray& format : QImageWriter::supportedImageFormats())
            for (const QImage::Format depth : {QImage::Format_Mono, QImage::Format_Indexed8, QImage::Format_Grayscale16,
                     QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_RGBX64, QImage::Format_RGBA64})
                QTest::addRow("%s from %d", format.constData(), depth)
                    << samples::encoded(picture.convertToFormat(depth), format.constData());
        QTest::newRow("bmp in runs") << bmpThatPassesOver();
        QTest::newRow("gif") << gifThatLeavesOut();
        QTest::newRow("planar tiff of 8 bits") << planarTiff(8);
        QTest::newRow("planar tiff of 16 bits") << planarTiff(16);
    }
    void whatMemoryHeldIsNotSeen()
    {
        QFETCH(QByteArray, file);
        const QByteArray path = m_folder.path().toLocal8Bit() + "/photo";
        samples::writeFile(path, file);
        const QByteArray once = shown(path, 1);
        QVERIFY(!once.isEmpty());
        QCOMPARE(shown(path, 100), once);
        QCOMPARE(shown(path, 200), once);
    }

    void whatABmpOrAGifLeavesOutIsWhite()
    {
        QImage wanted = samples::flat(200, 10, Qt::white);
        for (const QPoint pixel : {QPoint(0, 9), QPoint(1, 9), QPoint(198, 0), QPoint(199, 0)})
            wanted.setPixelColor(pixel, Qt::red);
        QCOMPARE(samples::largestDifference(samples::loaded(m_folder, bmpThatPassesOver()).image, wanted), 0);
        wanted = samples::flat(40, 10, Qt::white);
        wanted.setPixelColor(1, 1, Qt::red);
        QCOMPARE(samples::largestDifference(samples::loaded(m_folder, gifThatLeavesOut()).image, wanted), 0);
    }

    void planesThatTheDecoderDoesNotKnowAreRefused()
    {
        const LoadedPhoto photo = samples::loaded(m_folder, planarTiff(16));
        QCOMPARE(photo.reason, "The picture is of a kind that is not supported.");
    }

    void planesAreRead()
    {
        const LoadedPhoto photo = samples::loaded(m_folder, planarTiff(8));
        QCOMPARE(samples::largestDifference(photo.image, samples::flat(40, 30, QColor('r', 'g', 'b'))), 0);
    }
};

QTEST_GUILESS_MAIN(EveryPixelTest)
#include "EveryPixelTest.moc"
