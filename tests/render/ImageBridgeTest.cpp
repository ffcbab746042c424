// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/ImageBridge.h"
#include "image/CharImage.h"
#include "tests/photo/Samples.h"

#include <QTest>
#include <cstring>
#include <memory>

using namespace lumora;

namespace {

constexpr int upright = 3;

std::unique_ptr<CharImage> fit(
    const QImage& source, float aspect, int boxWidth, int boxHeight, int orientation = upright)
{
    return std::unique_ptr<CharImage>(
        charImageFromNSImage(source, aspect, boxWidth, boxHeight, 0, 0, 0, 0, false, orientation));
}

QImage draw(
    const QImage& source, int width, int height, int orientation, const QMargins& margins = {}, bool fast = false)
{
    return getImageRefFromRGBACharArray(getRGBACharImageArray(source, width, height, orientation, margins.left(),
                                            margins.right(), margins.top(), margins.bottom(), fast),
        width, height);
}

bool sameBytes(const CharImage& image, const QImage& picture)
{
    if (image.width != picture.width() || image.height != picture.height())
        return false;
    for (int y = 0; y < image.height; y++)
        if (std::memcmp(
                image.data + std::size_t(y) * image.width * 4, picture.constScanLine(y), std::size_t(image.width) * 4)
            != 0)
            return false;
    return true;
}

/// The rectangle of the pixels that are not white.
QRect inked(const QImage& picture)
{
    QRect rect;
    for (int y = 0; y < picture.height(); y++)
        for (int x = 0; x < picture.width(); x++)
            if (picture.pixel(x, y) != 0xFFFFFFFF)
                rect |= QRect(x, y, 1, 1);
    return rect;
}

/// Two rows, three columns: 1 2 3 / 4 5 6, as grey levels times ten.
QImage numbered()
{
    QImage image(3, 2, QImage::Format_RGBX8888);
    for (int i = 0; i < 6; i++)
        image.setPixel(i % 3, i / 3, qRgb(10 * (i + 1), 10 * (i + 1), 10 * (i + 1)));
    return image;
}

QString numbers(const QImage& image)
{
    QString rows;
    for (int y = 0; y < image.height(); y++) {
        for (int x = 0; x < image.width(); x++)
            rows += QString::number(qRed(image.pixel(x, y)) / 10);
        rows += QLatin1Char(' ');
    }
    return rows.trimmed();
}

} // namespace

class ImageBridgeTest : public QObject {
    Q_OBJECT

private slots:
    void noCropKeepsTheWholePicture()
    {
        const QImage source = samples::noise(3000, 2000);
        QVERIFY(sameBytes(*fit(source, -1.0f, 3000, 3000), source));
    }

    void squareCropShowsTheMiddle()
    {
        // The outer 500 columns on each side are black: none of that may come in.
        QImage source = samples::flat(3000, 2000, Qt::black);
        const QImage middle = samples::noise(2000, 2000);
        for (int y = 0; y < 2000; y++)
            std::memcpy(source.scanLine(y) + 500 * 4, middle.constScanLine(y), 2000 * 4);
        const auto image = fit(source, 1.0f, 1000, 1000);
        QCOMPARE(image->width, 1000);
        QCOMPARE(image->height, 1000);
        for (int y = 0; y < 1000; y++)
            for (int x = 0; x < 1000; x++)
                for (int channel = 0; channel < 3; channel++) {
                    int sum = 0;
                    for (int i = 0; i < 4; i++)
                        sum += middle.constScanLine(2 * y + i / 2)[(2 * x + i % 2) * 4 + channel];
                    const int value = image->data[(std::size_t(y) * 1000 + x) * 4 + channel];
                    if (std::abs(4 * value - sum) > 2)
                        QFAIL(qPrintable(QStringLiteral("%1, %2: %3 for %4 / 4").arg(x).arg(y).arg(value).arg(sum)));
                }
    }

    void spareByteDoesNotMatter()
    {
        const QImage source = samples::noise(7, 5);
        const auto image = fit(source, -1.0f, -1, -1);
        for (std::size_t i = 0; i < image->pixelCount(); i++)
            image->data[4 * i + 3] = static_cast<unsigned char>(i * 11);
        const QByteArray before(reinterpret_cast<char*>(image->data), 7 * 5 * 4);
        QCOMPARE(NSImageFromCharImage(image.get()), source);
        QCOMPARE(QByteArray(reinterpret_cast<char*>(image->data), 7 * 5 * 4), before);
    }

