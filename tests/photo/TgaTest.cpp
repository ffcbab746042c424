// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/Samples.h"

#include <QtTest>

// Files that are written here byte by byte, each holding the same small picture.

namespace {

constexpr int width = 5, height = 3;

/// The picture: colours that survive five bits a channel, some of them neighbours twice.
const QRgb picture[height][width] = {{0xff0000, 0xff0000, 0xff0000, 0x00ff00, 0x0000ff},
    {0xffffff, 0x000000, 0x000000, 0xff00ff, 0x00ffff}, {0xffff00, 0xffff00, 0xffffff, 0xffffff, 0x000000}};

struct Kind {
    int type, bits;
    bool fromRight = false, fromTop = false;
    int mapFirst = 0, mapBits = 24;
    int alphaBits = 0;
    int alpha = 255;
};

QByteArray word(int v)
{
    return QByteArray(1, char(v & 255)) + QByteArray(1, char(v >> 8 & 255));
}

QByteArray colour(QRgb c, int bits, int alpha)
{
    if (bits <= 16)
        return word(qRed(c) >> 3 << 10 | qGreen(c) >> 3 << 5 | qBlue(c) >> 3);
    const QByteArray three = QByteArray(1, char(qBlue(c))) + char(qGreen(c)) + char(qRed(c));
    return bits == 32 ? three + char(alpha) : three;
}

const QList<QRgb>& palette()
{
    static const QList<QRgb> colours = {0x000000, 0xff0000, 0x00ff00, 0x0000ff, 0xffffff, 0xff00ff, 0x00ffff, 0xffff00};
    return colours;
}

QByteArray pixel(QRgb c, const Kind& kind)
{
    if (kind.type % 8 == 1) {
        const int index = int(palette().indexOf(c)) + kind.mapFirst;
        return kind.bits == 8 ? QByteArray(1, char(index)) : word(index);
    }
    if (kind.type % 8 == 3)
        return QByteArray(1, char(qGray(c))) + QByteArray(kind.bits / 8 - 1, char(kind.alpha));
    return colour(c, kind.bits, kind.alpha);
}

/// Runs that also reach over the ends of rows, as the older writers had them.
QByteArray runs(const QByteArrayList& pixels)
{
    QByteArray data;
    for (qsizetype i = 0; i < pixels.size();) {
        qsizetype same = 1;
        while (i + same < pixels.size() && pixels[i + same] == pixels[i])
            same++;
        data += char(same > 1 ? 127 + same : 0);
        data += pixels[i];
        i += same;
    }
    return data;
}

QByteArray tga(const Kind& kind)
{
    const bool mapped = kind.type % 8 == 1;
    QByteArray file;
    file += char(4); // bytes of text after the header
    file += char(mapped);
    file += char(kind.type);
    file +=
        word(mapped ? kind.mapFirst : 0) + word(mapped ? int(palette().size()) : 0) + char(mapped ? kind.mapBits : 0);
    file += word(0) + word(0) + word(width) + word(height) + char(kind.bits);
    file += char(kind.alphaBits | (kind.fromRight ? 16 : 0) | (kind.fromTop ? 32 : 0));
    file += "text";
    for (QRgb c : mapped ? palette() : QList<QRgb>())
        file += colour(c, kind.mapBits, kind.alpha);
    QByteArrayList pixels;
    for (int y = 0; y < height; y++)
        for (int x = 0; x < width; x++)
            pixels << pixel(picture[kind.fromTop ? y : height - 1 - y][kind.fromRight ? width - 1 - x : x], kind);
    return file + (kind.type > 8 ? runs(pixels) : pixels.join());
}

/// The end of a TGA 2.0 file whose alpha is of that kind.
QByteArray footer(qsizetype sizeBefore, int alphaKind)
{
    QByteArray extension(495, '\0');
    extension[494] = char(alphaKind);
    return extension + word(int(sizeBefore)) + word(0) + QByteArray(4, '\0') + "TRUEVISION-XFILE." + char(0);
}

} // namespace

class TgaTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir folder;

    LoadedPhoto open(const QByteArray& bytes) { return samples::loaded(folder, bytes, "picture.jpg"); }

