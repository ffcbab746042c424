// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/controls/LookButton.h"
#include "app/controls/LookStrip.h"
#include "app/state/Rules.h"
#include "image/CharImage.h"
#include "render/RenderPipeline.h"
#include "tests/app/Desk.h"

#include <QAccessible>
#include <QFrame>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

using namespace lumora;

using Looks = std::vector<int>;

// The strip of all looks.

class StripTest : public QObject {
    Q_OBJECT

private:
    struct Try : Desk {
        explicit Try(const QSize& size = {900, 500})
            : Desk(makePhoto(120, 80))
        {
            window.resize(size);
            if (!QTest::qWaitFor([&] { return window.size() == size && all[0]->visibleRegion() == all[0]->rect(); }))
                qFatal("the window does not get its size");
        }

        LookStrip* strip = find<LookStrip>("filtersBox");
        QList<LookButton*> all = strip->buttons();
        LookButton* button(int filter) const
        {
            for (LookButton* look : all)
                if (look->filter() == filter)
                    return look;
            qFatal("there is no button of %d", filter);
        }
        static bool isInSight(const QWidget* widget) { return widget->visibleRegion() == widget->rect(); }
        QList<int> places() const
        {
            QList<int> of;
            for (const LookButton* look : all)
                of << look->place();
            return of;
        }
        /// The space bar, held for so many milliseconds.
        void space(QWidget* widget, quint64 held)
        {
            for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QKeyEvent event(type, Qt::Key_Space, {}, " ");
                event.setTimestamp(type == QEvent::KeyPress ? 5000 : 5000 + held);
                QApplication::sendEvent(widget, &event);
            }
        }
    };

