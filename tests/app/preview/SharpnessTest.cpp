// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/Desk.h"
#include "tests/app/PaintWatch.h"

#include <QApplication>
#include <functional>

// Run at several densities of the screen.

class SharpnessTest : public QObject {
    Q_OBJECT

private slots:
    void aNewPicturePaintsItsOwnPlaceAndThatOfTheFormerOne()
    {
        DragDropImageView view;
        view.resize(301, 203);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        PaintWatch watch;
        view.installEventFilter(&watch);
        view.setImage(makePhoto(150, 40)); // in place of the words
        QTRY_VERIFY(watch.covers(view.rect()));
        for (const QSize size : {QSize(40, 150), QSize(151, 39)}) {
            const QRect former = view.imageRect().toAlignedRect();
            watch.region = {};
            view.setImage(makePhoto(size.width(), size.height()));
            QTRY_VERIFY(watch.covers(view.imageRect().toAlignedRect()));
            QVERIFY(watch.covers(former));
            QVERIFY(!watch.covers(view.rect()));
        }
        watch.region = {};
        view.setImage({});
        QTRY_VERIFY(watch.covers(view.rect()));
    }

    void whatIsShownAnewIsPaintedAnew()
    {
        DragDropImageView view;
        view.resize(301, 203);
        view.setImage(makePhoto(150, 40));
        view.setBefore([] { return makePhoto(150, 40).mirrored(); });
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        PaintWatch watch;
        view.installEventFilter(&watch);
        const auto isPaintedBy = [&](const std::function<void()>& change) {
            QApplication::processEvents();
            watch.region = {};
            change();
            return QTest::qWaitFor([&] { return watch.covers(view.imageRect().toAlignedRect() & view.rect()); });
        };
        QVERIFY(isPaintedBy([&] { view.setImage(makePhoto(150, 40).mirrored(true, false)); })); // as large as before
        QVERIFY(isPaintedBy([&] { view.setComparing(true); }));
        QVERIFY(isPaintedBy([&] { view.setComparing(false); }));
        const QImage large = makePhoto(600, 400);
        view.setFullImage(large);
        QVERIFY(isPaintedBy([&] { view.magnify({150, 100}, 100); }));
        QVERIFY(isPaintedBy([&] { view.setFullImage(large.mirrored()); }));
        QVERIFY(isPaintedBy([&] { view.setFullMix(large, large.mirrored(), 50); }));
        QVERIFY(isPaintedBy([&] { QTest::keyClick(&view, Qt::Key_Left); }));
        QVERIFY(isPaintedBy([&] { view.fit(); }));
    }

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
