// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/PhotoDecoder.h"
#include "photo/PhotoRows.h"
#include "tests/photo/Samples.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageWriter>
#include <QTest>

using samples::JpegKind;

namespace {

QByteArray written(const QImage& image, int quality, bool progressive)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(quality);
    writer.setProgressiveScanWrite(progressive);
    if (!writer.write(image))
        qFatal("cannot write a JPEG file");
    return buffer.data();
}

QByteArray pixels(int width, int height, int channels)
{
    const QImage picture = samples::noise(width, height);
    QByteArray bytes;
    for (int y = 0; y < height; y++)
        for (int x = 0; x < width; x++)
            bytes.append(reinterpret_cast<const char*>(picture.constScanLine(y)) + 4 * x, std::min(channels, 3))
                .append(QByteArray(channels == 4 ? 1 : 0, char(x * 5 + y)));
    return bytes;
}

class KeptRows : public PhotoRows {
public:
    void begin(QSize size) override { picture = QImage(size, QImage::Format_RGBX8888); }
    void take(const uchar* rows, qint64 bytes) override
    {
        if (taken + bytes > picture.sizeInBytes())
            qFatal("too many rows");
        memcpy(picture.bits() + taken, rows, std::size_t(bytes));
        taken += bytes;
    }

    QImage picture;
    qint64 taken = 0;
};

QByteArray ofProfile(QColorSpace space)
{
    QImage picture = samples::noise(45, 31);
    picture.setColorSpace(space);
    return written(picture, 90, false);
}

void eachLayout()
{
    QTest::addColumn<QByteArray>("file");
    const QImage picture = samples::noise(200, 160);
    QTest::newRow("from the top") << written(picture, 90, false);
    QTest::newRow("progressive") << written(picture, 90, true);
    QTest::newRow("grey") << samples::jpeg(JpegKind::Grey, 200, 160, pixels(200, 160, 1));
    QTest::newRow("inks") << samples::jpeg(JpegKind::Cmyk, 200, 160, pixels(200, 160, 4));
}

/// What the platform's colours may be off: where it leaves the inks of a picture as they are, it mixes them in its own
/// way.
int rounding(const QImage& platforms)
{
    return platforms.pixelFormat().colorModel() == QPixelFormat::CMYK ? 1 : 0;
}

} // namespace

class JpegTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

