// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/Preferences.h"
#include "tests/app/Desk.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>

class FullScreenTest : public QObject {
    Q_OBJECT

private:
    static constexpr const char* bars[] = {"menubar", "wordsBar", "filtersBox", "separatorLine", "optionsBar"};

    static void type(Desk& desk, Qt::Key key, Qt::KeyboardModifiers keys = {})
    {
        desk.window.activateWindow();
        if (!QTest::qWaitForWindowActive(&desk.window))
            qFatal("the window is not active");
        QTest::keyClick(desk.window.focusWidget(), key, keys);
    }

    static bool standsAlone(Desk& desk)
    {
        const auto isSeen = [&desk](const char* bar) { return desk.find<QWidget>(bar)->isVisible(); };
        return std::ranges::none_of(bars, isSeen)
            && desk.find<QWidget>("mainImageView")->size() == desk.window.centralWidget()->size();
    }
    static bool hasAllBars(Desk& desk)
    {
        return std::ranges::all_of(bars, [&desk](const char* bar) { return desk.find<QWidget>(bar)->isVisible(); });
    }

    /// The menu that opened; null for none.
    static QMenu* openedMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    static void askForMenu(QWidget* widget, QContextMenuEvent::Reason reason, const QPoint& at)
    {
        QContextMenuEvent event(reason, at, widget->mapToGlobal(at));
        QApplication::sendEvent(widget, &event);
    }

private slots:
    void init() { setPreferences({}); }