    void pictureOutlivesTheCharImage()
    {
        const QImage source = samples::noise(7, 5);
        auto image = fit(source, -1.0f, -1, -1);
        const QImage picture = NSImageFromCharImage(image.get());
        image.reset();
        QCOMPARE(picture, source);
    }

    void blockIsHandedOver()
    {
        auto* block = new unsigned char[2 * 3 * 4]();
        const QImage picture = getImageRefFromRGBACharArray(block, 2, 3);
        QCOMPARE(picture.constBits(), block);
        QCOMPARE(picture.format(), QImage::Format_RGBX8888);
        QCOMPARE(picture.pixel(1, 2), 0xFF000000);
    }

    void boxSides_data()
    {
        QTest::addColumn<int>("boxWidth");
        QTest::addColumn<int>("boxHeight");
        QTest::addColumn<int>("orientation");
        QTest::addColumn<QSize>("size");
        QTest::newRow("negative: own size") << -1 << -1 << upright << QSize(30, 20);
        QTest::newRow("negative, whatever number") << -700 << -2 << upright << QSize(30, 20);
        QTest::newRow("zero: own size") << 0 << 0 << upright << QSize(30, 20);
        QTest::newRow("zero, turned: sides exchanged") << 0 << 0 << 0 << QSize(20, 30);
        QTest::newRow("zero width: own width") << 0 << 10 << upright << QSize(15, 10);
        QTest::newRow("zero height: own height") << 300 << 0 << upright << QSize(30, 20);
        QTest::newRow("zero width, turned: own height") << 0 << 100 << 2 << QSize(20, 13);
        QTest::newRow("negative height") << 15 << -1 << upright << QSize(15, 10);
        QTest::newRow("box touched by the width") << 15 << 100 << upright << QSize(15, 10);
        QTest::newRow("box touched by the height") << 100 << 40 << upright << QSize(60, 40);
    }
    void boxSides()
    {
        QFETCH(int, boxWidth);
        QFETCH(int, boxHeight);
        QFETCH(int, orientation);
        QFETCH(QSize, size);
        const auto image = fit(samples::noise(30, 20), -1.0f, boxWidth, boxHeight, orientation);
        QCOMPARE(QSize(image->width, image->height), size);
    }

    void zeroBoxTakesTheWholePictureWhateverTheAspect()
    {
        const QImage source = samples::noise(30, 20);
        QVERIFY(sameBytes(*fit(source, 1.0f, 0, 0), source));
    }

    void ownSizeIsCopiedWhateverTheSize()
    {
        // Single precision loses a pixel of some of these aspects.
        for (int width = 1; width <= 90; width++)
            for (int height = 1; height <= 90; height++) {
                const QImage source = samples::noise(width, height, unsigned(width * 97 + height));
                QVERIFY2(sameBytes(*fit(source, -1.0f, -1, -1), source),
                    qPrintable(QStringLiteral("%1 x %2").arg(width).arg(height)));
            }
        for (const QSize size : {QSize(1000, 667), QSize(4032, 3024), QSize(6016, 4016), QSize(2999, 1)}) {
            const QImage source = samples::noise(size.width(), size.height());
            QVERIFY(sameBytes(*fit(source, -1.0f, size.width(), size.height()), source));
        }
    }

    void cropAtOwnScaleCopiesPixels()
    {
        const QImage source = samples::noise(30, 20);
        QCOMPARE(draw(source, 20, 20, upright), source.copy(5, 0, 20, 20));
        QCOMPARE(draw(source, 30, 10, upright), source.copy(0, 5, 30, 10));
    }

    void halfPixelCropsMeetInTheMiddle()
    {
        QImage source(5, 2, QImage::Format_RGBX8888);
        for (int y = 0; y < 2; y++)
            for (int x = 0; x < 5; x++)
                source.setPixel(x, y, qRgb(40 * x, 0, 0));
        const QImage picture = draw(source, 2, 2, upright); // 1.5 columns are cut off at each end
        QCOMPARE(qRed(picture.pixel(0, 0)), 60);
        QCOMPARE(qRed(picture.pixel(1, 1)), 100);
    }

