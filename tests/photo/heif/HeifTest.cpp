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