private slots:
    void everyKindOpens_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("bits");
        QTest::addColumn<int>("mapBits");
        for (int runLength : {0, 8}) {
            for (int mapBits : {15, 16, 24, 32})
                for (int bits : {8, 16})
                    QTest::addRow("mapped %d, %d bits of %d", runLength, bits, mapBits)
                        << 1 + runLength << bits << mapBits;
            for (int bits : {15, 16, 24, 32})
                QTest::addRow("colour %d, %d bits", runLength, bits) << 2 + runLength << bits << 0;
            for (int bits : {8, 16})
                QTest::addRow("grey %d, %d bits", runLength, bits) << 3 + runLength << bits << 0;
        }
    }

    void everyKindOpens()
    {
        QFETCH(int, type);
        QFETCH(int, bits);
        QFETCH(int, mapBits);
        for (int corner = 0; corner < 4; corner++)
            for (int first : {0, bits == 16 ? 300 : 3}) {
                const LoadedPhoto photo = open(tga({.type = type,
                    .bits = bits,
                    .fromRight = (corner & 1) != 0,
                    .fromTop = (corner & 2) != 0,
                    .mapFirst = first,
                    .mapBits = mapBits}));
                QVERIFY2(!photo.image.isNull(), qPrintable(photo.reason));
                QCOMPARE(photo.image.size(), QSize(width, height));
                for (int y = 0; y < height; y++)
                    for (int x = 0; x < width; x++) {
                        const int g = qGray(picture[y][x]);
                        const QRgb expected = type % 8 == 3 ? qRgb(g, g, g) : picture[y][x] | 0xff000000;
                        QCOMPARE(photo.image.pixel(x, y), expected);
                    }
            }
    }

    void alphaCountsWhereTheFileSaysSo()
    {
        const auto topLeft = [this](Kind kind, int stated) {
            const QByteArray file = tga(kind);
            return open(stated < 0 ? file : file + footer(file.size(), stated)).image.pixel(0, 0);
        };
        Kind kind = {.type = 2, .bits = 32, .fromTop = true, .alphaBits = 8, .alpha = 0};
        QCOMPARE(topLeft(kind, 2), 0xffffffff); // on white: kept, though it means nothing to the writer
        QCOMPARE(topLeft(kind, 3), 0xffffffff);
        QCOMPARE(topLeft(kind, 0), 0xffff0000);
        QCOMPARE(topLeft(kind, 1), 0xffff0000);
        QCOMPARE(topLeft(kind, -1), 0xffff0000); // a whole picture of nothing is not meant
        kind.alpha = 51;
        QCOMPARE(topLeft(kind, -1), 0xffffcccc);
        kind.alphaBits = 0;
        QCOMPARE(topLeft(kind, -1), 0xffff0000);
    }

    void greyHasAlphaInItsSecondByte()
    {
        const int grey = qGray(picture[0][0]), onWhite = (grey * 51 + 255 * 204 + 127) / 255;
        Kind kind = {.type = 3, .bits = 16, .fromTop = true, .alphaBits = 8, .alpha = 51};
        QCOMPARE(open(tga(kind)).image.pixel(0, 0), qRgb(onWhite, onWhite, onWhite));
        kind.alphaBits = 0;
        QCOMPARE(open(tga(kind)).image.pixel(0, 0), qRgb(grey, grey, grey));
    }

    void aMapOfFourBytesHasAlphaWhereTheHeaderSaysSo()
    {
        Kind kind = {.type = 1, .bits = 8, .fromTop = true, .mapBits = 32, .alpha = 0};
        QCOMPARE(open(tga(kind)).image.pixel(0, 0), 0xffff0000);
        kind.alpha = 51;
        QCOMPARE(open(tga(kind)).image.pixel(0, 0), 0xffff0000);
        kind.alphaBits = 8;
        QCOMPARE(open(tga(kind)).image.pixel(0, 0), 0xffffcccc);
    }

    void aMapMayStandUnusedOrBeTooSmall()
    {
        QByteArray file = tga({.type = 1, .bits = 8, .fromTop = true, .mapFirst = 3});
        file[3] = 100; // every index lies before the first colour
        QCOMPARE(open(file).image.pixel(0, 0), 0xff000000);
    }

    void theMeasuresOfAMapThatIsNotThereMeanNothing()
    {
        QByteArray file = tga({.type = 2, .bits = 24});
        const QImage picture = open(file).image;
        QVERIFY(!picture.isNull());
        file.replace(3, 5, QByteArray(5, '\xff')); // first colour, length and depth
        QCOMPARE(open(file).image, picture);
    }

    void aCutFileIsRefused()
    {
        for (int type : {1, 2, 3, 9, 10, 11}) {
            const QByteArray file = tga({.type = type, .bits = type % 8 == 2 ? 24 : 8});
            for (qsizetype size = 1; size < file.size(); size++)
                QVERIFY(open(file.first(size)).image.isNull());
            QVERIFY(!open(file).image.isNull());
        }
    }

    void aBombIsRefusedAtOnce()
    {
        QByteArray file = tga({.type = 10, .bits = 32});
        file.replace(12, 4, word(60000) + word(60000));
        QVERIFY(open(file).reason.startsWith("The picture is too large: 60000 x 60000 pixels."));
        file.replace(12, 4, word(16000) + word(16000)); // small enough, but this file cannot hold it
        QVERIFY(open(file).image.isNull());
    }

    void whatOnlyLooksLikeOneIsLeftToOthers()
    {
        QByteArray file = tga({.type = 2, .bits = 24});
        for (const auto& [at, value] : {std::pair(1, 2), std::pair(2, 4), std::pair(2, 0), std::pair(16, 12),
                 std::pair(17, 64), std::pair(12, 0)}) {
            QByteArray changed = file;
            changed[at] = char(value);
            QCOMPARE(open(changed).reason, QString("The file is not a picture of a kind that can be read."));
        }
    }
};

QTEST_GUILESS_MAIN(TgaTest)
#include "TgaTest.moc"
