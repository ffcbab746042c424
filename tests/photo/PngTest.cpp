// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/Samples.h"

#include <QTest>

// Files that are written here byte by byte: pictures whose transparency is one of their colours.

namespace {

using samples::bigEndian, samples::pngChunk;

constexpr char grey = 0, rgb = 2; ///< kinds of PNG
constexpr int width = 300, height = 200;

/// A PNG of `depth` bits a channel whose rows are those levels over and over, one channel each.
QByteArray keyedPng(char kind, char depth, const QList<int>& levels, const QByteArray& key)
{
    const int values = width * (kind == rgb ? 3 : 1);
    QByteArray row(1 + (values * depth + 7) / 8, 0);
    for (int i = 0; i < values; i++) {
        const int level = levels[i % levels.size()], bit = i * depth;
        if (depth == 16)
            row.replace(1 + 2 * i, 2, bigEndian(quint16(level)));
        else
            row[1 + bit / 8] = char(row[1 + bit / 8] | level << (8 - depth - bit % 8));
    }
    const QByteArray header = bigEndian(quint32(width)) + bigEndian(quint32(height)) + depth + kind + QByteArray(3, 0);
    return "\x89PNG\r\n\x1a\n" + pngChunk("IHDR", header) + pngChunk("tRNS", key)
        + pngChunk("IDAT", qCompress(row.repeated(height)).mid(4)) + pngChunk("IEND", {});
}

} // namespace

class PngTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    LoadedPhoto loadData(const QByteArray& data) { return samples::loaded(m_folder, data); }

private slots:
    void aPictureThatIsTooLargeSaysSoWithAColourToo()
    {
        QByteArray data = keyedPng(rgb, 16, {0}, QByteArray(6, 'k'));
        const QByteArray sides = bigEndian(quint32(30000)) + bigEndian(quint32(20000));
        data.replace(8, 25, pngChunk("IHDR", sides + char(16) + rgb + QByteArray(3, 0)));
        QVERIFY(loadData(data).reason.startsWith("The picture is too large: 30000 x 20000 pixels."));
    }

    void transparentColourIsLaidOnWhite_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QList<QRgb>>("wanted"); // the first pixels of a row, which repeats them
        const QRgb white = qRgb(255, 255, 255), black = qRgb(0, 0, 0);
        const auto level = [](int v) { return qRgb(v, v, v); };
        QTest::newRow("grey 1") << keyedPng(grey, 1, {0, 1}, bigEndian(quint16(0))) << QList<QRgb>{white, white};
        QTest::newRow("grey 1, white") << keyedPng(grey, 1, {0, 1}, bigEndian(quint16(1))) << QList<QRgb>{black, white};
        QTest::newRow("grey 2") << keyedPng(grey, 2, {0, 1, 2, 3}, bigEndian(quint16(1)))
                                << QList<QRgb>{black, white, level(170), white};
        QTest::newRow("grey 4") << keyedPng(grey, 4, {0, 7, 8}, bigEndian(quint16(7)))
                                << QList<QRgb>{black, white, level(136)};
        QTest::newRow("grey 8") << keyedPng(grey, 8, {0, 7, 8}, bigEndian(quint16(7)))
                                << QList<QRgb>{black, white, level(8)};
        QTest::newRow("grey 16: all bits count") << keyedPng(grey, 16, {0, 0x7733, 0x7734}, bigEndian(quint16(0x7733)))
                                                 << QList<QRgb>{black, white, level(0x77)};
        const QByteArray key8 = bigEndian(quint16(10)) + bigEndian(quint16(20)) + bigEndian(quint16(30));
        QTest::newRow("colour 8") << keyedPng(rgb, 8, {10, 20, 30, 10, 20, 31, 30, 20, 10}, key8)
                                  << QList<QRgb>{white, qRgb(10, 20, 31), qRgb(30, 20, 10)};
        const QByteArray key16 = bigEndian(quint16(0x1020)) + bigEndian(quint16(0x4060)) + bigEndian(quint16(0x80A0));
        const QList<int> levels = {0x1020, 0x4060, 0x80A0, 0x1021, 0x4060, 0x80A0, 0x1020, 0x4061, 0x80A0, 0x1020,
            0x4060, 0x80A1, 0x80A0, 0x4060, 0x1020};
        const QRgb near = qRgb(0x10, 0x40, 0x80);
        const QList<QRgb> wanted = {white, near, near, near, qRgb(0x80, 0x40, 0x10)};
        QTest::newRow("colour 16: all bits count") << keyedPng(rgb, 16, levels, key16) << wanted;
        QByteArray before = keyedPng(rgb, 16, levels, key16);
        before.insert(33, pngChunk("tEXt", QByteArray("Comment\0", 8) + QByteArray(100000, 'x')));
        QTest::newRow("colour 16 after a long text") << before << wanted;
    }
    void transparentColourIsLaidOnWhite()
    {
        QFETCH(QByteArray, data);
        QFETCH(QList<QRgb>, wanted);
        const LoadedPhoto photo = loadData(data);
        QCOMPARE(photo.reason, QString());
        QCOMPARE(photo.image.size(), QSize(width, height));
        QImage expected(width, height, QImage::Format_RGBX8888);
        for (int y = 0; y < height; y++)
            for (int x = 0; x < width; x++)
                expected.setPixel(x, y, wanted[x % wanted.size()]);
        QCOMPARE(samples::largestDifference(photo.image, expected), 0);
    }

    void oddTransparentColours()
    {
        const QByteArray key(6, 'k'), whole = keyedPng(rgb, 16, {0x6B6B}, key), chunk = pngChunk("tRNS", key);
        QCOMPARE(loadData(whole).image.pixel(width - 1, height - 1), qRgb(255, 255, 255));
        QByteArray data = whole; // two of them, which the format does not know
        QCOMPARE(loadData(data.replace(chunk, chunk + chunk)).reason,
            QString("The picture is damaged or of a kind that cannot be read."));
        data = whole; // one that is too short means nothing
        QCOMPARE(loadData(data.replace(chunk, pngChunk("tRNS", "kk"))).image.pixel(width - 1, height - 1),
            qRgb(0x6B, 0x6B, 0x6B));
        for (qsizetype length = 1; length < whole.size() - 16; length++)
            QVERIFY2(loadData(whole.left(length)).image.isNull(), qPrintable(QString::number(length)));
    }
};

QTEST_GUILESS_MAIN(PngTest)
#include "PngTest.moc"
