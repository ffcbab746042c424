#include "tests/photo/Samples.h"

#include <QBuffer>
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
        QTest::newRow("coarse colours") << written(samples::noise(45, 31), 60, false);
        QTest::newRow("progressive") << written(samples::noise(45, 31), 60, true);
        QTest::newRow("one pixel") << written(samples::noise(1, 1), 90, false);
    }
    void everyKindLooksAsThePlatformShowsIt()
    {
        QFETCH(QByteArray, file);
        const LoadedPhoto photo = samples::loaded(m_folder, file);
        QCOMPARE(photo.reason, QString());
        QCOMPARE(samples::largestDifference(photo.image, QImage::fromData(file, "jpeg")), 0);
    }
};

QTEST_GUILESS_MAIN(JpegTest)
#include "JpegTest.moc"
