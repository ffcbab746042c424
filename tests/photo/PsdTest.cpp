// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/Samples.h"

#include <QColorSpace>
#include <QtTest>
#include <bit>
#include <sys/resource.h>

// Files that are written here byte by byte.

namespace {

using samples::bigEndian;

constexpr int width = 9, height = 2;

enum Mode { bitmap = 0, grey = 1, indexed = 2, rgb = 3, cmyk = 4, multichannel = 7, duotone = 8, lab = 9 };

struct Kind {
    int mode, bits, channels;
    bool big = false, runLength = false;
    int layers = 0; ///< below 0: the first channel beyond the colours is the picture's transparency
    QByteArray palette = {}, profile = {};
};

QByteArray sized(const QByteArray& block, bool wide = false)
{
    return (wide ? bigEndian(quint64(block.size())) : bigEndian(quint32(block.size()))) + block;
}

/// One run of literals, a byte that means nothing, and one run of the equal bytes at the end.
QByteArray packed(const QByteArray& row)
{
    qsizetype equal = 1;
    while (equal < row.size() && row.at(row.size() - 1 - equal) == row.back())
        equal++;
    const QByteArray literals = row.chopped(equal);
    return (literals.isEmpty() ? QByteArray() : char(literals.size() - 1) + literals) + char(-128) + char(1 - equal)
        + row.back();
}

/// `sample(channel, x, y)` on 0 .. 1.
template <class Sample> QByteArray psd(const Kind& kind, Sample sample)
{
    QByteArray file = "8BPS" + bigEndian(quint16(kind.big ? 2 : 1)) + QByteArray(6, '\0')
        + bigEndian(quint16(kind.channels)) + bigEndian(quint32(height)) + bigEndian(quint32(width))
        + bigEndian(quint16(kind.bits)) + bigEndian(quint16(kind.mode));
    file += sized(kind.palette);
    QByteArray resources = "8BIM" + bigEndian(quint16(1005)) + QByteArray("\3abc", 4) + sized("odd") + '\0';
    if (!kind.profile.isEmpty())
        resources += "8BIM" + bigEndian(quint16(0x040f)) + QByteArray(2, '\0') + sized(kind.profile);
    file += sized(resources);
    const QByteArray layers = bigEndian(qint16(kind.layers)) + QByteArray(6, '\0');
    file += sized(sized(layers, kind.big), kind.big);
    file += bigEndian(quint16(kind.runLength));
    QByteArray counts, data;
    for (int c = 0; c < kind.channels; c++)
        for (int y = 0; y < height; y++) {
            QByteArray row(kind.bits == 1 ? (width + 7) / 8 : 0, '\0');
            for (int x = 0; x < width; x++) {
                const float v = sample(c, x, y);
                if (kind.bits == 1)
                    row[x / 8] = char(row[x / 8] | (v > 0.5f ? 0 : 128 >> x % 8));
                else if (kind.bits == 8)
                    row += char(int(v * 255 + 0.5f));
                else if (kind.bits == 16)
                    row += bigEndian(quint16(v * 65535 + 0.5f));
                else
                    row += bigEndian(std::bit_cast<quint32>(v));
            }
            if (kind.runLength)
                row = packed(row);
            counts += kind.big ? bigEndian(quint32(row.size())) : bigEndian(quint16(row.size()));
            data += row;
        }
    return file + (kind.runLength ? counts : QByteArray()) + data;
}

/// Three ramps: red to the right, green to the left, blue downwards.
float ramps(int channel, int x, int y)
{
    return channel == 0 ? x / 8.0f : channel == 1 ? (8 - x) / 8.0f : channel == 2 ? float(y) : 0.2f;
}

QRgb rampColour(int x, int y)
{
    const auto byte = [](float v) { return int(v * 255 + 0.5f); };
    return qRgb(byte(ramps(0, x, y)), byte(ramps(1, x, y)), byte(ramps(2, x, y)));
}

QRgb greyOf(float v)
{
    const int g = int(v * 255 + 0.5f);
    return qRgb(g, g, g);
}

} // namespace

class PsdTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir folder;

    LoadedPhoto open(const QByteArray& contents) { return samples::loaded(folder, contents); }

    /// `tolerance`: of each channel, where a colour conversion rounds.
    template <class Expected> void compare(const LoadedPhoto& photo, Expected expected, int tolerance = 0)
    {
        QVERIFY2(!photo.image.isNull(), qPrintable(photo.reason));
        QCOMPARE(photo.image.size(), QSize(width, height));
        for (int y = 0; y < height; y++)
            for (int x = 0; x < width; x++) {
                const QColor got(photo.image.pixel(x, y)), wanted(QRgb(expected(x, y)));
                const int off = qMax(qAbs(got.red() - wanted.red()),
                    qMax(qAbs(got.green() - wanted.green()), qAbs(got.blue() - wanted.blue())));
                QVERIFY2(off <= tolerance, qPrintable(got.name() + " for " + wanted.name()));
            }
    }