private slots:
    void everyKindLooksAsThePlatformShowsIt_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("colour") << samples::jpeg(JpegKind::Colour, 45, 31, pixels(45, 31, 3));
        QTest::newRow("grey") << samples::jpeg(JpegKind::Grey, 45, 31, pixels(45, 31, 1));
        QTest::newRow("inks") << samples::jpeg(JpegKind::Cmyk, 45, 31, pixels(45, 31, 4));
        QTest::newRow("inks as colours") << samples::jpeg(JpegKind::Ycck, 45, 31, pixels(45, 31, 4));
        QTest::newRow("coarse colours") << written(samples::noise(45, 31), 60, false);
        QTest::newRow("progressive") << written(samples::noise(45, 31), 60, true);
        QTest::newRow("one pixel") << written(samples::noise(1, 1), 90, false);
    }
    void everyKindLooksAsThePlatformShowsIt()
    {
        QFETCH(QByteArray, file);
        const LoadedPhoto photo = samples::loaded(m_folder, file);
        QCOMPARE(photo.reason, QString());
        const QImage platforms = QImage::fromData(file, "jpeg");
        QVERIFY(samples::largestDifference(photo.image, platforms) <= rounding(platforms));
        QVERIFY(!photo.restIsMissing);
    }

    void rowsAreGivenAsTheyAreDecoded_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<bool>("areGiven");
        const QByteArray colour = written(samples::noise(45, 31), 90, false);
        QTest::newRow("colour") << colour << true;
        QTest::newRow("whole strips") << written(samples::noise(45, 32), 90, true) << true;
        QTest::newRow("less than a strip") << written(samples::noise(7, 1), 90, false) << true;
        QTest::newRow("upright") << samples::withCameraExif(colour, 1) << true;
        QTest::newRow("turned") << samples::withCameraExif(colour, 6) << false;
        QTest::newRow("sRGB") << ofProfile(QColorSpace::SRgb) << true;
        QTest::newRow("another profile") << ofProfile(QColorSpace::DisplayP3) << false;
        QTest::newRow("a broken profile") << samples::jpeg(JpegKind::Colour, 8, 8, pixels(8, 8, 3), "icc") << false;
        QTest::newRow("grey") << samples::jpeg(JpegKind::Grey, 45, 31, pixels(45, 31, 1)) << false;
        QTest::newRow("inks") << samples::jpeg(JpegKind::Cmyk, 45, 31, pixels(45, 31, 4)) << false;
        QTest::newRow("not JPEG") << samples::encoded(samples::noise(3, 2), "png") << false;
    }
    void rowsAreGivenAsTheyAreDecoded()
    {
        QFETCH(QByteArray, file);
        QFETCH(bool, areGiven);
        QBuffer buffer(&file);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        KeptRows rows;
        const LoadedPhoto photo = decodePhoto(buffer, qint64(1) << 30, &rows), whole = samples::loaded(m_folder, file);
        QCOMPARE(photo.reason, QString());
        QCOMPARE(photo.image.isNull(), areGiven);
        QCOMPARE(rows.picture.isNull(), !areGiven);
        QCOMPARE(rows.taken, areGiven ? whole.image.sizeInBytes() : 0);
        QCOMPARE(samples::largestDifference(areGiven ? rows.picture : photo.image, whole.image), 0);
        QVERIFY(photo.metadata == whole.metadata);
    }

    void whatIsCutOffIsMissing_data() { eachLayout(); }
    void whatIsCutOffIsMissing()
    {
        QFETCH(QByteArray, file);
        const qsizetype scan = file.indexOf("\xFF\xDA");
        QVERIFY(scan > 0);
        for (qsizetype length = 2; length<file.size(); length += length> file.size() - 30 ? 1
                 : length < scan                                                          ? 13
                                                                                          : 997) {
            const LoadedPhoto photo = samples::loaded(m_folder, file.left(length));
            QCOMPARE(photo.image.isNull(), !photo.reason.isEmpty());
            QVERIFY2(photo.image.isNull() || photo.restIsMissing, qPrintable(QString::number(length)));
        }
        const LoadedPhoto half = samples::loaded(m_folder, file.left((scan + file.size()) / 2));
        const QImage platforms = QImage::fromData(file.left((scan + file.size()) / 2), "jpeg");
        QVERIFY(samples::largestDifference(half.image, platforms.convertToFormat(QImage::Format_RGB32))
            <= rounding(platforms));
        QVERIFY(!samples::loaded(m_folder, file).restIsMissing);
    }

    void whatEndsTooEarlyIsMissingToo_data() { eachLayout(); }
    void whatEndsTooEarlyIsMissingToo()
    {
        QFETCH(QByteArray, file);
        const qsizetype scan = file.lastIndexOf("\xFF\xDA");
        QVERIFY(samples::loaded(m_folder, file.left((scan + file.size()) / 2) + "\xFF\xD9").restIsMissing);
    }

    void scansThatDoNotComeAreMissing()
    {
        const QByteArray whole = written(samples::noise(200, 160), 90, true);
        int scans = 0;
        for (qsizetype scan = whole.indexOf("\xFF\xDA"); scan > 0; scan = whole.indexOf("\xFF\xDA", scan + 2)) {
            // Tables of a scan stand before it.
            const LoadedPhoto photo =
                samples::loaded(m_folder, whole.left(whole.lastIndexOf("\xFF\xC4", scan)) + "\xFF\xD9");
            QCOMPARE(photo.restIsMissing, scans > 0);
            QCOMPARE(photo.image.isNull(), scans == 0);
            scans++;
        }
        QCOMPARE(scans, 10);
    }

    void damageWithinAndWhatFollowsAreNotCalledMissing()
    {
        const QByteArray whole = written(samples::noise(200, 160), 90, false);
        QVERIFY(!samples::loaded(m_folder, whole + QByteArray(100000, 'x')).restIsMissing);
        // An unknown segment between the others, and bytes that belong nowhere.
        QVERIFY(!samples::loaded(m_folder, QByteArray(whole).insert(2, QByteArray("\xFF\xEB\0\4xx", 6))).restIsMissing);
        QVERIFY(!samples::loaded(m_folder, QByteArray(whole).insert(whole.size() - 2, "xxxx")).restIsMissing);
    }
};

QTEST_GUILESS_MAIN(JpegTest)
#include "JpegTest.moc"
