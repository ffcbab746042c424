// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/SplitLine.h"
#include "tests/app/Desk.h"
#include "tests/app/PaintWatch.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSlider>
#include <QtMath>

/// Before and after on either side of a line, by pixels. Run at several densities of the screen.
class SplitTest : public QObject {
    Q_OBJECT

private:
    static constexpr int lineBreadth = 25, labelHeight = 45; ///< points that are not the picture's alone

    /// A preview by itself with two pictures, and a line between them.
    struct Split : DragDropImageView {
        explicit Split(const QSize& size = {401, 203})
        {
            resize(size);
            setBefore([this] {
                asked++;
                return came;
            });
            setImage(render);
            show();
            if (!QTest::qWaitForWindowExposed(this))
                qFatal("the preview does not come up");
            setSplit(true);
        }
        const QImage render = makePhoto(1200, 800), came = render.mirrored(true, false);
        int asked = 0;

        SplitLine* line = findChild<SplitLine*>();
        int lineX() const { return line->geometry().center().x(); }
        QImage onScreen() { return pixelsOf(grab().toImage()); }
        QImage wholeOf(const QImage& picture) const
        {
            DragDropImageView view;
            view.resize(size());
            view.setImage(picture);
            return pixelsOf(view.grab().toImage());
        }
        /// Whether the screen shows the left part of one picture and the right part of the other, with the line there.
        bool isSplitAt(int x)
        {
            const qreal ratio = devicePixelRatioF();
            const QRect area = imageRect().toRect();
            const auto part = [&](const QImage& picture, int from, int to) {
                return picture.copy(
                    QRectF(QPointF(from, area.top() + labelHeight) * ratio, QPointF(to, area.bottom() - 1) * ratio)
                        .toAlignedRect());
            };
            const auto shows = [&](const QImage& picture, int from, int to) {
                return from >= to || part(onScreen(), from, to) == part(wholeOf(picture), from, to);
            };
            return shows(came, area.left() + 1, x - lineBreadth / 2 - 1)
                && shows(render, x + lineBreadth / 2 + 2, area.right()) && abs(lineX() - x) <= 1;
        }
        void drag(int from, int to)
        {
            const int y = height() / 2;
            const auto inLine = [&](int x) { return line->mapFromParent(QPoint(x, y)); };
            QTest::mousePress(line, Qt::LeftButton, {}, inLine(from));
            moveTo(to);
            QTest::mouseRelease(line, Qt::LeftButton, {}, inLine(to));
        }
        /// With the button held.
        void moveTo(int x)
        {
            const QPointF at = line->mapFromParent(QPoint(x, height() / 2));
            QMouseEvent move(
                QEvent::MouseMove, at, line->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(line, &move);
        }
    };

    /// A window with a photo under Helga, whose crop is a square.
    struct Try : Desk {
        explicit Try(const QImage& photo = makePhoto(300, 200))
            : Desk(photo)
        {
            click("btnHelga");
        }
        DragDropImageView* view = find<DragDropImageView>("mainImageView");
        SplitLine* line = view->findChild<SplitLine*>();
        void key(Qt::Key key) { QTest::keyClick(window.focusWidget(), key); }
        QAction* entry()
        {
            for (auto* action : window.findChildren<QAction*>())
                if (action->text().remove('&') == "Before and after")
                    return action;
            qFatal("there is no entry");
        }
        bool isSplit() { return view->isSplit() && line->isVisible() && entry()->isChecked(); }
        bool isWhole() { return !view->isSplit() && !line->isVisible() && !entry()->isChecked(); }
        QPoint awayFromLine() const { return {view->width() / 2 + 60, view->height() / 2}; }
    };