private slots:
    void init() { setPreferences({}); }

    void atRestItAsksForNoLayout()
    {
        Try desk;
        struct Requests : QObject {
            int count = 0;
            bool eventFilter(QObject*, QEvent* event) override
            {
                count += event->type() == QEvent::LayoutRequest;
                return false;
            }
        } requests;
        const auto turnTheLoop = [] {
            for (int i = 0; i < 20; i++)
                QCoreApplication::processEvents();
        };
        turnTheLoop();
        desk.strip->widget()->installEventFilter(&requests);
        turnTheLoop();
        QCOMPARE(requests.count, 0);
        desk.button(Filter::helga)->setMinimumWidth(150); // it sees those that come
        turnTheLoop();
        QVERIFY(requests.count > 0);
    }

    void holdsAllLooksInTheirOrder()
    {
        Try desk;
        QStringList names;
        for (const LookButton* look : desk.all)
            names << look->text();
        QCOMPARE(names,
            QStringList({"Original", "Helga", "Lolo", "Cinema", "1962", "1974", "Mono", "Colorcross", "Instant",
                "Magazine", "Infrared", "Fisheye", "Lightleak", "Delicious", "Arctic", "Blowout"}));
        QCOMPARE(desk.window.filterButtons.numThings, 10);
        for (int i = 0; i < 10; i++)
            QCOMPARE(desk.window.filterButtons.theArray[i], desk.all[i]);
        int x = -1;
        for (const LookButton* look : desk.all) {
            QVERIFY(look->x() > x);
            x = look->x();
        }
        // The line stands behind the described ten.
        const QFrame* line = nullptr;
        for (const auto* frame : desk.strip->widget()->findChildren<QFrame*>())
            if (frame->frameShape() == QFrame::VLine)
                line = frame;
        QVERIFY(line && line->x() > desk.all[9]->x() && line->x() < desk.all[10]->x());
    }

    void everyThumbnailShowsThePhotoUnderItsLook()
    {
        Try desk;
        for (const LookButton* look : desk.all) {
            QVERIFY(!look->icon().isNull());
            if (look->filter() == Filter::lightleak) // whose light falls elsewhere each time
                continue;
            const QImage expected =
                renderPhoto(desk.window.getoriginalThumb(), {.filter = look->filter(), .asThumbnail = true});
            QVERIFY2(pixelsOf(look->icon().pixmap(expected.size()).toImage()) == pixelsOf(expected),
                qPrintable(look->text()));
        }
        QVERIFY(desk.button(Filter::infrared)->icon().cacheKey() != desk.button(Filter::arctic)->icon().cacheKey());
    }

    void largerButtonsHaveLargerThumbnails()
    {
        Try desk({2560, 1400});
        QVERIFY(desk.strip->side() > 100);
        QTRY_COMPARE(desk.window.getoriginalThumb().height(), desk.strip->side());
    }

    void aClickPressesAndReleases()
    {
        Try desk({2560, 900});
        for (const int look : furtherLooks()) {
            QTest::mouseClick(desk.button(look), Qt::LeftButton);
            QCOMPARE(desk.looks(), Looks{look});
            QCOMPARE(desk.breadcrumb(), QString(CharImage::getFilterName(look)));
            for (const LookButton* other : desk.all)
                QCOMPARE(other->isChecked(), other->filter() == look);
            QCOMPARE(desk.window.focusWidget()->objectName(), QString("mainImageView"));
        }
        QTest::mouseClick(desk.button(Filter::blowout), Qt::LeftButton);
        QCOMPARE(desk.looks(), Looks());
        QVERIFY(desk.all[0]->isChecked() && !desk.button(Filter::blowout)->isChecked());
    }

    void theHistoryNamesEveryLook()
    {
        Try desk({2560, 900});
        const auto undoes = [&] {
            for (const QAction* action : desk.window.findChildren<QAction*>())
                if (action->text().startsWith("&Undo"))
                    return action->text();
            return QString();
        };
        for (const int look : furtherLooks()) {
            QTest::mouseClick(desk.button(look), Qt::LeftButton);
            QCOMPARE(undoes(), QString("&Undo ") + CharImage::getFilterName(look));
        }
        desk.window.undo();
        QCOMPARE(desk.looks(), Looks{Filter::arctic});
        QVERIFY(desk.button(Filter::arctic)->isChecked());
    }

    void theAppliedLookIsScrolledIntoSight()
    {
        Try desk;
        QVERIFY(!desk.isInSight(desk.button(Filter::blowout)));
        desk.window.pressFilterButton(Filter::blowout);
        QVERIFY(desk.isInSight(desk.button(Filter::blowout)));
        QVERIFY(!desk.isInSight(desk.all[0]));
        QTest::keyClick(&desk.window, Qt::Key_2);
        QVERIFY(desk.isInSight(desk.button(Filter::helga)));
        desk.window.undo();
        QVERIFY(desk.isInSight(desk.button(Filter::blowout)));
        QTest::keyClick(&desk.window, Qt::Key_1);
        QVERIFY(desk.isInSight(desk.all[0]));
    }

    void aLookThatIsSwitchedOffUnderThePointerStaysInSight()
    {
        Try desk;
        LookButton* look = desk.button(Filter::blowout);
        desk.window.pressFilterButton(Filter::blowout);
        QTRY_VERIFY(Try::isInSight(look));
        QTest::mouseMove(look);
        QTRY_VERIFY(desk.strip->underMouse());
        QTest::mouseClick(look, Qt::LeftButton);
        QCOMPARE(desk.looks(), Looks());
        QVERIFY(Try::isInSight(look));
        // Where the pointer is elsewhere, the strip goes back to its begin.
        desk.window.pressFilterButton(Filter::blowout);
        QTRY_VERIFY(Try::isInSight(look));
        QTest::mouseMove(desk.find<QWidget>("mainImageView"));
        QTRY_VERIFY(!desk.strip->underMouse());
        desk.window.pressFilterButton(Filter::blowout);
        QTRY_VERIFY(Try::isInSight(desk.all[0]));
    }

    void andStaysInSightWhereTheWindowBecomesNarrower()
    {
        Try desk({2560, 900});
        QVERIFY(!desk.strip->horizontalScrollBar()->isVisible());
        desk.window.pressFilterButton(Filter::delicious);
        desk.window.resize(900, 500);
        QTRY_VERIFY(desk.strip->horizontalScrollBar()->isVisible());
        QTRY_VERIFY(desk.isInSight(desk.button(Filter::delicious)));
    }

    void theWheelScrolls()
    {
        Try desk;
        QWidget* ground = desk.strip->viewport();
        const QPointF at = ground->rect().center();
        for (int i = 0; i < 30; i++) {
            QWheelEvent turn(at, ground->mapToGlobal(at), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
            QApplication::sendEvent(ground, &turn);
        }
        QVERIFY(desk.isInSight(desk.button(Filter::blowout)));
        QCOMPARE(desk.looks(), Looks());
    }

    void arrowsWalkAlongIt()
    {
        Try desk;
        desk.all[0]->setFocus(Qt::TabFocusReason);
        for (int i = 1; i < desk.all.size(); i++) {
            QTest::keyClick(desk.window.focusWidget(), Qt::Key_Right);
            QCOMPARE(desk.window.focusWidget(), desk.all[i]);
            QVERIFY(desk.isInSight(desk.all[i]));
        }
        QTest::keyClick(desk.window.focusWidget(), Qt::Key_Right); // there is nothing further on
        QCOMPARE(desk.window.focusWidget(), desk.all.last());
        QTest::keyClick(desk.window.focusWidget(), Qt::Key_Left);
        QCOMPARE(desk.window.focusWidget(), desk.all[14]);
        QTest::keyClick(desk.window.focusWidget(), Qt::Key_Home);
        QCOMPARE(desk.window.focusWidget(), desk.all[0]);
        QVERIFY(desk.isInSight(desk.all[0]));
        QTest::keyClick(desk.window.focusWidget(), Qt::Key_Left);
        QCOMPARE(desk.window.focusWidget(), desk.all[0]);
        QTest::keyClick(desk.window.focusWidget(), Qt::Key_End);
        QCOMPARE(desk.window.focusWidget(), desk.all.last());
        QCOMPARE(desk.looks(), Looks()); // walking presses nothing
    }

    void theTabKeyWalksThroughIt()
    {
        Try desk;
        desk.all[9]->setFocus(Qt::TabFocusReason);
        for (int i = 10; i < desk.all.size(); i++) {
            QTest::keyClick(desk.window.focusWidget(), Qt::Key_Tab);
            QCOMPARE(desk.window.focusWidget(), desk.all[i]);
            QVERIFY(desk.isInSight(desk.all[i]));
        }
        QTest::keyClick(desk.window.focusWidget(), Qt::Key_Tab);
        QCOMPARE(desk.window.focusWidget()->objectName(), QString("btnLoad"));
    }

    void returnAndATapOnTheSpaceBarPress()
    {
        Try desk;
        for (LookButton* look : desk.all.sliced(1)) {
            look->setFocus(Qt::TabFocusReason);
            desk.space(look, 80);
            QCOMPARE(desk.looks(), Looks{look->filter()});
            QTest::keyClick(look, Qt::Key_Return);
            QCOMPARE(desk.looks(), Looks());
            QCOMPARE(desk.window.focusWidget(), look); // who came by key stays
        }
    }

    void holdingTheSpaceBarOnlyCompares()
    {
        Try desk;
        auto* view = desk.find<DragDropImageView>("mainImageView");
        desk.window.pressFilterButton(Filter::mono);
        LookButton* arctic = desk.button(Filter::arctic);
        arctic->setFocus(Qt::TabFocusReason);
        QTest::keyPress(arctic, Qt::Key_Space);
        QCOMPARE(view->shownImage(), desk.before());
        desk.space(arctic, 400);
        QCOMPARE(desk.looks(), Looks{Filter::mono});
        QCOMPARE(view->shownImage(), desk.window.getFiltersAppliedImage());
        // A click leaves the focus on the photo, so that a tap presses nothing.
        QTest::mouseClick(arctic, Qt::LeftButton);
        desk.space(desk.window.focusWidget(), 80);
        QCOMPARE(desk.looks(), Looks{Filter::arctic});
    }

    void severalLooksCarryTheirPlaces()
    {
        Try desk({2560, 900});
        const QList<int> none(16, 0);
        desk.window.pressFilterButton(Filter::arctic);
        QCOMPARE(desk.places(), none);
        const QImage plain = desk.button(Filter::arctic)->grab().toImage();
        desk.click("chkMultiFilter");
        QCOMPARE(desk.button(Filter::arctic)->place(), 1);
        QVERIFY(desk.button(Filter::arctic)->grab().toImage() != plain);
        QTest::mouseClick(desk.button(Filter::helga), Qt::LeftButton);
        QTest::mouseClick(desk.button(Filter::blowout), Qt::LeftButton);
        const auto placesAre = [&](int arctic, int helga, int blowout) {
            QList<int> expected = none;
            expected[14] = arctic, expected[1] = helga, expected[15] = blowout;
            return desk.places() == expected;
        };
        QVERIFY(placesAre(1, 2, 3));
        QTest::mouseClick(desk.button(Filter::arctic), Qt::LeftButton);
        QVERIFY(placesAre(0, 1, 2));
        desk.window.undo();
        QVERIFY(placesAre(1, 2, 3));
        desk.click("chkMultiFilter");
        QCOMPARE(desk.places(), none);
        QCOMPARE(desk.looks(), Looks{Filter::blowout});
        desk.window.undo();
        QVERIFY(placesAre(1, 2, 3));
    }

    void aScreenReaderHearsNameStateAndPlace()
    {
        Try desk;
        desk.click("chkMultiFilter");
        for (const int look : {int(Filter::lightleak), int(Filter::fisheye)}) {
            QAccessibleInterface* button = QAccessible::queryAccessibleInterface(desk.button(look));
            QCOMPARE(button->text(QAccessible::Name), QString(CharImage::getFilterName(look)));
            QVERIFY(button->state().checkable && !button->state().checked);
            QVERIFY(button->actionInterface());
            button->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
            QVERIFY(button->state().checked);
        }
        QCOMPARE(desk.looks(), Looks({Filter::lightleak, Filter::fisheye}));
        QAccessibleInterface* second = QAccessible::queryAccessibleInterface(desk.button(Filter::fisheye));
        QCOMPARE(second->text(QAccessible::Description), QString("Applied as number 2"));
        QVERIFY(second->role() == QAccessible::CheckBox || second->role() == QAccessible::Button);
    }
};

DESK_MAIN(StripTest)
#include "StripTest.moc"
