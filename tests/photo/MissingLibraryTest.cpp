// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/PhoneSamples.h"
#include "tests/photo/Samples.h"
#include "tests/photo/TiffSample.h"

#include <QTest>

// A photo of a format whose library this program is built without is told from others by its first bytes, and refused
// with a reason.

class MissingLibraryTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

private slots:
    void theReasonNamesTheLibrary_data()
    {
        QTest::addColumn<QByteArray>("head");
        QTest::addColumn<QString>("missing"); // empty where this program has it
        QString heif = QStringLiteral("libheif"), jxl = QStringLiteral("libjxl"), raw = QStringLiteral("LibRaw");
#ifdef LUMORA_HEIF
        heif.clear();
#endif
#ifdef LUMORA_JXL
        jxl.clear();
#endif
#ifdef LUMORA_RAW
        raw.clear();
#endif
        const QByteArray box("\0\0\0\x18", 4), version(4, '\0');
        QTest::newRow("HEIC") << box + "ftypheic" + version + "mif1heic" << heif;
        QTest::newRow("AVIF") << box + "ftypavif" + version + "mif1avif" << heif;
        QTest::newRow("JPEG XL") << "\xFF\x0A" + QByteArray(30, '\0') << jxl;
        QTest::newRow("raw") << samples::dng(QSize(2, 2), {1, 1, 1}, {1, 1, 1}) << raw;
    }
    void theReasonNamesTheLibrary()
    {
        QFETCH(QByteArray, head);
        QFETCH(QString, missing);
        const QString reason = samples::loaded(m_folder, head).reason;
        QCOMPARE(reason.contains("This Lumora was built without"), !missing.isEmpty());
        QVERIFY(reason.contains(missing));
    }

    void aTiffWithoutASensorsPicturesIsNoRawPhoto()
    {
        QList<samples::TiffEntry> entries = samples::tiffPicture(8, 8, 8, 3, 2);
        entries << samples::text(271, "Prism");
        const LoadedPhoto photo = samples::loaded(m_folder, samples::tiff(entries, {QByteArray(192, 'x')}));
        QCOMPARE(photo.image.size(), QSize(8, 8));
        QCOMPARE(photo.image.pixelColor(4, 4), QColor('x', 'x', 'x'));
    }
};

QTEST_GUILESS_MAIN(MissingLibraryTest)
#include "MissingLibraryTest.moc"
