// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/Samples.h"

#include <QTest>

namespace {

constexpr int width = 64, height = 48;

/// A picture with a palette of its own. A code that forgets all others stands before every hundred pixels, so that each
/// code has eight bits.
QByteArray frame()
{
    QByteArray palette, codes;
    for (int index = 0; index < 128; index++)
        palette += QByteArray(1, char(2 * index)) + char(255 - index) + char(index);
    for (int pixel = 0; pixel < width * height; pixel++)
        codes += (pixel % 100 == 0 ? QByteArray("\x80") : QByteArray()) + char(pixel % 128);
    codes += char(0x81);
    QByteArray data("\x07");
    for (qsizetype at = 0; at < codes.size(); at += 255) {
        const QByteArray block = codes.mid(at, 255);
        data += char(block.size()) + block;
    }
    return QByteArray("\x2C\0\0\0\0", 5) + QByteArray(1, char(width)) + '\0' + char(height) + '\0' + char(0x86)
        + palette + data + '\0';
}

/// With a palette for all pictures, or without.
QByteArray heading(bool hasPalette = false)
{
    const QByteArray comment("\x21\xFE\x04said\0", 8), palette(hasPalette ? 3 * 128 : 0, ',');
    return QByteArray("GIF89a") + char(width) + '\0' + char(height) + '\0' + char(hasPalette ? 0x86 : 0)
        + QByteArray(2, '\0') + palette + comment;
}

} // namespace

class GifTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

private slots:
    void whatIsCutOffIsMissing()
    {
        const QByteArray picture = heading(true) + frame();
        int opened = 0;
        for (qsizetype length = 1; length<picture.size(); length += length> picture.size() - 4 ? 1 : 41) {
            const LoadedPhoto photo = samples::loaded(m_folder, picture.left(length));
            QVERIFY2(photo.image.isNull() == !photo.restIsMissing, qPrintable(QString::number(length)));
            opened += !photo.image.isNull();
        }
        QVERIFY(opened > 20);
    }

    void whatFollowsTheFirstPictureIsNotMissed_data()
    {
        QTest::addColumn<bool>("hasPalette");
        QTest::newRow("a palette for all") << true;
        QTest::newRow("one of its own") << false;
    }
    void whatFollowsTheFirstPictureIsNotMissed()
    {
        QFETCH(bool, hasPalette);
        const QByteArray picture = heading(hasPalette) + frame(), whole = picture + frame() + ';';
        for (const qsizetype length : {picture.size(), picture.size() + 1, picture.size() + 1000, whole.size()}) {
            const LoadedPhoto photo = samples::loaded(m_folder, whole.left(length));
            QCOMPARE(photo.reason, QString());
            QCOMPARE(photo.image.pixel(2, 1), qRgb(132, 189, 66));
            QVERIFY(!photo.restIsMissing);
        }
    }
};

QTEST_GUILESS_MAIN(GifTest)
#include "GifTest.moc"