    void f11LeavesThePhotoAloneAndTheKeysAtWork()
    {
        Desk desk(makePhoto(900, 600));
        desk.find<QWidget>("btnHelga")->setFocus(Qt::TabFocusReason);
        type(desk, Qt::Key_F11);
        QVERIFY(desk.window.isFullScreen());
        QTRY_VERIFY(standsAlone(desk));
        type(desk, Qt::Key_7);
        QCOMPARE(desk.looks(), std::vector<int>{5});
        type(desk, Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(desk.window.getoriginalImage().size(), QSize(600, 900));
        type(desk, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.window.getoriginalImage().size(), QSize(900, 600));
        type(desk, Qt::Key_BracketLeft);
        QCOMPARE(desk.window.strength, 90);
        QTest::keyPress(desk.window.focusWidget(), Qt::Key_Space);
        auto* view = desk.find<DragDropImageView>("mainImageView");
        QVERIFY(view->shownImage() != view->image());
        QTest::keyRelease(desk.window.focusWidget(), Qt::Key_Space);
        type(desk, Qt::Key_F11);
        QVERIFY(!desk.window.isFullScreen());
        QTRY_VERIFY(hasAllBars(desk));
    }

    void escapeEndsTheCloseLookThenTheWholeScreen()
    {
        Desk desk(makePhoto(2000, 1500));
        auto* view = desk.find<DragDropImageView>("mainImageView");
        type(desk, Qt::Key_F11);
        type(desk, Qt::Key_Z);
        QVERIFY(view->closeup().isOn());
        type(desk, Qt::Key_Escape);
        QVERIFY(!view->closeup().isOn());
        QVERIFY(desk.window.isFullScreen());
        type(desk, Qt::Key_Escape);
        QVERIFY(!desk.window.isFullScreen());
        QVERIFY(hasAllBars(desk));
        type(desk, Qt::Key_Escape); // nothing more
        QVERIFY(!desk.window.isFullScreen());
    }

    void theDesktopMayEndIt()
    {
        Desk desk(makePhoto(300, 200));
        type(desk, Qt::Key_F11);
        QTRY_VERIFY(standsAlone(desk));
        desk.window.showNormal();
        QTRY_VERIFY(hasAllBars(desk));
        type(desk, Qt::Key_F11);
        QVERIFY(desk.window.isFullScreen());
    }

    void nothingOfItIsRemembered()
    {
        QSize size;
        {
            Desk desk(makePhoto(300, 200));
            desk.window.resize(desk.window.minimumSizeHint().expandedTo({720, 500}));
            size = desk.window.size();
            type(desk, Qt::Key_F11);
            QTRY_VERIFY(standsAlone(desk));
            desk.window.applicationWillTerminate();
        }
        QCOMPARE(QSize(getPreferenceInt("Window/Width"), getPreferenceInt("Window/Height")), size);
        QVERIFY(!getPreferenceBool("Window/Maximised"));
        Desk desk;
        QVERIFY(!desk.window.isFullScreen());
        QCOMPARE(desk.window.size(), size);
    }

    void aMaximisedWindowIsMaximisedAgain()
    {
        Desk desk(makePhoto(300, 200));
        desk.window.showMaximized();
        type(desk, Qt::Key_F11);
        QVERIFY(desk.window.isFullScreen());
        desk.window.applicationWillTerminate();
        QVERIFY(getPreferenceBool("Window/Maximised"));
        type(desk, Qt::Key_F11);
        QVERIFY(!desk.window.isFullScreen());
        QVERIFY(desk.window.isMaximized());
    }

    void theMenuOfThePhotoHasTheEntriesOfTheMenuBar()
    {
        Desk desk(makePhoto(2000, 1500));
        auto* view = desk.find<DragDropImageView>("mainImageView");
        const QPoint at = view->rect().center() + QPoint(50, 0);
        askForMenu(view, QContextMenuEvent::Mouse, at);
        QMenu* menu = openedMenu();
        QVERIFY(menu);
        QCOMPARE(menu->pos(), view->mapToGlobal(at));
        QList<QAction*> known;
        for (QAction* title : desk.find<QMenuBar>("menubar")->actions())
            known << title->menu()->actions();
        QStringList keys;
        for (QAction* entry : menu->actions())
            if (!entry->isSeparator()) {
                QVERIFY(known.contains(entry));
                keys << entry->shortcut().toString();
            }
        for (const char* key : {"Ctrl+Z", "Ctrl+C", "B", "Z", "F11", "Ctrl+L", "Ctrl+R", "Ctrl+Shift+F", "Ctrl+S"})
            QVERIFY2(keys.contains(key), key);
        // Actual size: where the menu was opened.
        const double share = (at.x() - view->imageRect().x()) / view->imageRect().width();
        QTest::keyClick(menu, Qt::Key_Z); // no key of the menu itself
        for (QAction* entry : menu->actions())
            if (entry->shortcut() == QKeySequence("Z"))
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
        QVERIFY(view->closeup().isOn());
        const QRectF shown = view->imageRect();
        QVERIFY(qAbs(view->rect().center().x() - shown.x() - share * shown.width()) < 3);
        QVERIFY(!openedMenu());
    }

    void itOpensByKeyWhereverTheFocusIs()
    {
        Desk desk(makePhoto(300, 200));
        for (const char* name : {"mainImageView", "btnHelga", "btnSave"}) {
            auto* widget = desk.find<QWidget>(name);
            widget->setFocus(Qt::TabFocusReason);
            askForMenu(widget, QContextMenuEvent::Keyboard, {1, 1});
            QVERIFY(openedMenu());
            QTest::keyClick(openedMenu(), Qt::Key_Escape);
            QVERIFY(!openedMenu());
            QTest::keyClick(widget, Qt::Key_F10);
            QVERIFY(!openedMenu());
            QTest::keyClick(widget, Qt::Key_F10, Qt::ShiftModifier);
            QVERIFY(openedMenu());
            openedMenu()->close();
            askForMenu(widget, QContextMenuEvent::Mouse, {1, 1});
            QCOMPARE(bool(openedMenu()), name == QByteArray("mainImageView"));
            if (openedMenu())
                openedMenu()->close();
        }
    }

    void itEndsComparing()
    {
        Desk desk(makePhoto(300, 200));
        desk.click("btnMono");
        auto* view = desk.find<DragDropImageView>("mainImageView");
        QTest::mousePress(view, Qt::LeftButton);
        QVERIFY(view->shownImage() != view->image());
        askForMenu(view, QContextMenuEvent::Mouse, {1, 1});
        QCOMPARE(view->shownImage(), view->image());
        openedMenu()->close();
        QTest::mouseRelease(view, Qt::LeftButton);
    }
};

DESK_MAIN(FullScreenTest)
#include "FullScreenTest.moc"
