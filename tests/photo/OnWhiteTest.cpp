// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/OnWhite.h"

#include <QTest>

class OnWhiteTest : public QObject {
    Q_OBJECT

private slots:
    void everyValueOfEveryOpacityIsRoundedToTheNearest()
    {
        QImage picture(256, 256, QImage::Format_RGBA8888);
        for (int alpha = 0; alpha < 256; alpha++)
            for (int v = 0; v < 256; v++)
                picture.setPixel(v, alpha, qRgba(v, 255 - v, v / 2, alpha));
        const QImage laid = onWhite(picture);
        QVERIFY(!laid.hasAlphaChannel());
        const auto expected = [](int v, int alpha) { return qRound((v * alpha + 255.0 * (255 - alpha)) / 255.0); };
        for (int alpha = 0; alpha < 256; alpha++)
            for (int v = 0; v < 256; v++)
                QCOMPARE(
                    laid.pixel(v, alpha), qRgb(expected(v, alpha), expected(255 - v, alpha), expected(v / 2, alpha)));
    }
};

QTEST_APPLESS_MAIN(OnWhiteTest)
#include "OnWhiteTest.moc"
