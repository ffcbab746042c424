// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/Converters.h"
#include "tests/photo/PhoneSamples.h"
#include "tests/photo/Samples.h"

#include <QTest>

// Raw photos have the pixels that the library's own converter develops.

class DcrawEmuTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

private slots:
    void pixelsAreTheConverters_data()
    {
        QTest::addColumn<int>("orientation");
        for (int orientation : {1, 3, 6, 8})
            QTest::addRow("%d", orientation) << orientation;
    }
    void pixelsAreTheConverters()
    {
        QFETCH(int, orientation);
        const QString photo = m_folder.filePath(QStringLiteral("photo.dng"));
        const QByteArray file = samples::dng(samples::deepRamps(122, 84), {0.5, 1, 0.7}, orientation);
        samples::writeFile(QFile::encodeName(photo), file);
        // The white balance of the moment; otherwise as it does by itself.
        samples::run(DCRAW_EMU, {"-w", photo});
        const int difference = samples::largestDifference(photo, photo + QStringLiteral(".ppm"));
        QVERIFY2(difference <= 1, qPrintable(QString::number(difference)));
    }
};

QTEST_GUILESS_MAIN(DcrawEmuTest)
#include "DcrawEmuTest.moc"