    void orientationCodes_data()
    {
        QTest::addColumn<int>("orientation");
        QTest::addColumn<QString>("pixels");
        QTest::newRow("3: upright") << 3 << "123 456";
        QTest::newRow("1: half turn") << 1 << "654 321";
        QTest::newRow("0: clockwise") << 0 << "41 52 63";
        QTest::newRow("2: counter-clockwise") << 2 << "36 25 14";
    }
    void orientationCodes()
    {
        QFETCH(int, orientation);
        QFETCH(QString, pixels);
        const auto image = fit(numbered(), -1.0f, 0, 0, orientation);
        QCOMPARE(numbers(NSImageFromCharImage(image.get())), pixels);
    }

    void marginsKeepThePictureOut_data()
    {
        QTest::addColumn<QSize>("source");
        QTest::addColumn<int>("orientation");
        QTest::addColumn<QRect>("drawn");
        // Margins: left 10, top 4, right 5, bottom 6 of a 60 x 60 output.
        QTest::newRow("wide: rows") << QSize(100, 50) << 3 << QRect(0, 4, 60, 50);
        QTest::newRow("tall: columns") << QSize(50, 100) << 3 << QRect(10, 0, 45, 60);
        QTest::newRow("wide, half turn: on the other side") << QSize(100, 50) << 1 << QRect(0, 6, 60, 50);
        QTest::newRow("tall, half turn: on the other side") << QSize(50, 100) << 1 << QRect(5, 0, 45, 60);
        QTest::newRow("wide, clockwise") << QSize(100, 50) << 0 << QRect(10, 0, 45, 60);
        QTest::newRow("wide, counter-clockwise: on the other side") << QSize(100, 50) << 2 << QRect(5, 0, 45, 60);
        // 50 high, as wide, in the middle and moved by half of the margins' difference: 7.5 to 57.5.
        QTest::newRow("square") << QSize(40, 40) << 3 << QRect(7, 4, 51, 50);
        // Sides are cut to whole pixels: 52.875 high, in the middle and moved as above; 53.906 wide.
        QTest::newRow("a little tall") << QSize(40, 47) << 3 << QRect(10, 3, 45, 52);
        QTest::newRow("a little wide") << QSize(69, 64) << 3 << QRect(6, 4, 53, 50);
    }
    void marginsKeepThePictureOut()
    {
        QFETCH(QSize, source);
        QFETCH(int, orientation);
        QFETCH(QRect, drawn);
        const QImage red = samples::flat(source.width(), source.height(), Qt::red);
        for (const bool fast : {false, true}) {
            const QImage picture = draw(red, 60, 60, orientation, QMargins(10, 4, 5, 6), fast);
            QCOMPARE(inked(picture), drawn);
            QCOMPARE(picture.copy(drawn), samples::flat(drawn.width(), drawn.height(), Qt::red));
        }
    }

    void marginsThatLeaveNoAreaDrawNothing()
    {
        const QImage picture = draw(samples::flat(10, 10, Qt::red), 8, 8, upright, QMargins(4, 4, 4, 4));
        QCOMPARE(inked(picture), QRect());
    }

    void fastTakesTheNearestPixel()
    {
        const QImage source = numbered();
        QCOMPARE(numbers(draw(source, 6, 4, upright, {}, true)), QStringLiteral("112233 112233 445566 445566"));
        const QImage noise = samples::noise(90, 60);
        const QImage small = draw(noise, 30, 20, upright, {}, true);
        for (int y = 0; y < 20; y++)
            for (int x = 0; x < 30; x++)
                QCOMPARE(small.pixel(x, y), noise.pixel(3 * x + 1, 3 * y + 1));
    }

    void enlargingIsSmooth()
    {
        QImage source(2, 1, QImage::Format_RGBX8888);
        source.setPixel(0, 0, qRgb(0, 0, 0));
        source.setPixel(1, 0, qRgb(200, 200, 200));
        const QImage picture = draw(source, 8, 4, upright);
        for (int x = 0; x < 8; x++)
            QCOMPARE(qRed(picture.pixel(x, 2)), qRound(std::clamp((x + 0.5) / 4 - 0.5, 0.0, 1.0) * 200));
    }