    /// A window with a photo that is larger than it, under a look alone.
    struct Close : Try {
        Close()
            : Try(makePhoto(2400, 1600))
        {
            choose("btnBorders", "None");
            choose("btnCropping", "None");
            QTest::mouseMove(&window, {2, 2});
        }
        /// Whether the screen shows a picture of the close look between two places of the view.
        bool shows(const QImage& picture, int from, int to)
        {
            const qreal ratio = view->devicePixelRatioF();
            const QRect part =
                QRectF(QPointF(from, labelHeight) * ratio, QPointF(to, view->height() - labelHeight) * ratio).toRect();
            const QPoint corner = (view->imageRect().topLeft() * ratio).toPoint();
            return part.isEmpty()
                || pixelsOf(view->grab().toImage()).copy(part)
                == magnifiedPart(picture, view->closeup().percent(), part.translated(-corner));
        }
        /// The photo without its look on the left of the line, the one that is saved on its right.
        bool showsBoth()
        {
            const int x = line->geometry().center().x();
            return window.getoriginalImage().size() == view->closeup().picture().size()
                && shows(window.getoriginalImage(), 0, x - lineBreadth)
                && shows(view->closeup().picture(), x + lineBreadth, view->width());
        }
    };

private slots:
    void init() { setPreferences({}); }

    void beforeIsOnTheLeftAndAfterOnTheRight()
    {
        Split split;
        QVERIFY(split.isSplitAt(200));
        split.setSplit(false);
        QCOMPARE(split.onScreen(), split.wholeOf(split.render));
    }

    void theLineIsDraggedAcross()
    {
        Split split;
        const QRect area = split.imageRect().toRect();
        for (const int x : {120, 260, 199, area.left() + 3}) {
            split.drag(split.lineX(), x);
            QVERIFY2(split.isSplitAt(x), qPrintable(QString::number(split.lineX())));
        }
        split.drag(split.lineX() + 7, 207); // held beside the line it does not jump
        QVERIFY(split.isSplitAt(200));
        split.drag(split.lineX(), -500);
        QVERIFY(split.isSplitAt(area.left()));
        split.drag(split.lineX(), 900);
        QVERIFY(split.isSplitAt(area.right() + 1));
    }

    void onlyTheLeftButtonDrags()
    {
        Split split;
        const QPoint grip(lineBreadth / 2, 20);
        QTest::mousePress(split.line, Qt::RightButton, {}, grip);
        split.moveTo(100);
        QTest::mouseRelease(split.line, Qt::RightButton, {}, grip);
        QVERIFY(split.isSplitAt(200));
        QTest::mousePress(split.line, Qt::LeftButton, {}, grip);
        QVERIFY(!split.shownImage().isNull() && split.shownImage() == split.render); // nor does the line compare
        split.setSplit(false); // in the middle of it
        split.setSplit(true);
        split.moveTo(100);
        QVERIFY(split.isSplitAt(200));
    }

    void aDragPaintsWhatItSweepsOverAndRendersNothing()
    {
        Split split;
        split.onScreen();
        const int asked = split.asked;
        QTest::mousePress(split.line, Qt::LeftButton, {}, QPoint(lineBreadth / 2, 20));
        QApplication::processEvents();
        PaintWatch watch;
        split.installEventFilter(&watch);
        split.moveTo(split.lineX() + 30);
        const QRect area = split.imageRect().toRect();
        const QRect swept(200 - lineBreadth / 2, area.top(), 30 + lineBreadth, area.height());
        QTRY_VERIFY(QRegion(swept.adjusted(2, 1, -3, -1)).subtracted(watch.region).isEmpty());
        QVERIFY(watch.region.subtracted(swept.adjusted(-3, -3, 3, 3)).isEmpty());
        QCOMPARE(split.asked, asked);
        QVERIFY(split.isSplitAt(230));
    }

    void itFollowsTheSizeOfThePreview()
    {
        Split split;
        split.drag(split.lineX(), 200 - split.imageRect().toRect().width() / 4);
        for (const QSize size : {QSize(301, 401), QSize(601, 303), QSize(401, 203)}) {
            split.resize(size);
            QApplication::processEvents();
            QVERIFY(split.isSplitAt(split.imageRect().toRect().left() + split.imageRect().toRect().width() / 4));
        }
    }

