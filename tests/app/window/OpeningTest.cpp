// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/Desk.h"

#include <QApplication>
#include <QFileOpenEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <fcntl.h>
#include <unistd.h>

class OpeningTest : public QObject {
    Q_OBJECT

private:
    /// Of a file of any name.
    static QByteArray firstBytesOf(const QByteArray& path)
    {
        QFile file;
        const int descriptor = open(path.constData(), O_RDONLY);
        return descriptor >= 0 && file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)
            ? file.read(3)
            : QByteArray();
    }

private slots:
    void init() { setPreferences({}); }

    void loadingShowsThePhotoAndItsName()
    {
        Desk desk;
        const QImage photo = makePhoto(64, 48);
        const QByteArray path = writePhoto(desk.folder, "100%s [*] é.png", photo);
        QTest::ignoreMessage(QtInfoMsg, path.constData());
        QVERIFY(desk.window.loadImageFromFile(path));
        QCOMPARE(desk.window.windowTitle(), QString::fromUtf8("Lumora - 100%s [*][*] é.png"));
        QCOMPARE(desk.find<DragDropImageView>("mainImageView")->image().size(), photo.size());
        QCOMPARE(pixelsOf(desk.find<DragDropImageView>("mainImageView")->image()), photo);
    }

    void namesOfAnyBytesOpen_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char* name : {"two words.png", "100%n%s.png", "two\nlines.png", "\xd0\xba\xd0\xbe\xd1\x82.png",
                 "\xff\xfe.png", "5\"x7\" print.png", "-rf.png", ".png"})
            QTest::newRow(QByteArray(name).toPercentEncoding().constData()) << QByteArray(name);
    }

    void namesOfAnyBytesOpen()
    {
        QFETCH(QByteArray, name);
        Desk desk;
        const QByteArray plain = writePhoto(desk.folder, "plain", makePhoto(30, 20));
        const QByteArray path = QFile::encodeName(desk.folder.path()) + '/' + name;
        QCOMPARE(rename(plain.constData(), path.constData()), 0);
        QVERIFY(desk.window.loadImageFromFile(path));
        QVERIFY(desk.window.windowTitle().endsWith(QLatin1String("png")));
        QVERIFY(!desk.window.windowTitle().contains('\n'));
        // Saved under the proposed name into the folder of the photo: what the panel shows is written, and nothing
        // else.
        QByteArray saved = QFile::encodeName(desk.folder.path()) + '/';
        const Answers answers(button("Replace"));
        desk.withPanel(
            [&](QFileDialog& panel) {
                const QString proposed = panel.findChild<QLineEdit*>("fileNameEdit")->text();
                saved += QFile::encodeName(proposed);
                typeName(panel, desk.folder.path() + '/' + proposed);
            },
            [&] { desk.click("btnSave"); });
        const bool isShownAsItIs =
            QString::fromUtf8(name).toUtf8() == name && !name.contains('\n') && !name.contains('"');
        QCOMPARE(saved == path, isShownAsItIs);
        QCOMPARE(answers.asked.size(), isShownAsItIs ? 1 : 0);
        QCOMPARE(firstBytesOf(saved), QByteArray("\xff\xd8\xff"));
        QCOMPARE(firstBytesOf(path), QByteArray(isShownAsItIs ? "\xff\xd8\xff" : "\x89PN"));
        QCOMPARE(unlink(path.constData()), 0); // the folder cannot name them all when it goes
    }

    void anUnreadableFileChangesNothing()
    {
        Desk desk(makePhoto(60, 40));
        desk.click("btnHelga");
        const QImage original = desk.window.getoriginalImage(), render = desk.window.getFiltersAppliedImage();
        const QString title = desk.window.windowTitle();
        QCOMPARE(desk.sheet(), QStringList());
        QFile text(desk.folder.filePath("notes.jpg"));
        QVERIFY(text.open(QIODevice::WriteOnly) && text.write("not a photo") > 0);
        text.close();
        for (const QByteArray& path : {QFile::encodeName(text.fileName()), QByteArray("/nowhere/at.all"),
                 QFile::encodeName(desk.folder.path()), QByteArray()})
            QVERIFY2(!desk.window.loadImageFromFile(path) && desk.closeSheet(), path.constData());
        QCOMPARE(desk.window.getoriginalImage(), original);
        QCOMPARE(desk.window.getFiltersAppliedImage().cacheKey(), render.cacheKey());
        QCOMPARE(desk.window.windowTitle(), title);
        QCOMPARE(desk.looks(), (std::vector<int>{1}));
    }

    void theDesktopHearsOfARefusalInASheet()
    {
        Desk desk(makePhoto(60, 40));
        QFile text(desk.folder.filePath("<b>notes.jpg"));
        QVERIFY(text.open(QIODevice::WriteOnly) && text.write("not a photo") > 0);
        text.close();
        QFileOpenEvent open(text.fileName());
        QCoreApplication::sendEvent(qApp, &open);
        QCOMPARE(desk.sheet().size(), 2);
        QVERIFY(desk.sheet()[0].contains("<b>notes.jpg"));
        QVERIFY(desk.sheet()[1].contains("not a picture"));
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - photo.png"));
    }

    void thereIsOneSheetAtMostAndWhatComesNextClosesIt()
    {
        Desk desk;
        const auto sheets = [&] {
            int shown = 0;
            for (const auto* box : desk.window.findChildren<QMessageBox*>())
                shown += box->isVisible();
            return shown;
        };
        for (const char* path : {"/nowhere/1.jpg", "/nowhere/2.jpg", "/nowhere/3.jpg"})
            QVERIFY(!desk.window.loadImageFromFile(path));
        QCOMPARE(sheets(), 1);
        QVERIFY(desk.sheet()[0].contains("3.jpg"));
        QCOMPARE(QApplication::activeModalWidget(), nullptr); // or the system would let nothing be dropped
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "good.png", makePhoto(60, 40))));
        QCOMPARE(sheets(), 0);
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - good.png"));
        desk.window.openAbout();
        QVERIFY(!desk.window.loadImageFromFile("/nowhere/4.jpg"));
        QCOMPARE(sheets(), 1);
        desk.window.openAbout();
        QCOMPARE(sheets(), 1);
        QCOMPARE(desk.sheet()[0], QString("Lumora Mac, Version 1.0"));
    }

    void whatTheDesktopSendsWhileASavePanelWaitsIsOpenedAfterIt()
    {
        Desk desk(makePhoto(60, 40));
        const auto send = [&](const char* name) {
            QFileOpenEvent open(QFile::decodeName(writePhoto(desk.folder, name, makePhoto(30, 20))));
            QCoreApplication::sendEvent(qApp, &open);
        };
        desk.withPanel(
            [&](QFileDialog& panel) {
                send("first.png");
                send("second.png");
                QCOMPARE(desk.window.windowTitle(), QString("Lumora - photo.png"));
                typeName(panel, desk.folder.filePath("saved.jpg"));
            },
            [&] { desk.click("btnSave"); });
        QCOMPARE(QImage(desk.folder.filePath("saved.jpg")).size(), QSize(60, 40));
        QTRY_COMPARE(desk.window.windowTitle(), QString("Lumora - second.png"));
        QCOMPARE(desk.window.getoriginalImage().size(), QSize(30, 20));
    }

    void theDesktopOpensAFile()
    {
        Desk desk;
        QFileOpenEvent open(QFile::decodeName(writePhoto(desk.folder, "sent.png", makePhoto(60, 40))));
        QCoreApplication::sendEvent(qApp, &open);
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - sent.png"));
        QCOMPARE(desk.sheet(), QStringList());
    }

    void theProgramsFileComesAfterTheWindow()
    {
        QTemporaryDir folder;
        const QByteArray path = writePhoto(folder, "argument.png", makePhoto(60, 40));
        MainWindowController window;
        window.openFileWhenShown(path);
        QCoreApplication::processEvents();
        QVERIFY(window.getoriginalImage().isNull());
        window.show();
        QTRY_COMPARE(window.windowTitle(), QString("Lumora - argument.png"));
    }

    void theOpenPanelOffersTheSixTypesAndOpensOne()
    {
        Desk desk;
        writePhoto(desk.folder, "one.png", makePhoto(60, 40));
        desk.withPanel(
            [&](QFileDialog& panel) {
                QCOMPARE(panel.windowTitle(), QString("Select a file to open"));
                QVERIFY(qAbs(panel.windowOpacity() - 0.95) < 0.005); // the platform keeps 8 bits
                QCOMPARE(panel.fileMode(), QFileDialog::ExistingFile);
                QVERIFY(panel.nameFilters().first().endsWith("(*.jpg *.jpeg *.gif *.png *.psd *.tga)"));
                QCOMPARE(panel.selectedNameFilter(), panel.nameFilters().first());
                QCOMPARE(panel.nameFilters().size(), qsizetype(2));
                QVERIFY(panel.nameFilters().last().startsWith("All photos (")
                    && panel.nameFilters().last().contains("*.heic"));
                typeName(panel, desk.folder.filePath("one.png"));
            },
            [&] { desk.click("btnLoad"); });
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - one.png"));

        // The next panel stands where this one was left, also the other kind.
        desk.withPanel(
            [&](QFileDialog& panel) {
                QCOMPARE(panel.directory().canonicalPath(), QDir(desk.folder.path()).canonicalPath());
                panel.reject();
            },
            [&] { desk.click("btnSave"); });
        desk.withPanel(
            [&](QFileDialog& panel) {
                QCOMPARE(panel.directory().canonicalPath(), QDir(desk.folder.path()).canonicalPath());
                panel.reject();
            },
            [&] { desk.click("btnLoad"); });
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - one.png"));
    }

    void aRefusedFileFromTheOpenPanelGetsASheet()
    {
        Desk desk;
        QFile empty(desk.folder.filePath("empty.jpg"));
        QVERIFY(empty.open(QIODevice::WriteOnly));
        empty.close();
        desk.withPanel([&](QFileDialog& panel) { typeName(panel, empty.fileName()); }, [&] { desk.click("btnLoad"); });
        QVERIFY(desk.sheet().size() == 2 && desk.sheet()[0].contains("empty.jpg"));
        QCOMPARE(desk.sheet()[1], QString("The file is empty."));
    }
};

DESK_MAIN(OpeningTest)
#include "OpeningTest.moc"
