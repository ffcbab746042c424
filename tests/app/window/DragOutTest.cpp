// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/PhotoSaver.h"
#include "tests/app/Desk.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QSignalSpy>
#include <QUrl>

/// The photo is dragged out of the preview.
class DragOutTest : public QObject {
    Q_OBJECT

private:
    /// Drags out of the middle of the photo; gives what the drag carries. The platform of these tests drops nothing and
    /// comes back at once.
    static const QMimeData* drag(Desk& desk)
    {
        auto* view = desk.find<DragDropImageView>("mainImageView");
        QTest::mousePress(view, Qt::LeftButton, {}, view->rect().center());
        moveTo(*view, view->rect().center() + QPointF(60, 0), Qt::LeftButton);
        QTest::mouseRelease(view, Qt::LeftButton);
        const auto* drag = view->findChild<QDrag*>();
        return drag ? drag->mimeData() : nullptr;
    }

    static void moveTo(DragDropImageView& view, const QPointF& point, Qt::MouseButton held)
    {
        QMouseEvent move(QEvent::MouseMove, point, view.mapToGlobal(point), Qt::NoButton, held, {});
        QApplication::sendEvent(&view, &move);
    }

private slots:
    void init() { setPreferences({}); }

    void aDragBeginsAfterThePlatformsDistance()
    {
        DragDropImageView view;
        view.resize(400, 300);
        view.setImage(makePhoto(100, 80));
        view.setBefore([] { return makePhoto(100, 80).mirrored(); });
        QSignalSpy dragged(&view, &DragDropImageView::draggedOut);
        const QPoint start(200, 150);
        const int distance = QApplication::startDragDistance();
        QTest::mousePress(&view, Qt::LeftButton, {}, start);
        moveTo(view, start + QPointF(distance - 1, 0), Qt::LeftButton);
        QVERIFY(view.shownImage() == makePhoto(100, 80).mirrored()); // held still it compares
        QCOMPARE(dragged.size(), 0);
        moveTo(view, start + QPointF(distance, 0), Qt::LeftButton);
        QCOMPARE(dragged.size(), 1);
        QVERIFY(view.shownImage() == makePhoto(100, 80));
        moveTo(view, start + QPointF(distance + 20, 0), Qt::LeftButton);
        QCOMPARE(dragged.size(), 1); // once
        QTest::mouseRelease(&view, Qt::LeftButton);

        QTest::mousePress(&view, Qt::RightButton, {}, start);
        moveTo(view, start + QPointF(100, 0), Qt::RightButton);
        moveTo(view, start + QPointF(10, 0), Qt::NoButton);
        QCOMPARE(dragged.size(), 1);
    }

    void withoutAPictureNothingIsDragged()
    {
        DragDropImageView view;
        view.resize(400, 300);
        QSignalSpy dragged(&view, &DragDropImageView::draggedOut);
        QTest::mousePress(&view, Qt::LeftButton, {}, QPoint(200, 150));
        moveTo(view, {10, 10}, Qt::LeftButton);
        QCOMPARE(dragged.size(), 0);
    }

    void aMagnifiedPictureIsMovedInstead()
    {
        Desk desk(makePhoto(300, 200));
        auto* view = desk.find<DragDropImageView>("mainImageView");
        QSignalSpy dragged(view, &DragDropImageView::draggedOut);
        QTest::keyClick(view, Qt::Key_Z);
        QVERIFY(view->closeup().isOn());
        QTest::mousePress(view, Qt::LeftButton, {}, view->rect().center());
        moveTo(*view, {10, 10}, Qt::LeftButton);
        QTest::mouseRelease(view, Qt::LeftButton);
        QCOMPARE(dragged.size(), 0);
    }

    void anotherProgramGetsTheFileThatWouldBeSaved()
    {
        Desk desk(makePhoto(300, 200));
        desk.click("btnHelga");
        desk.choose("btnImgSize", "200");
        const QMimeData* carried = drag(desk);
        QVERIFY(carried && carried->urls().size() == 1);
        const QByteArray path = QFile::encodeName(carried->urls().first().toLocalFile()), file = contentsOf(path);
        QVERIFY(path.endsWith("/photo.png")); // as Save proposes
        const auto picture = qvariant_cast<QImage>(carried->imageData());
        const QString saved = desk.folder.filePath("out.jpg");
        printedBy([&] { desk.saveAs(saved); });
        QVERIFY(file.size() > 100);
        QCOMPARE(file, contentsOf(QFile::encodeName(saved)));
        QCOMPARE(encodeJpeg(picture, {}), file);
        QCOMPARE(qvariant_cast<QImage>(carried->imageData()).cacheKey(), picture.cacheKey()); // rendered once
        QCOMPARE(desk.looks(), std::vector<int>{1});
    }

    void nothingBeginsWhileItIsDragged()
    {
        /// Whoever meddles once the drag is there.
        class Meddler : public QObject {
        public:
            explicit Meddler(Desk& desk)
                : m_desk(desk)
            {
            }
            int drags = 0;
            bool eventFilter(QObject*, QEvent* event) override
            {
                if (event->type() != QEvent::ChildAdded)
                    return false;
                drags++;
                m_desk.window.pressFilterButton(lumora::Filter::mono);
                m_desk.window.rotateImageRight();
                return false;
            }

        private:
            Desk& m_desk;
        };
        Desk desk(makePhoto(300, 200));
        desk.click("btnHelga");
        const qint64 render = desk.render();
        Meddler meddler(desk);
        desk.find<DragDropImageView>("mainImageView")->installEventFilter(&meddler);
        drag(desk);
        QCOMPARE(meddler.drags, 1);
        QCOMPARE(desk.looks(), std::vector<int>{1});
        QCOMPARE(desk.render(), render);
        QCOMPARE(desk.window.getoriginalImage().size(), QSize(300, 200));
    }

    void nothingIsRenderedBeforeATargetAsks()
    {
        Desk desk(makePhoto(300, 200));
        const qint64 render = desk.render();
        const QByteArray printed = printedBy([&] { QVERIFY(drag(desk)); });
        QCOMPARE(printed, QByteArray());
        QCOMPARE(desk.render(), render);
        desk.click("btnMono"); // nothing waits any more
        QCOMPARE(desk.looks(), std::vector<int>{5});
    }
};

DESK_MAIN(DragOutTest)
#include "DragOutTest.moc"
