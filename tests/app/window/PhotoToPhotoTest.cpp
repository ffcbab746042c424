// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/controls/RecentMenu.h"
#include "app/state/RecentPhotos.h"
#include "tests/app/Desk.h"

#include <QLabel>

/// From photo to photo by keys and by the menus.
class PhotoToPhotoTest : public QObject {
    Q_OBJECT

private:
    static void write(const Desk& desk, const char* name, const QByteArray& bytes)
    {
        QFile file(desk.folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", name);
    }

    static void press(Desk& desk, Qt::Key key)
    {
        desk.window.activateWindow();
        if (!QTest::qWaitForWindowActive(&desk.window))
            qFatal("the window is not active");
        QTest::keyClick(&desk.window, key);
    }

    static QString note(Desk& desk)
    {
        const auto* line = desk.find<QLabel>("noteText");
        return line->isVisible() ? line->text() : QString();
    }

    static RecentMenu* openedMenu(Desk& desk)
    {
        auto* menu = desk.window.findChild<RecentMenu*>();
        QApplication::processEvents(); // what is still to come of the window's own focus would close the menu
        menu->popup(desk.window.mapToGlobal(QPoint(20, 20)));
        if (!QTest::qWaitForWindowExposed(menu))
            qFatal("the menu does not come up");
        return menu;
    }

private slots:
    void init() { setPreferences({}); }

    void theKeysGoThroughTheFolder()
    {
        Desk desk;
        const QByteArray first = writePhoto(desk.folder, "p2.png", makePhoto(60, 40));
        writePhoto(desk.folder, "p10.png", makePhoto(40, 60));
        write(desk, "p3.png", "not a photo");
        write(desk, "p1.png", {});
        QVERIFY(desk.window.loadImageFromFile(first));
        desk.click("btnMono");
        press(desk, Qt::Key_PageDown);
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - p10.png"));
        QCOMPARE(pixelsOf(desk.window.getoriginalImage()), makePhoto(40, 60));
        QCOMPARE(desk.breadcrumb(), QString("Mono"));
        QCOMPARE(desk.sheet(), QStringList());
        QCOMPARE(note(desk), QString());

        press(desk, Qt::Key_PageDown);
        QCOMPARE(note(desk), QString("This is the last photo."));
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - p10.png"));
        press(desk, Qt::Key_PageUp);
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - p2.png"));
        QCOMPARE(note(desk), QString());
        press(desk, Qt::Key_PageUp);
        QCOMPARE(note(desk), QString("This is the first photo."));
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - p2.png"));
        QCOMPARE(desk.sheet(), QStringList());
    }

    void theKeysGoWhereverTheFocusIs()
    {
        Desk desk(makePhoto(60, 40));
        writePhoto(desk.folder, "q.png", makePhoto(40, 60));
        for (const char* control : {"btnBorders", "sldStrength", "btnHelga"}) {
            desk.find<QWidget>(control)->setFocus(Qt::TabFocusReason);
            QTest::keyClick(desk.find<QWidget>(control), Qt::Key_PageDown);
            QCOMPARE(desk.window.windowTitle(), QString("Lumora - q.png"));
            QTest::keyClick(desk.find<QWidget>(control), Qt::Key_PageUp);
            QCOMPARE(desk.window.windowTitle(), QString("Lumora - photo.png"));
        }
        QCOMPARE(desk.find<QComboBox>("btnBorders")->currentIndex(), 0);
    }

    void theProgramsFilesAreGoneThrough()
    {
        QTemporaryDir folder;
        QByteArrayList files;
        for (const char* name : {"c.png", "a.png", "b.png"})
            files << writePhoto(folder, name, makePhoto(60, 40));
        Desk desk;
        desk.window.openFilesWhenShown({files[0], files[1]});
        desk.window.update();
        QTRY_COMPARE(desk.window.windowTitle(), QString("Lumora - c.png"));
        press(desk, Qt::Key_PageDown);
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - a.png"));
        press(desk, Qt::Key_PageDown);
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - a.png"));
        QVERIFY(desk.window.loadImageFromFile(files[2])); // another one: its folder
        press(desk, Qt::Key_PageDown);
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - c.png"));
    }

    void withoutAPhotoThereIsNoNext()
    {
        Desk desk;
        press(desk, Qt::Key_PageDown);
        QVERIFY(desk.window.getoriginalImage().isNull());
        QCOMPARE(note(desk), QString());
        desk.window.openFilesWhenShown({});
        QCOMPARE(desk.sheet(), QStringList());
    }

    void theMenuOpensARecentPhoto()
    {
        Desk desk;
        const QByteArray one = writePhoto(desk.folder, "one & two.png", makePhoto(60, 40));
        const QByteArray gone = writePhoto(desk.folder, "gone\n.png", makePhoto(60, 40));
        QVERIFY(!desk.window.loadImageFromFile("/nowhere") && desk.closeSheet()); // which is no photo
        for (const QByteArray& path : {one, gone})
            QVERIFY(desk.window.loadImageFromFile(path));
        QVERIFY(QFile::remove(QFile::decodeName(gone)));
        RecentMenu* menu = openedMenu(desk);
        QCOMPARE(menu->actions().size(), 4);
        QCOMPARE(menu->actions()[0]->text(), QString("&1  gone .png"));
        QVERIFY(!menu->actions()[0]->isEnabled());
        QCOMPARE(menu->actions()[1]->text(), QString("&2  one && two.png"));
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions()[1]).center());
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - one & two.png"));
        QCOMPARE(recentPhotos(), QByteArrayList({one, gone}));
    }

    void theMenuClearsItsList()
    {
        Desk desk(makePhoto(60, 40));
        RecentMenu* menu = openedMenu(desk);
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().last()).center());
        QCOMPARE(recentPhotos(), QByteArrayList());
        menu = openedMenu(desk);
        QCOMPARE(menu->actions().size(), 2); // the line above "Clear the list" is not seen
        QVERIFY(!menu->actions().last()->isEnabled());
        menu->close();
    }
};

DESK_MAIN(PhotoToPhotoTest)
#include "PhotoToPhotoTest.moc"
