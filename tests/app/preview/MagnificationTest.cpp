// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/Magnification.h"

#include <QTest>

class MagnificationTest : public QObject {
    Q_OBJECT

private:
    static constexpr QSize picture{600, 400}, room{301, 203};

    /// A pixel that tells where it stands.
    static QImage grid(int width, int height, QImage::Format format)
    {
        QImage image(width, height, QImage::Format_RGB32);
        for (int y = 0; y < height; y++)
            for (int x = 0; x < width; x++)
                image.setPixel(x, y, qRgb(x * 13 % 256, y * 29 % 256, (x * y) % 256));
        return image.convertToFormat(format);
    }

    static QRgb averageOf(const QImage& image, int x, int y)
    {
        const QRgb four[] = {
            image.pixel(x, y), image.pixel(x + 1, y), image.pixel(x, y + 1), image.pixel(x + 1, y + 1)};
        int red = 0, green = 0, blue = 0;
        for (const QRgb one : four) {
            red += qRed(one);
            green += qGreen(one);
            blue += qBlue(one);
        }
        return qRgb(red / 4, green / 4, blue / 4);
    }

    static int differenceOf(QRgb a, QRgb b)
    {
        return qMax(qAbs(qRed(a) - qRed(b)), qMax(qAbs(qGreen(a) - qGreen(b)), qAbs(qBlue(a) - qBlue(b))));
    }

private slots:
    void whatIsCentredStandsInTheMiddle()
    {
        Magnification view;
        QVERIFY(view.isFitted());
        view.centreOn({0.5, 0.5}, 100);
        QCOMPARE(view.placed(picture, room), QRect(-150, -99, 600, 400)); // half pixels go up and to the left
        view.centreOn({300.5 / 600, 201.5 / 400}, 100); // the middle of a pixel on that of the room
        QCOMPARE(view.placed(picture, room), QRect(-150, -100, 600, 400));
        view.centreOn({0.5, 0.5}, 200);
        QCOMPARE(view.placed(picture, room).size(), QSize(1200, 800));
        view.centreOn({0.5, 0.5}, 50);
        QCOMPARE(view.placed({601, 407}, room).size(), QSize(300, 203));
        QCOMPARE(view.placed({1, 1}, room).size(), QSize(1, 1));
    }

    void theRoomIsFilledWhereThePictureCanFillIt()
    {
        Magnification view;
        view.centreOn({0, 0}, 100);
        QCOMPARE(view.placed(picture, room), QRect(0, 0, 600, 400));
        view.centreOn({1, 1}, 100);
        QCOMPARE(view.placed(picture, room), QRect(301 - 600, 203 - 400, 600, 400));
        view.centreOn({1, 1}, 50); // as wide as the room but for one pixel, and lower
        QCOMPARE(view.placed(picture, room), QRect(0, 1, 300, 200));
        view.centreOn({0, 0}, 100); // a strip
        QCOMPARE(view.placed({900, 20}, room), QRect(0, 91, 900, 20));
    }

    void aPanMovesByPixelsAndNoFurtherThanTheEdge()
    {
        Magnification view;
        view.centreOn({0.5, 0.5}, 100);
        const QPoint start = view.placed(picture, room).topLeft();
        view.panBy({-7, 5}, picture, room);
        QCOMPARE(view.placed(picture, room).topLeft(), start + QPoint(-7, 5));
        for (int i = 0; i < 100; i++)
            view.panBy({1, -1}, picture, room);
        QCOMPARE(view.placed(picture, room).topLeft(), start + QPoint(93, -95));
        view.panBy({1000, 1000}, picture, room);
        QCOMPARE(view.placed(picture, room).topLeft(), QPoint(0, 0));
        QCOMPARE(view.placed(picture, room - QSize(100, 50)).topLeft(), QPoint(-50, -25)); // the same in the middle
        view.panBy({-3, -4}, picture, room); // at once: nothing is owed
        QCOMPARE(view.placed(picture, room).topLeft(), QPoint(-3, -4));
        view.panBy({-5, 0}, {600, 20}, room); // lower than the room: it stays in the middle
        QCOMPARE(view.placed({600, 20}, room).topLeft(), QPoint(-8, 91));
    }

