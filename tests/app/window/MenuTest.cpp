// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "tests/app/Desk.h"

#include <QApplication>
#include <QDesktopServices>
#include <QMenu>
#include <QMenuBar>
#include <QUrl>

using namespace lumora;

using Looks = std::vector<int>;

/// Every entry of the menus by what it does, by mouse and by its key.
class MenuTest : public QObject {
    Q_OBJECT

public slots:
    void noteOpened(const QUrl&) { m_opened++; }

private:
    int m_opened = 0;

    /// Opens a menu and clicks an entry of it.
    static void pick(Desk& desk, const QString& menu, const QString& entry)
    {
        for (QAction* title : desk.find<QMenuBar>("menubar")->actions()) {
            if (title->text().remove('&') != menu)
                continue;
            QMenu* list = title->menu();
            for (QAction* action : list->actions())
                if (action->text().remove('&') == entry) {
                    list->popup(desk.window.mapToGlobal(QPoint(20, 20)));
                    if (!QTest::qWaitForWindowExposed(list))
                        qFatal("the menu does not come up");
                    return QTest::mouseClick(list, Qt::LeftButton, {}, list->actionGeometry(action).center());
                }
        }
        qFatal("there is no %s in %s", qPrintable(entry), qPrintable(menu));
    }

    /// A way to an action: by its entry, or by its key where `key` is not empty.
    static void act(Desk& desk, bool byKey, const QString& menu, const QString& entry, const char* key)
    {
        if (!byKey)
            return pick(desk, menu, entry);
        const QKeyCombination keys = QKeySequence(key)[0];
        desk.window.activateWindow();
        if (!QTest::qWaitForWindowActive(&desk.window))
            qFatal("the window is not active");
        QTest::keyClick(&desk.window, keys.key(), keys.keyboardModifiers());
    }

private slots:
    void init() { setPreferences({}); }

    void photoEntries_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("by mouse") << false;
        QTest::newRow("by key") << true;
    }
    void photoEntries()
    {
        QFETCH(bool, byKey);
        const QImage photo = makePhoto(60, 40);
        Desk desk(photo);
        const auto picture = [&] { return pixelsOf(desk.window.getoriginalImage()); };
        act(desk, byKey, "Photo", "Rotate left", "Ctrl+L");
        QCOMPARE(picture().size(), QSize(40, 60));
        QCOMPARE(picture().pixel(0, 59), photo.pixel(0, 0));
        act(desk, byKey, "Edit", "Undo Rotate left", "Ctrl+Z");
        QCOMPARE(picture(), photo);
        act(desk, byKey, "Photo", "Rotate right", "Ctrl+R");
        QCOMPARE(picture().pixel(39, 0), photo.pixel(0, 0));
        act(desk, byKey, "Edit", "Undo Rotate right", "Ctrl+Z");
        act(desk, byKey, "Edit", "Redo Rotate right", "Ctrl+Shift+Z");
        QCOMPARE(picture().pixel(39, 0), photo.pixel(0, 0));

        desk.click("btnMono");
        const QImage render = pixelsOf(desk.window.getFiltersAppliedImage());
        act(desk, byKey, "Photo", "Flatten", "Ctrl+Shift+F");
        QCOMPARE(picture(), render);
        QCOMPARE(desk.looks(), Looks());

        const float drawn = CharImage::random[0];
        act(desk, byKey, "Photo", "Re-expose", "Ctrl+E");
        QVERIFY(CharImage::random[0] != drawn);
        QVERIFY(desk.find<QAbstractButton>("chkRandomness")->isChecked());
    }

    void fileEntries_data() { photoEntries_data(); }
    void fileEntries()
    {
        QFETCH(bool, byKey);
        Desk desk(makePhoto(60, 40));
        const auto titleOfPanel = [&](const char* entry, const char* key) {
            QString title;
            QTimer watch;
            connect(&watch, &QTimer::timeout, [&] {
                auto* panel = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                if (!panel)
                    return;
                title = panel->windowTitle();
                panel->reject();
            });
            watch.start(0);
            act(desk, byKey, "File", QString::fromUtf8(entry), key);
            return title;
        };
        QCOMPARE(titleOfPanel("Open…", "Ctrl+O"), QString("Select a file to open"));
        QCOMPARE(titleOfPanel("Save…", "Ctrl+S"), QString("Save as JPEG"));
        QCOMPARE(titleOfPanel("Save Many…", "Ctrl+Shift+S"), QString("Save Many"));
        act(desk, byKey, "File", "Quit", "Ctrl+Q");
        QTRY_VERIFY(!desk.window.isVisible());
    }

    void everyLook_data() { photoEntries_data(); }
    void everyLook()
    {
        QFETCH(bool, byKey);
        Desk desk(makePhoto(60, 40));
        const std::pair<const char*, const char*> entries[] = {{"Helga", "2"}, {"Lolo", "3"}, {"Cinema", "4"},
            {"1962", "5"}, {"1974", "6"}, {"Mono", "7"}, {"Colorcross", "8"}, {"Instant", "9"}, {"Magazine", "0"},
            {"Infrared", ""}, {"Fisheye", ""}, {"Lightleak", ""}, {"Delicious", ""}, {"Arctic", ""}, {"Blowout", ""}};
        for (const auto& [name, key] : entries) {
            if (byKey && !*key)
                continue;
            act(desk, byKey, "Looks", name, key);
            QCOMPARE(desk.looks(), Looks{CharImage::getFilterFromName(name)});
            QCOMPARE(desk.breadcrumb(), QString(name));
            act(desk, byKey, "Looks", "Original", "1");
            QCOMPARE(desk.looks(), Looks());
        }
    }

    void theAppliedLooksAreChecked()
    {
        Desk desk(makePhoto(60, 40));
        const auto checked = [&] {
            QStringList names;
            for (const QAction* action : desk.window.findChildren<QAction*>())
                if (action->isChecked() && action->data().isValid())
                    names << action->text();
            return names;
        };
        QCOMPARE(checked(), QStringList("Original"));
        desk.click("btnMono");
        QCOMPARE(checked(), QStringList("Mono"));
        desk.click("btnHelga");
        QCOMPARE(checked(), QStringList("Helga"));
        desk.click("chkMultiFilter");
        desk.click("btnMono");
        QCOMPARE(checked(), QStringList({"Helga", "Mono"}));
        desk.click("btnOriginal");
        QCOMPARE(checked(), QStringList("Original"));
    }

    void helpEntries_data() { photoEntries_data(); }
    void helpEntries()
    {
        QFETCH(bool, byKey);
        Desk desk;
        QDesktopServices::setUrlHandler("file", this, "noteOpened");
        const QString document = QCoreApplication::applicationDirPath() + "/../share/lumora/help.pdf";
        QDir().mkpath(QFileInfo(document).path());
        QFile file(document);
        QVERIFY(file.open(QIODevice::WriteOnly));
        m_opened = 0;
        act(desk, byKey, "Help", "Lumora Help", "F1");
        QDesktopServices::unsetUrlHandler("file");
        QCOMPARE(m_opened, 1);
        pick(desk, "Help", "About Lumora");
        QCOMPARE(desk.sheet().value(0), QString("Lumora Mac, Version 1.0"));
    }
};

DESK_MAIN(MenuTest)
#include "MenuTest.moc"
