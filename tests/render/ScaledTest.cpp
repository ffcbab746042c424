// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/Scaled.h"
#include "tests/photo/Samples.h"

#include <QColorSpace>
#include <QTest>

class ScaledTest : public QObject {
    Q_OBJECT

private slots:
    void ownSizeIsThePictureItself()
    {
        const QImage picture = samples::noise(9, 7);
        QCOMPARE(scaledTo(picture, {9, 7}).cacheKey(), picture.cacheKey());
        QVERIFY(scaledTo(QImage(), {9, 7}).isNull());
    }

    void areasAreAveraged()
    {
        QImage picture = samples::flat(600, 400, Qt::black);
        for (int y = 0; y < 400; y += 2)
            for (int x = 0; x < 600; x++)
                picture.setPixel(x, y, qRgb(200, 100, 50));
        QCOMPARE(scaledTo(picture, {100, 50}), samples::flat(100, 50, QColor(100, 50, 25)));
    }

    void everyFormatComesOutOpaque()
    {
        const QImage picture = samples::flat(30, 20, QColor(10, 20, 30));
        for (const QImage::Format format :
            {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB888})
            for (const QSize size : {QSize(7, 5), QSize(30, 20)})
                QCOMPARE(scaledTo(picture.convertToFormat(format), size),
                    samples::flat(size.width(), size.height(), QColor(10, 20, 30)));
        QImage clear(30, 20, QImage::Format_ARGB32);
        clear.fill(Qt::transparent);
        QCOMPARE(scaledTo(clear, {7, 5}), samples::flat(7, 5, Qt::white));
    }

    void colourSpaceStays()
    {
        QImage picture = samples::noise(30, 20);
        picture.setColorSpace(QColorSpace::AdobeRgb);
        QCOMPARE(scaledTo(picture, {7, 5}).colorSpace(), picture.colorSpace());
    }
};

QTEST_GUILESS_MAIN(ScaledTest)
#include "ScaledTest.moc"
