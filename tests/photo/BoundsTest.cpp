// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/FileBounds.h"
#include "photo/JpegMarkers.h"
#include "photo/PhotoDecoder.h"
#include "photo/TiffReader.h"
#include "tests/photo/Samples.h"

#include <QBuffer>
#include <QTest>

namespace {

/// What becomes of a file of those bytes.
LoadedPhoto decoded(QByteArray file, qint64 memory = qint64(8) << 30)
{
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    return decodePhoto(buffer, memory);
}

QString refusalOf(QByteArray file)
{
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    return boundsRefusal(buffer);
}

QByteArray jpegWithEmptyMarkers(int count)
{
    QByteArray file = samples::encoded(samples::noise(8, 8), "jpeg");
    return file.insert(2, QByteArray("\xFF\xE2\0\x02", 4).repeated(count));
}

/// A JPEG whose frame claims other sides, of so many scans.
QByteArray jpegOfScans(int scans, quint16 width, quint16 height)
{
    QByteArray file = samples::jpeg(samples::JpegKind::ManyScans, 8, 8, QByteArray(192, 'x'));
    file.replace(file.indexOf("\xFF\xC2") + 5, 4, samples::bigEndian(height) + samples::bigEndian(width));
    qsizetype end = 0;
    for (int i = 0; i <= scans; i++)
        end = file.indexOf("\xFF\xDA", end + 1);
    return file.left(end) + "\xFF\xD9";
}

QByteArray animation(int width, int height, char flags = 2)
{
    const auto side = [](int pixels) {
        return QByteArray(1, char(pixels - 1)) + char((pixels - 1) >> 8) + char((pixels - 1) >> 16);
    };
    return QByteArray("RIFF\x70\0\0\0WEBPVP8X\x0A\0\0\0", 20) + flags + QByteArray(3, '\0') + side(width) + side(height)
        + QByteArray(88, '\0');
}

/// The entries of a TIFF directory, in any byte order and of either size.
class Tiff {
public:
    Tiff(bool isBigEndian, bool isWide)
        : m_bigEndian(isBigEndian)
        , m_wide(isWide)
    {
    }

    Tiff& with(int tag, int type, quint64 value)
    {
        m_entries += number(quint64(tag), 2) + number(quint64(type), 2) + number(1, m_wide ? 8 : 4);
        const int size = type == 3 ? 2 : type == 4 ? 4 : 8;
        m_entries += number(value, size) + QByteArray((m_wide ? 8 : 4) - size, '\0');
        m_count++;
        return *this;
    }
    /// The samples' bits, which stand elsewhere, as they have no room in the entry.
    Tiff& withBits(int count, quint64 bits)
    {
        m_bits = number(bits, 2).repeated(count);
        m_entries += number(258, 2) + number(3, 2) + number(quint64(count), m_wide ? 8 : 4);
        m_entries += number(m_wide ? 16 : 8, m_wide ? 8 : 4);
        m_count++;
        return *this;
    }
    QByteArray file() const
    {
        const QByteArray start = QByteArray(m_bigEndian ? "MM" : "II") + number(m_wide ? 43 : 42, 2);
        const quint64 directory = (m_wide ? 16 : 8) + quint64(m_bits.size());
        return start + (m_wide ? number(8, 2) + number(0, 2) + number(directory, 8) : number(directory, 4)) + m_bits
            + number(quint64(m_count), m_wide ? 8 : 2) + m_entries + QByteArray(8, '\0');
    }

private:
    QByteArray number(quint64 value, int size) const
    {
        QByteArray bytes;
        for (int i = 0; i < size; i++)
            bytes += char(value >> (8 * (m_bigEndian ? size - 1 - i : i)));
        return bytes;
    }

    bool m_bigEndian, m_wide;
    QByteArray m_entries, m_bits;
    int m_count = 0;
};

constexpr int widthTag = 256, heightTag = 257, samplesTag = 277, tileWidthTag = 322, tileHeightTag = 323;
constexpr int shortType = 3, longType = 4;

} // namespace

class BoundsTest : public QObject {
    Q_OBJECT

private slots:
    void manyMarkersAreNotReadToTheirEnd()
    {
        QVERIFY(!decoded(jpegWithEmptyMarkers(4000)).image.isNull());
        QVERIFY(decoded(jpegWithEmptyMarkers(maxJpegMarkers + 1)).reason.contains("too many parts"));
    }

    void scansOfALargePictureAreFewer()
    {
        QVERIFY(!decoded(jpegOfScans(90, 8, 8)).image.isNull());
        QVERIFY(decoded(jpegOfScans(90, 16384, 16384)).reason.contains("too many parts"));
        const QByteArray few = jpegOfScans(9, 16384, 16384);
        QVERIFY(decoded(few).reason.contains("too many parts"));
        QVERIFY(!decoded(few + QByteArray(13'000'000, '\0')).reason.contains("too many parts"));
        QVERIFY(!decoded(jpegOfScans(4, 16384, 16384)).reason.contains("too many parts"));
    }

    void animationsHaveSmallerCanvases()
    {
        QCOMPARE(refusalOf(animation(8192, 4096)), QString());
        QCOMPARE(refusalOf(animation(8193, 4096)), QString("The animation is too large: 8193 x 4096 pixels."));
        QVERIFY(refusalOf(animation(1 << 24, 1 << 24)).contains("16777216 x 16777216"));
        QCOMPARE(refusalOf(animation(16384, 16384, 0)), QString()); // is none
        QVERIFY(!decoded(animation(16384, 16384)).reason.isEmpty());
        QCOMPARE(decoded(animation(8193, 4096)).reason, refusalOf(animation(8193, 4096))); // before any decoder
    }