    void arrowsMoveTheLine()
    {
        Split split;
        const int step = qRound(split.imageRect().width() / 50);
        QTest::keyClick(&split, Qt::Key_Right);
        QVERIFY(split.isSplitAt(200 + step));
        for (int i = 0; i < 3; i++)
            QTest::keyClick(&split, Qt::Key_Left);
        QVERIFY(split.isSplitAt(200 - 2 * step));
        split.setSplit(false);
        QTest::keyClick(&split, Qt::Key_Left);
        split.setSplit(true);
        QVERIFY(split.isSplitAt(200 - 2 * step));
        // Also those of the line itself, in a language that is read from right to left, too.
        split.setLayoutDirection(Qt::RightToLeft);
        split.line->setFocus(Qt::TabFocusReason);
        QTest::keyClick(split.line, Qt::Key_Right);
        QVERIFY(split.isSplitAt(200 - step));
    }

    void eachSideHasItsLabel()
    {
        Split split;
        const QRect area = split.imageRect().toRect();
        const qreal ratio = split.devicePixelRatioF();
        const auto differs = [&](const QImage& picture, int from, int to) {
            const QRect part = QRectF(QPointF(from, area.top()) * ratio, QPointF(to, area.top() + labelHeight) * ratio)
                                   .toAlignedRect();
            return split.onScreen().copy(part) != split.wholeOf(picture).copy(part);
        };
        const int left = area.left(), right = area.right(), width = 90;
        QVERIFY(differs(split.came, left, left + width));
        QVERIFY(differs(split.render, right - width, right));
        QVERIFY(!differs(split.came, left, left + 5)); // they keep away from the edge
        QVERIFY(!differs(split.render, right - 5, right));
        // The line covers them with their pictures.
        split.drag(split.lineX(), left);
        QVERIFY(!differs(split.render, left + lineBreadth, left + width));
        QVERIFY(differs(split.render, right - width, right));
        split.drag(split.lineX(), right + 1);
        QVERIFY(!differs(split.came, right - width, right - lineBreadth));
        QVERIFY(differs(split.came, left, left + width));
    }

    void holdingShowsTheWholeOfBefore()
    {
        Try desk;
        desk.key(Qt::Key_B);
        desk.line->setFocus(Qt::TabFocusReason);
        const QImage split = pixelsOf(desk.view->grab().toImage());
        QTest::keyPress(desk.line, Qt::Key_Space);
        QCOMPARE(desk.view->shownImage(), desk.before());
        const QImage held = pixelsOf(desk.view->grab().toImage());
        QTest::keyRelease(desk.line, Qt::Key_Space);
        QCOMPARE(desk.window.focusWidget(), desk.line);
        QCOMPARE(pixelsOf(desk.view->grab().toImage()), split);

        QTest::mousePress(desk.view, Qt::LeftButton, {}, desk.awayFromLine());
        QCOMPARE(desk.view->shownImage(), desk.before());
        QCOMPARE(pixelsOf(desk.view->grab().toImage()), held);
        QTest::mouseRelease(desk.view, Qt::LeftButton, {}, desk.awayFromLine());
        QVERIFY(desk.isSplit());
        desk.key(Qt::Key_B);
        QTest::keyPress(desk.view, Qt::Key_Space);
        QCOMPARE(pixelsOf(desk.view->grab().toImage()), held); // no trace of the line
    }

    void theKeyBeginsAndEndsIt()
    {
        Try desk;
        QVERIFY(desk.isWhole());
        desk.key(Qt::Key_B);
        QVERIFY(desk.isSplit());
        for (int i = 0; i < 5; i++) // held on
            QTest::simulateEvent(desk.view, true, Qt::Key_B, {}, "b", true);
        QVERIFY(desk.isSplit());
        desk.key(Qt::Key_B);
        QVERIFY(desk.isWhole());
    }

