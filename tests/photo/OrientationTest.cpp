#include "photo/PhotoLoader.h"
#include "photo/PhotoSaver.h"
#include "tests/photo/Samples.h"

#include <QTemporaryDir>
#include <QTest>
#include <QTransform>

namespace {

/// How the camera stores an upright picture under that orientation: the inverse of what a viewer does.
QImage stored(const QImage& upright, int orientation)
{
    const QTransform clockwise = QTransform().rotate(90), counterClockwise = QTransform().rotate(-90);
    switch (orientation) {
    case 2:
        return upright.mirrored(true, false);
    case 3:
        return upright.mirrored(true, true);
    case 4:
        return upright.mirrored(false, true);
    case 5: // mirrored along the diagonal: its own inverse
        return upright.mirrored(true, false).transformed(counterClockwise);
    case 6: // a viewer turns it clockwise
        return upright.transformed(counterClockwise);
    case 7: // mirrored along the other diagonal: its own inverse
        return upright.mirrored(true, false).transformed(clockwise);
    case 8:
        return upright.transformed(clockwise);
    default:
        return upright;
    }
}

} // namespace

class OrientationTest : public QObject {
    Q_OBJECT

private slots:
    void photosOpenAndStayUpright_data()
    {
        QTest::addColumn<int>("orientation");
        QTest::addColumn<bool>("bigEndian");
        for (int orientation = 0; orientation <= 9; orientation++)
            for (const bool bigEndian : {false, true})
                QTest::addRow("%d, %s endian", orientation, bigEndian ? "big" : "little") << orientation << bigEndian;
    }
    void photosOpenAndStayUpright()
    {
        QFETCH(int, orientation);
        QFETCH(bool, bigEndian);
        QTemporaryDir folder;
        const QByteArray path = folder.path().toLocal8Bit() + "/photo.jpg";
        const QImage upright = samples::quarters(96, 64);
        const QByteArray plain = samples::encoded(stored(upright, orientation), "jpeg");
        samples::writeFile(path, samples::withCameraExif(plain, orientation, bigEndian));
        const LoadedPhoto photo = loadPhoto(path);
        QCOMPARE(photo.reason, QString());
        QVERIFY(samples::showsQuarters(photo.image, upright.size()));

        // What is saved stands upright too, for a viewer that turns by the orientation and for one that does not.
        samples::writeFile(path, encodeJpeg(photo.image, photo.metadata));
        QVERIFY(samples::showsQuarters(loadPhoto(path).image, upright.size()));
        QVERIFY(samples::showsQuarters(QImage(QString::fromLocal8Bit(path)), upright.size()));
    }
};

QTEST_GUILESS_MAIN(OrientationTest)
#include "OrientationTest.moc"