    void shrinkingAveragesAreas()
    {
        // One white pixel in 64, anywhere in its cell: taking single pixels would lose most of them.
        QImage source = samples::flat(512, 512, Qt::black);
        for (int cell = 0; cell < 64 * 64; cell++)
            source.setPixel(cell % 64 * 8 + cell % 7, cell / 64 * 8 + cell % 5, 0xFFFFFFFF);
        const QImage picture = draw(source, 64, 64, upright);
        for (int y = 0; y < 64; y++)
            for (int x = 0; x < 64; x++)
                QCOMPARE(qGreen(picture.pixel(x, y)), 4); // 255 / 64
    }

    void flatColoursStayExact()
    {
        for (const QColor& colour : {QColor(255, 255, 255), QColor(254, 1, 128), QColor(0, 0, 0), QColor(77, 200, 3)})
            for (const QSize size : {QSize(13, 7), QSize(97, 61), QSize(300, 211), QSize(640, 480)})
                QCOMPARE(draw(samples::flat(101, 67, colour), size.width(), size.height(), upright),
                    samples::flat(size.width(), size.height(), colour));
    }

    void transparencyLiesOnWhite()
    {
        QImage source(3, 1, QImage::Format_ARGB32);
        source.setPixel(0, 0, qRgba(0, 0, 0, 0));
        source.setPixel(1, 0, qRgba(255, 0, 0, 128));
        source.setPixel(2, 0, qRgba(1, 2, 3, 255));
        const QImage picture = draw(source, 3, 1, upright);
        QCOMPARE(picture.pixel(0, 0), qRgb(255, 255, 255));
        QCOMPARE(picture.pixel(1, 0), qRgb(255, 127, 127));
        QCOMPARE(picture.pixel(2, 0), qRgb(1, 2, 3));
    }

    void otherFormatsComeIn()
    {
        const QImage source = samples::noise(9, 8);
        for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied,
                 QImage::Format_RGB888, QImage::Format_RGBA64, QImage::Format_BGR888})
            QVERIFY(sameBytes(*fit(source.convertToFormat(format), -1.0f, -1, -1), source));
        // Drawn in their own order, whatever becomes of their size and place.
        const QImage inOtherOrder = source.convertToFormat(QImage::Format_RGB32);
        for (const int orientation : {0, 1, 2, upright})
            for (const QSize size : {QSize(9, 8), QSize(8, 9), QSize(4, 4), QSize(31, 20), QSize(3, 30)})
                for (const bool fast : {false, true})
                    QCOMPARE(draw(inOtherOrder, size.width(), size.height(), orientation, {}, fast),
                        draw(source, size.width(), size.height(), orientation, {}, fast));
        QImage indexed(2, 1, QImage::Format_Indexed8);
        indexed.setColorTable({qRgb(1, 2, 3), qRgb(200, 100, 50)});
        indexed.setPixel(0, 0, 1);
        indexed.setPixel(1, 0, 0);
        QCOMPARE(draw(indexed, 2, 1, upright).pixel(0, 0), qRgb(200, 100, 50));
    }

    void stripsKeepALineOfPixels()
    {
        const auto image = fit(samples::flat(5000, 1, Qt::red), -1.0f, 100, 100);
        QCOMPARE(QSize(image->width, image->height), QSize(100, 1));
        QCOMPARE(image->data[0], 255);
        QCOMPARE(image->data[1], 0);
        // The picture is thousands of times as wide as what is shown of it.
        const auto square = fit(samples::flat(30000, 1, Qt::red), 1.0f, 40, 40);
        QCOMPARE(NSImageFromCharImage(square.get()), samples::flat(40, 40, Qt::red));
    }

    void noPictureGivesAWhitePixel()
    {
        const auto image = fit(QImage(), -1.0f, -1, -1);
        QCOMPARE(NSImageFromCharImage(image.get()), samples::flat(1, 1, Qt::white));
    }
};

QTEST_GUILESS_MAIN(ImageBridgeTest)
#include "ImageBridgeTest.moc"
