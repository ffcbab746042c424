// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/PhoneSamples.h"
#include "tests/photo/Samples.h"

#include <QTest>

class HeifTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

private slots:
    void aBombIsRefusedAtOnce()
    {
        QByteArray file = samples::heif(samples::quarters(64, 64), samples::HeifKind::Hevc);
        for (qsizetype at = file.indexOf("ispe"); at >= 0; at = file.indexOf("ispe", at + 4))
            file.replace(at + 8, 8, samples::bigEndian(quint32(20000)) + samples::bigEndian(quint32(20000)));
        const QString reason = samples::loaded(m_folder, file).reason;
        QVERIFY2(reason.startsWith("The picture is too large: 20000 x 20000 pixels."), qPrintable(reason));
    }

    void aPictureWithoutDataIsRefused_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("HEIC") << int(samples::HeifKind::Hevc);
        QTest::newRow("AVIF") << int(samples::HeifKind::Av1);
    }
    void aPictureWithoutDataIsRefused()
    {
        QFETCH(int, kind);
        QByteArray file = samples::heif(samples::quarters(64, 64), samples::HeifKind(kind));
        const qsizetype data = file.indexOf("mdat") + 4;
        const qsizetype size = file.lastIndexOf(samples::bigEndian(quint32(file.size() - data)), data - 9);
        QVERIFY(size > 0); // where the file tells of it
        file.replace(size, 4, QByteArray(4, '\0'));
        QVERIFY(samples::loaded(m_folder, file).reason.contains("damaged"));
    }

    void aPictureThatIsMadeOfItselfIsRefused()
    {
        // The transparency, a grid as the picture itself, has the picture in place of its tile.
        QImage picture(32, 24, QImage::Format_RGBA8888);
        picture.fill(QColor(200, 100, 50, 51));
        QByteArray file = samples::heif(picture, samples::HeifKind::Hevc);
        const qsizetype tile = file.indexOf(QByteArray("dimg\0\4\0\1\0\3", 10));
        QVERIFY(tile > 0);
        file.replace(tile, 10, QByteArray("dimg\0\4\0\1\0\2", 10));
        QVERIFY(samples::loaded(m_folder, file).reason.contains("damaged"));
    }
};

QTEST_GUILESS_MAIN(HeifTest)
#include "HeifTest.moc"
