// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/Converters.h"
#include "tests/photo/PhoneSamples.h"
#include "tests/photo/Samples.h"

#include <QTest>

// HEIC and AVIF photos have the pixels that the library's own converter finds in them.

namespace {

constexpr int width = 121, height = 83; // odd: colours of half the size end between two pixels

} // namespace

class HeifConvertTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    int differenceFromConverter(const QString& photo)
    {
        const QString converted = m_folder.filePath(QStringLiteral("converted.png"));
        samples::run(HEIF_CONVERT, {photo, converted});
        return samples::largestDifference(photo, converted);
    }

private slots:
    void pixelsAreTheConverters_data()
    {
        QTest::addColumn<QImage>("picture");
        QTest::addColumn<int>("bits");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("options");
        for (const char* format : {"heic", "avif"})
            for (const samples::Given& given : samples::toConvert(width, height))
                for (const char* chroma : {"420", "422", "444"}) {
                    const bool isAvif = qstrcmp(format, "avif") == 0;
                    // What the encoder writes with more than eight bits: AVIF with 12, as its 10 do not come out.
                    const QStringList options = {"-p", QStringLiteral("chroma=") + chroma, "-b", isAvif ? "12" : "10"};
                    QTest::addRow("%s, %s, %s", format, given.name, chroma)
                        << given.picture << given.bits << m_folder.filePath(QStringLiteral("photo.") + format)
                        << options;
                }
    }
    void pixelsAreTheConverters()
    {
        QFETCH(QImage, picture);
        QFETCH(int, bits);
        QFETCH(QString, file);
        QFETCH(QStringList, options);
        samples::run(HEIF_ENC,
            QStringList{"-q", "90"} + options + QStringList{"-o", file, samples::png(m_folder, picture, bits)});
        const int difference = differenceFromConverter(file);
        QVERIFY2(difference <= 1, qPrintable(QString::number(difference)));
    }

    void turnedPixelsAreTheConverters_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("orientation");
        for (int orientation = 2; orientation <= 8; orientation++) {
            QTest::addRow("heic, %d", orientation) << int(samples::HeifKind::Hevc) << orientation;
            QTest::addRow("avif, %d", orientation) << int(samples::HeifKind::Av1) << orientation;
        }
    }
    void turnedPixelsAreTheConverters()
    {
        QFETCH(int, kind);
        QFETCH(int, orientation);
        const QString file = m_folder.filePath(QStringLiteral("photo"));
        const QImage picture = samples::deepRamps(width, height).convertToFormat(QImage::Format_RGB888);
        samples::writeFile(QFile::encodeName(file), samples::heif(picture, samples::HeifKind(kind), orientation));
        const int difference = differenceFromConverter(file);
        QVERIFY2(difference <= 1, qPrintable(QString::number(difference)));
    }
};

QTEST_GUILESS_MAIN(HeifConvertTest)
#include "HeifConvertTest.moc"