    void escapeEndsItWhereverTheFocusIs()
    {
        Try desk;
        for (QWidget* widget : {static_cast<QWidget*>(desk.view), static_cast<QWidget*>(desk.line),
                 desk.find<QWidget>("btnCropping"), desk.find<QWidget>("btnMono")}) {
            desk.key(Qt::Key_B);
            widget->setFocus(Qt::TabFocusReason);
            QCOMPARE(desk.window.focusWidget(), widget);
            desk.key(Qt::Key_Escape);
            QVERIFY(desk.isWhole());
            QCOMPARE(desk.window.focusWidget(), widget == desk.line ? desk.view : widget);
        }
        desk.key(Qt::Key_Escape);
        QVERIFY(desk.isWhole());
    }

    void theEntryShowsAndChangesIt()
    {
        Try desk;
        QVERIFY(desk.entry()->isCheckable());
        desk.entry()->trigger();
        QVERIFY(desk.isSplit());
        desk.entry()->trigger();
        QVERIFY(desk.isWhole());
    }

    void tabLeadsFromThePhotoToTheLine()
    {
        Try desk;
        desk.key(Qt::Key_B);
        QCOMPARE(desk.window.focusWidget(), desk.view);
        desk.key(Qt::Key_Tab);
        QCOMPARE(desk.window.focusWidget(), desk.line);
        desk.key(Qt::Key_Tab);
        QCOMPARE(desk.window.focusWidget()->objectName(), QString("btnOriginal"));
    }