    void whatIsUnderThePointerStaysThere()
    {
        const QRectF fitted(0, 1, 301, 201);
        for (const QPointF point : {QPointF(150, 100), QPointF(200, 60), QPointF(120, 150)}) {
            Magnification view;
            QRectF before = fitted;
            for (const int percent : {100, 200, 100, 50}) {
                const QPointF share = shareOf(point, before);
                view.zoomAbout(point, before, percent, picture, room);
                QCOMPARE(view.percent(), percent);
                const QRectF after = view.placed(picture, room);
                if (percent > 50) { // which fits
                    QVERIFY(qAbs(after.x() + share.x() * after.width() - point.x()) <= 0.5001);
                    QVERIFY(qAbs(after.y() + share.y() * after.height() - point.y()) <= 0.5001);
                }
                before = after;
            }
        }
        Magnification view; // beside the picture: its nearest edge
        view.zoomAbout({0, 0}, {50, 50, 200, 100}, 100, picture, room);
        QCOMPARE(view.placed(picture, room).topLeft(), QPoint(0, 0));
    }

    void anotherSizeOfThePhotoIsSeenInTheSamePlace()
    {
        Magnification view;
        view.centreOn({0.75, 0.4}, 100);
        const QRect large = view.placed({6000, 4000}, room), small = view.placed({3000, 2000}, room);
        QCOMPARE(large.topLeft(), QPoint(-4350, -1499));
        QCOMPARE(small.topLeft(), QPoint(-2100, -699));
    }

    void stepsGoThroughAllThatAreLargerThanTheFittedPicture()
    {
        Magnification view;
        const auto up = [&view](double fitted) {
            view.centreOn({0.5, 0.5}, view.stepUp(fitted));
            return view.percent();
        };
        QCOMPARE(up(20), 50);
        QCOMPARE(up(20), 100);
        QCOMPARE(up(20), 200);
        QCOMPARE(up(20), 200);
        QCOMPARE(view.stepDown(20), 100);
        view.centreOn({0.5, 0.5}, 100);
        QCOMPARE(view.stepDown(20), 50);
        QCOMPARE(view.stepDown(60), 0);
        view.fit();
        QCOMPARE(view.stepDown(20), 0);
        QCOMPARE(view.stepUp(60), 100);
        QCOMPARE(view.stepUp(100), 200);
    }

    void partsAreThePicturesOwnPixels_data()
    {
        QTest::addColumn<QImage::Format>("format");
        QTest::newRow("as rendered") << QImage::Format_RGBX8888;
        QTest::newRow("as decoded") << QImage::Format_RGB32;
    }
    void partsAreThePicturesOwnPixels()
    {
        QFETCH(QImage::Format, format);
        const QImage image = grid(37, 23, format);
        for (const QRect part : {QRect(0, 0, 37, 23), QRect(5, 3, 12, 9), QRect(36, 22, 1, 1), QRect(3, 0, 1, 23)}) {
            QCOMPARE(magnifiedPart(image, 100, part), image.copy(part).convertToFormat(QImage::Format_RGB32));
            for (const QPoint shift : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)}) {
                const QRect twice(part.topLeft() * 2 + shift, part.size() * 2 - QSize(shift.x(), shift.y()));
                const QImage large = magnifiedPart(image, 200, twice);
                QCOMPARE(large.size(), twice.size());
                for (int y = 0; y < twice.height(); y++)
                    for (int x = 0; x < twice.width(); x++)
                        QCOMPARE(large.pixel(x, y), image.pixel((twice.x() + x) / 2, (twice.y() + y) / 2));
            }
        }
        QVERIFY(magnifiedPart(image, 100, {}).isNull());
    }

    void halfAsLargeEachPixelIsTheAverageOfFour_data() { partsAreThePicturesOwnPixels_data(); }
    void halfAsLargeEachPixelIsTheAverageOfFour()
    {
        QFETCH(QImage::Format, format);
        const QImage image = grid(37, 23, format);
        for (const QRect part : {QRect(0, 0, 18, 11), QRect(3, 5, 7, 2), QRect(17, 10, 1, 1)}) {
            const QImage small = magnifiedPart(image, 50, part);
            QCOMPARE(small.size(), part.size());
            for (int y = 0; y < part.height(); y++)
                for (int x = 0; x < part.width(); x++)
                    QVERIFY(
                        differenceOf(small.pixel(x, y), averageOf(image, (part.x() + x) * 2, (part.y() + y) * 2)) <= 1);
        }
        QCOMPARE(magnifiedPart(image.copy(4, 4, 1, 1), 50, {0, 0, 1, 1}).pixel(0, 0), image.pixel(4, 4));
    }
};

QTEST_APPLESS_MAIN(MagnificationTest)
#include "MagnificationTest.moc"