private slots:
    void everyLayoutOpens()
    {
        for (bool big : {false, true})
            for (bool runLength : {false, true})
                for (int bits : {8, 16}) {
                    compare(open(psd({rgb, bits, 3, big, runLength}, ramps)), rampColour);
                    compare(open(psd({grey, bits, 1, big, runLength}, ramps)),
                        [](int x, int y) { return greyOf(ramps(0, x, y)); });
                    compare(open(psd({duotone, bits, 1, big, runLength}, ramps)),
                        [](int x, int y) { return greyOf(ramps(0, x, y)); });
                }
    }

    void bitmapsAreBlackWhereABitIsSet()
    {
        for (bool runLength : {false, true})
            compare(open(psd({bitmap, 1, 1, false, runLength}, ramps)),
                [](int x, int) { return x > 4 ? 0xffffffff : 0xff000000; });
    }

    void indexedPicturesTakeTheirColoursFromTheTable()
    {
        QByteArray palette(768, '\0');
        for (int i = 0; i < 256; i++) {
            palette[i] = char(i);
            palette[256 + i] = char(255 - i);
            palette[512 + i] = char(i / 2);
        }
        compare(open(psd({.mode = indexed, .bits = 8, .channels = 1, .palette = palette}, ramps)), [](int x, int y) {
            const int i = qRed(greyOf(ramps(0, x, y)));
            return qRgb(i, 255 - i, i / 2);
        });
        QVERIFY(open(psd({.mode = indexed, .bits = 8, .channels = 1, .palette = palette.first(700)}, ramps))
                    .image.isNull());
    }

    void floatsAreLinearLight()
    {
        compare(
            open(psd({rgb, 32, 3}, [](int c, int x, int y) { return c == 0 ? 0.2140411f : ramps(c, x, y) > 0.5f; })),
            [](int x, int y) { return qRgb(128, x < 4 ? 255 : 0, y ? 255 : 0); }, 1);
        compare(
            open(psd({grey, 32, 1}, [](int, int x, int) { return x == 0 ? -1.0f
                                                              : x == 1  ? 7.0f
                                                                        : std::nanf(""); })),
            [](int x, int) { return x == 1 ? 0xffffffff : 0xff000000; });
    }

    void inksAreUpright()
    {
        // Stored as light: 1 is no ink.
        const auto sample = [](int c, int x, int) {
            return c == 3 ? (x == 8 ? 0.0f : 1.0f) : x % 3 == c ? 0.0f : 1.0f;
        };
        compare(open(psd({cmyk, 8, 4}, sample)), [](int x, int) {
            return x == 8 ? 0xff000000 : x % 3 == 0 ? 0xff00ffff : x % 3 == 1 ? 0xffff00ff : 0xffffff00;
        });
        compare(open(psd({cmyk, 16, 5}, [&](int c, int x, int y) { return c == 4 ? 0.0f : sample(c, x, y); })),
            [](int x, int) {
                return x == 8 ? 0xff000000 : x % 3 == 0 ? 0xff00ffff : x % 3 == 1 ? 0xffff00ff : 0xffffff00;
            });
    }

    void inksAreRounded()
    {
        const auto sample = [](int c, int, int) { return c == 0 ? 100 / 255.0f : c == 3 ? 101 / 255.0f : 1.0f; };
        compare(open(psd({cmyk, 8, 4}, sample)), [](int, int) { return qRgb(40, 101, 101); });
    }

    void onlyTheBigKindHasLongSides()
    {
        for (const bool big : {false, true}) {
            QByteArray file = psd({grey, 8, 1, big}, ramps);
            file.replace(14, 8, bigEndian(quint32(1)) + bigEndian(quint32(30001)));
            QCOMPARE(open(file + QByteArray(30001, '\x55')).image.isNull(), !big);
        }
    }

    void labIsConverted()
    {
        for (int bits : {8, 16}) {
            const auto sample = [](int c, int x, int) { return c == 0 ? (x < 3 ? 0.0f : 1.0f) : 128 / 255.0f; };
            compare(
                open(psd({lab, bits, 3}, sample)), [](int x, int) { return x < 3 ? 0xff000000 : 0xffffffff; }, 1);
        }
        // The red of sRGB: L 54.29, a 80.81, b 69.89, about white D50.
        const LoadedPhoto red = open(psd({lab, 8, 3}, [](int c, int, int) {
            return c == 0 ? 0.5429f : c == 1 ? (128 + 81) / 255.0f : (128 + 70) / 255.0f;
        }));
        const QColor colour = red.image.pixelColor(4, 1);
        QVERIFY(colour.red() > 250 && colour.green() < 8 && colour.blue() < 8);
    }

    void theMergedColoursStandOnWhiteAlready_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("bits");
        for (int bits : {8, 16, 32})
            for (int mode : {grey, rgb})
                QTest::addRow("%s, %d bits", mode == grey ? "grey" : "colours", bits) << mode << bits;
    }
    void theMergedColoursStandOnWhiteAlready()
    {
        QFETCH(int, mode);
        QFETCH(int, bits);
        Kind kind = {.mode = mode, .bits = bits, .channels = mode == grey ? 1 : 3};
        const QImage without = open(psd(kind, ramps)).image;
        QVERIFY(!without.isNull());
        kind.channels++;
        QCOMPARE(open(psd(kind, ramps)).image, without); // the last channel is a kept selection
        kind.layers = -1; // the picture's transparency
        QCOMPARE(open(psd(kind, ramps)).image, without);
    }

    void aProfileIsConverted()
    {
        const Kind kind = {
            .mode = rgb, .bits = 16, .channels = 3, .profile = QColorSpace(QColorSpace::SRgbLinear).iccProfile()};
        const QColor colour = open(psd(kind, [](int, int, int) { return 0.2140411f; })).image.pixelColor(0, 0);
        QVERIFY(qAbs(colour.red() - 128) <= 1 && colour.red() == colour.blue());
    }

    void whatCannotBeReadIsRefused()
    {
        const QString reason = "The picture is damaged or of a kind that cannot be read.";
        QCOMPARE(open(psd({multichannel, 8, 3}, ramps)).reason, reason);
        QCOMPARE(open(psd({grey, 8, 56}, ramps)).reason, QString());
        QCOMPARE(open(psd({grey, 8, 57}, ramps)).reason, reason); // more channels than there may be
        QCOMPARE(open(psd({rgb, 8, 2}, ramps)).reason, reason);
        QCOMPARE(open(psd({rgb, 1, 3}, ramps)).reason, reason);
        QByteArray zip = psd({rgb, 8, 3}, ramps);
        zip[zip.size() - 3 * width * height - 1] = 2;
        QCOMPARE(open(zip).reason, reason);
        for (bool runLength : {false, true}) {
            const QByteArray file = psd({rgb, 8, 3, false, runLength}, ramps);
            for (qsizetype size = 4; size < file.size(); size++)
                QCOMPARE(open(file.first(size)).reason, reason);
        }
    }

    void aBombIsRefusedAtOnce()
    {
        QByteArray file = psd({.mode = rgb, .bits = 8, .channels = 3, .big = true, .runLength = true}, ramps);
        file.replace(14, 8, bigEndian(quint32(60000)) + bigEndian(quint32(60000)));
        QVERIFY(open(file).reason.startsWith("The picture is too large: 60000 x 60000 pixels."));
        file.replace(14, 8, bigEndian(quint32(16000)) + bigEndian(quint32(16000)));
        QVERIFY(open(file).image.isNull());
    }

    void whatAFileHoldsBesidesThePictureTakesNoMemory_data()
    {
        QTest::addColumn<int>("place");
        QTest::newRow("palette") << 26;
        QTest::newRow("resources") << 30;
    }
    void whatAFileHoldsBesidesThePictureTakesNoMemory()
    {
        QFETCH(int, place);
        // A picture of zeros behind 2 GB of them, which no disk has to hold.
        constexpr qint64 claimed = qint64(2) << 30;
        QByteArray head = psd({rgb, 8, 3}, ramps).first(26) + QByteArray(8, '\0');
        head.replace(place, 4, bigEndian(quint32(claimed)));
        QFile file(folder.filePath("long.psd"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(head) == head.size());
        QVERIFY(file.resize(head.size() + claimed + 4 + 2 + 3 * width * height));
        file.close();
        rusage before, after;
        getrusage(RUSAGE_SELF, &before);
        const LoadedPhoto photo = loadPhoto(QFile::encodeName(file.fileName()));
        getrusage(RUSAGE_SELF, &after);
        QCOMPARE(photo.image.size(), QSize(width, height));
        QVERIFY(after.ru_maxrss - before.ru_maxrss < 50 * 1024);
    }
};

QTEST_GUILESS_MAIN(PsdTest)
#include "PsdTest.moc"