    void aNewRenderIsTheNewAfter()
    {
        Try desk;
        desk.key(Qt::Key_B);
        const auto shows = [&] {
            Split expected(desk.view->size());
            expected.setBefore([&] { return desk.before(); });
            expected.setImage(desk.window.getFiltersAppliedImage());
            const QRect area = expected.imageRect().toRect().adjusted(1, 1, -1, -1);
            const auto picture = [&](QWidget& view) { return pixelsOf(view.grab(area).toImage()); };
            return desk.isSplit() && picture(*desk.view) == picture(expected);
        };
        QVERIFY(shows());
        desk.click("btnMono");
        QVERIFY(shows());
        desk.find<QSlider>("sldStrength")->setValue(40);
        QVERIFY(shows());
        desk.choose("btnCropping", "Square");
        QVERIFY(shows());
        desk.choose("btnBorders", "Thick");
        QVERIFY(shows());
        desk.click("btnRight");
        QVERIFY(shows());
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "other.png", makePhoto(200, 300))));
        QVERIFY(shows());
        desk.window.undo();
        QVERIFY(shows());
    }

    void aRenderWhileComparingShowsTheSplit()
    {
        Try desk;
        desk.key(Qt::Key_B);
        QTest::keyPress(desk.view, Qt::Key_Space);
        desk.click("btnMono");
        QVERIFY(desk.isSplit());
        QCOMPARE(desk.view->shownImage(), desk.window.getFiltersAppliedImage());
        const QImage split = pixelsOf(desk.view->grab().toImage());
        QTest::keyRelease(desk.view, Qt::Key_Space);
        QCOMPARE(pixelsOf(desk.view->grab().toImage()), split);
    }

    void aCloseLookIsSplitToo()
    {
        Close desk;
        desk.key(Qt::Key_B);
        desk.key(Qt::Key_Z);
        QVERIFY(desk.isSplit() && desk.showsBoth());
        for (const int x : {desk.view->width() / 4, desk.view->width() * 3 / 4}) {
            desk.line->setValue(SplitLine::whole * x / desk.view->width());
            QVERIFY(desk.showsBoth());
        }
        for (const Qt::Key pan : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up}) {
            const int place = desk.line->value();
            const QPointF corner = desk.view->imageRect().topLeft();
            desk.key(pan);
            QCOMPARE(desk.line->value(), place);
            QVERIFY(desk.view->imageRect().topLeft() != corner);
            QVERIFY(desk.showsBoth());
        }
        desk.key(Qt::Key_Plus);
        QVERIFY(desk.isSplit() && desk.showsBoth());
        desk.click("btnMono");
        QVERIFY(desk.isSplit() && desk.showsBoth());
        desk.click("btnRight");
        QVERIFY(desk.isSplit() && desk.showsBoth());
        QTest::keyPress(desk.view, Qt::Key_Space);
        QCOMPARE(pixelsOf(desk.view->shownImage()), pixelsOf(desk.window.getoriginalImage()));
        QTest::keyRelease(desk.view, Qt::Key_Space);
        // The split ends first.
        desk.key(Qt::Key_Escape);
        QVERIFY(desk.isWhole() && desk.view->closeup().isOn());
        desk.key(Qt::Key_B);
        QVERIFY(desk.isSplit() && desk.showsBoth());
        desk.key(Qt::Key_Z);
        desk.key(Qt::Key_Z); // once to 100 per cent
        QVERIFY(!desk.view->closeup().isOn());
        QVERIFY(desk.isSplit());
        QCOMPARE(desk.line->geometry().height(), qCeil(desk.view->imageRect().height()));
    }

    void nothingIsRenderedWhileASplitCloseLookMoves()
    {
        Split split;
        split.setFullImage(split.render);
        split.magnify({200, 100}, 100);
        const int asked = split.asked;
        split.drag(split.lineX(), 120);
        QTest::keyClick(&split, Qt::Key_Right);
        split.onScreen();
        QCOMPARE(split.asked, asked);
        QVERIFY(split.accessibleDescription().contains("other parts"));
    }

    void withoutAPhotoThereIsNoSplit()
    {
        Desk desk;
        auto* view = desk.find<DragDropImageView>("mainImageView");
        QTest::keyClick(view, Qt::Key_B);
        QVERIFY(!view->isSplit());
        QVERIFY(!view->findChild<SplitLine*>()->isVisible());
        view->setSplit(true);
        QVERIFY(!view->isSplit());
        QVERIFY(!view->findChild<SplitLine*>()->isVisible());
    }

    void itEndsWhereTheRenderIsRefused()
    {
        Try desk;
        desk.key(Qt::Key_B);
        desk.view->setImage({}, "There is no room.");
        QVERIFY(desk.isWhole());
        desk.entry()->trigger();
        QVERIFY(desk.isWhole());
        desk.view->setImage(makePhoto(30, 20));
        QVERIFY(desk.isWhole());
    }

    void aReaderOfTheScreenMovesTheLine()
    {
        Split split;
        QVERIFY(split.accessibleDescription().startsWith("Before on the left"));
        QAccessibleInterface* line = QAccessible::queryAccessibleInterface(split.line);
        QCOMPARE(line->role(), QAccessible::Slider);
        QCOMPARE(line->text(QAccessible::Name), QString("Line between before and after"));
        QVERIFY(line->valueInterface());
        const double least = line->valueInterface()->minimumValue().toDouble();
        const double most = line->valueInterface()->maximumValue().toDouble();
        line->valueInterface()->setCurrentValue(int(least + (most - least) / 4));
        const QRect area = split.imageRect().toRect();
        QVERIFY(split.isSplitAt(area.left() + area.width() / 4));
        split.setSplit(false);
        QVERIFY(split.accessibleDescription().startsWith("The photo"));
        QVERIFY(line->state().invisible);
    }

    void theWheelPassesTheLine()
    {
        Split split;
        const QPointF at(lineBreadth / 2, 20);
        QWheelEvent turn(at, split.line->mapToGlobal(at), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(split.line, &turn);
        QVERIFY(split.isSplitAt(200));
    }
};

DESK_MAIN(SplitTest)
#include "SplitTest.moc"
