// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/PhotoSaver.h"
#include "tests/app/Desk.h"

#include <QApplication>
#include <QClipboard>
#include <QColorSpace>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QUrl>

/// Photos by way of the clipboard, by keys.
class ClipboardTest : public QObject {
    Q_OBJECT

private:
    static QAction* entry(Desk& desk, const QString& text)
    {
        for (QAction* action : desk.find<QMenuBar>("menubar")->actions()[1]->menu()->actions())
            if (action->text().remove('&') == text)
                return action;
        qFatal("there is no %s", qPrintable(text));
    }

    static void press(Desk& desk, Qt::Key key)
    {
        desk.window.activateWindow();
        if (!QTest::qWaitForWindowActive(&desk.window))
            qFatal("the window is not active");
        QTest::keyClick(&desk.window, key, Qt::ControlModifier);
    }

    static void copyFiles(const QList<QUrl>& files)
    {
        auto* content = new QMimeData;
        content->setUrls(files);
        content->setImageData(makePhoto(16, 16)); // its icon, as file managers do
        QApplication::clipboard()->setMimeData(content);
    }

private slots:
    void init()
    {
        setPreferences({});
        QApplication::clipboard()->clear();
    }

    void whatIsCopiedIsWhatWouldBeSaved()
    {
        Desk desk(makePhoto(300, 200));
        desk.click("btnHelga");
        desk.choose("btnImgSize", "200");
        press(desk, Qt::Key_C);
        const QImage copied = QApplication::clipboard()->image();
        QCOMPARE(copied.width(), 200);
        QCOMPARE(
            desk.find<QLabel>("noteText")->text(), QString("Copied, %1 x %2").arg(copied.width()).arg(copied.height()));
        const QString saved = desk.folder.filePath("out.jpg");
        printedBy([&] { desk.saveAs(saved); });
        QCOMPARE(encodeJpeg(copied, {}), contentsOf(QFile::encodeName(saved)));
    }

    void thereIsNothingToCopyWithoutAPhoto()
    {
        Desk desk;
        QVERIFY(!entry(desk, "Copy")->isEnabled());
        press(desk, Qt::Key_C);
        desk.window.copyPhoto();
        QVERIFY(QApplication::clipboard()->image().isNull());
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "a.png", makePhoto(60, 40))));
        QVERIFY(entry(desk, "Copy")->isEnabled());
    }

    void onlyWhatFitsCanBePasted()
    {
        Desk desk;
        const auto mayPaste = [&] { return entry(desk, "Paste")->isEnabled(); };
        QVERIFY(!mayPaste());
        QApplication::clipboard()->setText("/a.jpg");
        QVERIFY(!mayPaste());
        QApplication::clipboard()->setImage(makePhoto(4, 4));
        QVERIFY(mayPaste());
        auto* address = new QMimeData;
        address->setUrls({QUrl("https://example.org/a.jpg")});
        QApplication::clipboard()->setMimeData(address);
        QVERIFY(!mayPaste());
        auto* file = new QMimeData;
        file->setUrls({QUrl::fromLocalFile("/a.jpg")});
        QApplication::clipboard()->setMimeData(file);
        QVERIFY(mayPaste());
        QVERIFY(entry(desk, "Paste")->shortcut() == QKeySequence(Qt::CTRL | Qt::Key_V));
    }

    void aPictureOpensAsAPastedPicture()
    {
        Desk desk(makePhoto(60, 40));
        desk.click("btnMono");
        QImage picture = makePhoto(50, 70).convertToFormat(QImage::Format_ARGB32);
        picture.setPixelColor(3, 3, Qt::transparent);
        picture.setDevicePixelRatio(2);
        QApplication::clipboard()->setImage(picture);
        press(desk, Qt::Key_V);
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - Pasted picture"));
        QImage expected = makePhoto(50, 70);
        expected.setPixelColor(3, 3, Qt::white);
        QCOMPARE(pixelsOf(desk.window.getoriginalImage()), expected);
        QCOMPARE(desk.window.getoriginalImage().devicePixelRatio(), 1.0);
        QCOMPARE(desk.breadcrumb(), QString("Mono"));
        QCOMPARE(desk.window.currentFilePath(), QByteArray());
        QVERIFY(!desk.find<QMenuBar>("menubar")->actions()[1]->menu()->actions()[0]->isEnabled()); // Undo: a new photo
        desk.withPanel(
            [](QFileDialog& panel) {
                QCOMPARE(panel.findChild<QLineEdit*>("fileNameEdit")->text(), QString("Pasted picture"));
                panel.reject();
            },
            [&] { desk.click("btnSave"); });
    }

    void aPastedPictureIsShownInItsColours()
    {
        Desk desk;
        QImage picture = makePhoto(50, 70);
        picture.setColorSpace(QColorSpace::DisplayP3);
        QApplication::clipboard()->setImage(picture);
        press(desk, Qt::Key_V);
        const QImage expected = pixelsOf(picture.convertedToColorSpace(QColorSpace::SRgb));
        QVERIFY(expected != pixelsOf(picture));
        QCOMPARE(pixelsOf(desk.window.getoriginalImage()), expected);
    }

    void aPictureOfTooManyPixelsIsRefused()
    {
        Desk desk(makePhoto(60, 40));
        QApplication::clipboard()->setImage(QImage(16385, 16384, QImage::Format_Mono));
        press(desk, Qt::Key_V);
        QCOMPARE(
            desk.sheet(), QStringList({"The picture cannot be pasted.", "It has more pixels than a photo may have."}));
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - photo.png"));
        QCOMPARE(pixelsOf(desk.window.getoriginalImage()), makePhoto(60, 40));
    }

    void nothingOfThePhotoBeforeIsSavedWithIt()
    {
        Desk desk;
        QByteArray photo;
        const QString name = desk.folder.filePath("carries.jpg");
        QVERIFY(makePhoto(60, 40).save(name, "JPEG"));
        photo = contentsOf(QFile::encodeName(name))
                    .insert(2,
                        QByteArray("\xFF\xFE\0\x0A"
                                   "carried!",
                            12));
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(photo) == photo.size());
        file.close();
        QVERIFY(desk.window.loadImageFromFile(QFile::encodeName(name)));
        QApplication::clipboard()->setImage(makePhoto(50, 70));
        press(desk, Qt::Key_V);
        const QString saved = desk.folder.filePath("out.jpg");
        printedBy([&] { desk.saveAs(saved); });
        QVERIFY(!contentsOf(QFile::encodeName(saved)).contains("carried!"));
    }

    void aCopiedFileIsOpened()
    {
        Desk desk;
        const QByteArray path = writePhoto(desk.folder, "100% é.png", makePhoto(60, 40));
        copyFiles({QUrl::fromLocalFile(QFile::decodeName(path)), QUrl::fromLocalFile("/b.jpg")});
        press(desk, Qt::Key_V);
        QCOMPARE(desk.window.windowTitle(), QString::fromUtf8("Lumora - 100% é.png"));
        QCOMPARE(pixelsOf(desk.window.getoriginalImage()), makePhoto(60, 40));
        copyFiles({QUrl::fromLocalFile("/nowhere/at.all")});
        press(desk, Qt::Key_V);
        QVERIFY(desk.sheet().value(0).contains("at.all"));
        QCOMPARE(desk.window.windowTitle(), QString::fromUtf8("Lumora - 100% é.png"));
    }
};

DESK_MAIN(ClipboardTest)
#include "ClipboardTest.moc"