    void tiffCountsAreThoseOfPictures_data()
    {
        QTest::addColumn<bool>("bigEndian");
        QTest::addColumn<bool>("wide");
        QTest::newRow("II") << false << false;
        QTest::newRow("MM") << true << false;
        QTest::newRow("II, wide") << false << true;
        QTest::newRow("MM, wide") << true << true;
    }
    void tiffCountsAreThoseOfPictures()
    {
        QFETCH(bool, bigEndian);
        QFETCH(bool, wide);
        const Tiff sides = Tiff(bigEndian, wide).with(widthTag, longType, 3000).with(heightTag, shortType, 2000);
        QCOMPARE(refusalOf(sides.file()), QString());
        QCOMPARE(refusalOf(Tiff(sides).withBits(4, 16).with(samplesTag, shortType, 4).file()), QString());
        QCOMPARE(refusalOf(Tiff(sides).withBits(5, 8).with(samplesTag, shortType, 64).file()), QString());
        QVERIFY(refusalOf(Tiff(sides).withBits(5, 19).with(samplesTag, shortType, 27).file())
                    .contains("27 channels of 19 bits")); // one bit too many
        QVERIFY(refusalOf(Tiff(sides).withBits(5, 8).with(samplesTag, shortType, 65535).file())
                    .contains("65535 channels of 8 bits"));
        QVERIFY(refusalOf(Tiff(sides).withBits(5, 65535).with(samplesTag, shortType, 5).file())
                    .contains("5 channels of 65535 bits"));
        const QByteArray channels = Tiff(sides).withBits(5, 8).with(samplesTag, shortType, 65535).file();
        QCOMPARE(decoded(channels).reason, refusalOf(channels));
        const auto tiles = [&](quint64 width, quint64 height) {
            return refusalOf(
                Tiff(sides).with(tileWidthTag, longType, width).with(tileHeightTag, longType, height).file());
        };
        QCOMPARE(tiles(256, 256), QString());
        QCOMPARE(tiles(4096, 4096), QString());
        QVERIFY(tiles(4096, 4112).contains("parts of 4096 x 4112"));
        QVERIFY(!tiles(0xFFFFFFFF, 0xFFFFFFFF).isEmpty());
    }

    void brokenTiffDirectoriesAreLeftToTheDecoder()
    {
        const QByteArray whole =
            Tiff(false, false).with(widthTag, longType, 30).withBits(5, 8).with(samplesTag, shortType, 5).file();
        for (qsizetype length = 0; length < whole.size(); length++)
            QCOMPARE(refusalOf(whole.left(length)), QString());
    }

    void bytesBeyondTheEndAreNotThere()
    {
        QByteArray file = Tiff(false, false).with(widthTag, longType, 30).file();
        QBuffer buffer(&file);
        buffer.open(QIODevice::ReadOnly);
        TiffReader reader(buffer);
        QCOMPARE(reader.bytes(2, quint64(file.size()) - 2), file.mid(2));
        for (const quint64 size : {quint64(file.size()) - 1, quint64(1) << 40, ~quint64(0)})
            QCOMPARE(reader.bytes(2, size), QByteArray());
    }

    void ordinaryFilesPass()
    {
        const QImage picture = samples::noise(30, 20);
        for (const char* format : {"tiff", "webp", "png", "jpeg", "bmp"}) {
            QCOMPARE(refusalOf(samples::encoded(picture, format)), QString());
            QVERIFY(!decoded(samples::encoded(picture, format)).image.isNull());
        }
    }

    void aPixelTakesFourBytesOrMore()
    {
        using Format = QImage::Format;
        for (const auto& [format, bytes] : {std::pair(Format::Format_Mono, 4), std::pair(Format::Format_Grayscale8, 4),
                 std::pair(Format::Format_RGB888, 4), std::pair(Format::Format_RGBA64, 8)}) {
            const qint64 memory = qint64(300) * 200 * bytes * blocksPerPhoto;
            const QByteArray file = samples::encoded(samples::noise(300, 200).convertedTo(format), "png");
            QVERIFY(!decoded(file, memory).image.isNull());
            QVERIFY(decoded(file, memory - blocksPerPhoto).reason.contains("enough free memory"));
        }
    }

    void aLargePictureNeedsSomeBytes()
    {
        using samples::bigEndian, samples::pngChunk;
        const auto png = [](quint32 width, quint32 height) {
            const QByteArray header = bigEndian(width) + bigEndian(height) + '\x01' + QByteArray(4, '\0');
            return "\x89PNG\r\n\x1a\n" + pngChunk("IHDR", header) + pngChunk("IDAT", qCompress("", 0).mid(4))
                + pngChunk("IEND", {});
        };
        QVERIFY(decoded(png(8192, 4097)).reason.contains("too small for 8192 x 4097"));
        QVERIFY(!decoded(png(8192, 4096)).reason.contains("too small"));
        QVERIFY(
            !decoded(png(8192, 4097) + QByteArray(8192 * 4097 / maxPixelsPerByte, '\0')).reason.contains("too small"));
    }
};

QTEST_GUILESS_MAIN(BoundsTest)
#include "BoundsTest.moc"
