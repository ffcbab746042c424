#include "tests/app/Desk.h"

// Run at several densities of the screen.

class SharpnessTest : public QObject {
    Q_OBJECT

private slots:
    void aPixelOfThePictureIsAPixelOfTheScreen()
    {
        DragDropImageView view;
        view.resize(301, 203);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QImage photo = makePhoto(211, 97);
        view.setImage(photo);
        const QImage painted = view.grab().toImage();
        const qreal ratio = view.devicePixelRatioF();
        QCOMPARE(qEnvironmentVariableIsSet("QT_SCALE_FACTOR") ? ratio : 1.0,
            qEnvironmentVariableIsSet("QT_SCALE_FACTOR") ? qEnvironmentVariable("QT_SCALE_FACTOR").toDouble() : 1.0);
        const QPoint corner = (view.imageRect().topLeft() * ratio).toPoint();
        const QImage part = painted.copy(QRect(corner, photo.size()));
        QCOMPARE(pixelsOf(part), photo);
    }

    void theDisplayCopyAndTheThumbnailsHaveTheScreensPixels()
    {
        Desk desk(makePhoto(3000, 2000));
        const qreal ratio = desk.window.devicePixelRatioF();
        const int side = qRound(desk.window.width() * ratio);
        QVERIFY(desk.window.getoriginalDisplay().width() >= side);
        QCOMPARE(desk.window.getoriginalThumb().height(), qRound(100 * ratio));
    }
};

DESK_MAIN(SharpnessTest)
#include "SharpnessTest.moc"
