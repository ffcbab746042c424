// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/Samples.h"

#include <QTest>

namespace {

QByteArray little(qint32 number)
{
    QByteArray bytes(4, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

/// A picture of 5 x 4 pixels of that many bits, with a header of 40 bytes.
QByteArray bmp(int bits, int compression, const QByteArray& palette, const QByteArray& pixels, bool topFirst = false)
{
    const qint32 begin = 14 + 40 + qint32(palette.size());
    return "BM" + little(begin + qint32(pixels.size())) + little(0) + little(begin) + little(40) + little(5)
        + little(topFirst ? -4 : 4) + QByteArray("\1\0", 2) + char(bits) + '\0' + little(compression)
        + little(qint32(pixels.size())) + little(2835) + little(2835) + little(int(palette.size()) / 4) + little(0)
        + palette + pixels;
}

/// The same with the header of old systems, which has 12 bytes.
QByteArray oldBmp(const QByteArray& pixels)
{
    return "BM" + little(26 + qint32(pixels.size())) + little(0) + little(26) + little(12)
        + QByteArray("\5\0\4\0\1\0\x18\0", 8) + pixels;
}

} // namespace

class BmpTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

private slots:
    void whatIsCutOffIsMissing_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<int>("spare"); // bytes at the end that are no part of the picture
        const QByteArray palette("\0\0\0\0\x10\x20\x30\0", 8);
        QTest::newRow("24 bits") << bmp(24, 0, {}, QByteArray(4 * 16, '\x55')) << 1;
        QTest::newRow("top first") << bmp(24, 0, {}, QByteArray(4 * 16, '\x55'), true) << 1;
        QTest::newRow("32 bits") << bmp(32, 0, {}, QByteArray(4 * 20, '\x55')) << 0;
        QTest::newRow("1 bit") << bmp(1, 0, palette, QByteArray(4 * 4, '\x55')) << 3;
        QTest::newRow("in runs") << bmp(8, 1, palette, QByteArray("\5\1\0\0", 4).repeated(4) + QByteArray("\0\1", 2))
                                 << 0;
        QTest::newRow("of old systems") << oldBmp(QByteArray(4 * 16, '\x55')) << 1;
    }
    void whatIsCutOffIsMissing()
    {
        QFETCH(QByteArray, file);
        QFETCH(int, spare);
        for (int cut = 0; cut < 20; cut++) {
            const LoadedPhoto photo = samples::loaded(m_folder, file.chopped(cut));
            QVERIFY2(photo.image.isNull() || photo.restIsMissing == (cut > spare), qPrintable(QString::number(cut)));
            QVERIFY(!photo.image.isNull() || cut > spare);
        }
        QVERIFY(!samples::loaded(m_folder, file + QByteArray(100, 'x')).restIsMissing);
    }
};

QTEST_GUILESS_MAIN(BmpTest)
#include "BmpTest.moc"
