// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/Preferences.h"
#include "app/state/Rules.h"
#include "photo/PhotoSaver.h"
#include "render/RenderPipeline.h"
#include "tests/TurkishLocale.h"
#include "tests/app/Desk.h"

#include <QAction>
#include <QApplication>
#include <QDirIterator>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QProgressBar>
#include <algorithm>
#include <sys/resource.h>

namespace {

const QString ownPhoto = "This is the photo that you opened. Replacing it cannot be undone.";

} // namespace

class SavingTest : public QObject {
    Q_OBJECT

private:
    static QImage decoded(const QString& path)
    {
        return pixelsOf(QImage::fromData(contentsOf(QFile::encodeName(path)), "JPEG"));
    }

    /// What saving must write: the full-size render, encoded.
    static QImage expected(Desk& desk)
    {
        const QImage render = renderPhoto(desk.window.getoriginalImage(),
            {.filterIDs = &desk.window.filterIDs,
                .cropFilter = desk.window.cropFilter,
                .borderFilter = desk.window.borderFilter});
        return pixelsOf(QImage::fromData(encodeJpeg(render, {}), "JPEG"));
    }

    /// Saves to that name while no file may have more than 2000 bytes.
    static void saveWithFilesLimited(Desk& desk, const QString& path)
    {
        const auto limit = [](rlim_t bytes) {
            rlimit size;
            getrlimit(RLIMIT_FSIZE, &size);
            size.rlim_cur = std::min(bytes, size.rlim_max);
            setrlimit(RLIMIT_FSIZE, &size);
        };
        const Answers answers(button("Replace"));
        desk.withPanel(
            [&](QFileDialog& panel) {
                limit(2000);
                typeName(panel, path);
            },
            [&] { desk.click("btnSave"); });
        limit(RLIM_INFINITY);
    }

    static QAction* entry(Desk& desk, const QString& text)
    {
        for (QAction* action : desk.window.findChildren<QAction*>())
            if (action->text().remove('&') == text)
                return action;
        qFatal("there is no %s", qPrintable(text));
    }

private slots:
    void whatThePhotoCarriedIsKeptAsChosen()
    {
        setPreferences({});
        QTemporaryDir folder;
        const QString name = folder.filePath("photo.jpg");
        QVERIFY(makePhoto(60, 40).save(name, "JPEG"));
        const QByteArray path = QFile::encodeName(name);
        QFile file(name);
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QByteArray carried("\xFF\xFE\0\x0A"
                                 "carried!",
            12),
            photo = file.readAll();
        file.seek(0);
        file.write(QByteArray(photo).insert(2, carried));
        file.close();
        for (const bool kept : {true, false, false, true}) { // the third finds what the second chose
            Desk desk;
            QVERIFY(desk.window.loadImageFromFile(path));
            QAction* const nothing = entry(desk, "Nothing");
            if (!kept && !nothing->isChecked())
                nothing->trigger();
            else if (kept && nothing->isChecked())
                entry(desk, "Everything it carried")->trigger();
            const QString saved = desk.folder.filePath("out.jpg");
            printedBy([&] { desk.saveAs(saved); });
            QCOMPARE(contentsOf(QFile::encodeName(saved)).contains(carried), kept);
            desk.window.applicationWillTerminate();
            QCOMPARE(getPreferenceInt("Saving/Kept"), kept ? 0 : 2);
            QCOMPARE(getPreferenceInt("PrefsVersion"), 2);
        }
        setPreferences("[Saving]\nKept=1\n");
        Desk desk;
        QVERIFY(entry(desk, "Everything but the place")->isChecked());
    }

    void theQualityIsAsChosen()
    {
        setPreferences({});
        const QImage photo = makePhoto(300, 200);
        for (const auto& [chosen, quality] :
            {std::pair("Best", JpegQuality::Best), std::pair("", JpegQuality::Best), // as it was remembered
                std::pair("High", JpegQuality::High), std::pair("Standard", JpegQuality::Standard)}) {
            Desk desk(photo);
            if (*chosen)
                entry(desk, chosen)->trigger();
            for (const auto& [name, one] : {std::pair("Standard", JpegQuality::Standard),
                     std::pair("High", JpegQuality::High), std::pair("Best", JpegQuality::Best)})
                QCOMPARE(entry(desk, name)->isChecked(), one == quality);
            const QString saved = desk.folder.filePath("out.jpg");
            QString panelLine;
            printedBy([&] {
                desk.withPanel(
                    [&](QFileDialog& panel) {
                        for (const QLabel* label : panel.findChildren<QLabel*>())
                            if (label->text().startsWith("JPEG"))
                                panelLine = label->text();
                        typeName(panel, saved);
                    },
                    [&] { desk.click("btnSave"); });
            });
            const QByteArray expected = encodeJpeg(pixelsOf(desk.window.getoriginalImage()), {}, {}, quality);
            QCOMPARE(contentsOf(QFile::encodeName(saved)), expected);
            const QString length = shownLength(expected.size());
            QCOMPARE(panelLine, "JPEG, whatever the ending: " + length);
            QCOMPARE(desk.find<QLabel>("noteText")->text(), "Saved out.jpg, 300 x 200, " + length);
        }
        QCOMPARE(getPreferenceInt("Saving/Quality"), 0);
        setPreferences("[Saving]\nQuality=7\n");
        Desk desk;
        QVERIFY(entry(desk, "Best")->isChecked());
    }

    void init() { setPreferences({}); }

    void aPhotoCarriesNothingOfTheOneBefore()
    {
        Desk desk;
        const auto write = [&](const char* name, const QByteArray& comment) {
            const QString path = desk.folder.filePath(name);
            if (!makePhoto(60, 40).save(path, "JPEG"))
                qFatal("cannot write %s", name);
            QByteArray photo = contentsOf(QFile::encodeName(path));
            if (!comment.isEmpty())
                photo.insert(2, QByteArray("\xFF\xFE\0", 3) + char(comment.size() + 2) + comment);
            QFile file(path);
            if (!file.open(QIODevice::WriteOnly) || file.write(photo) != photo.size())
                qFatal("cannot write %s", name);
            return QFile::encodeName(path);
        };
        const QByteArray carries = write("carries.jpg", "of the first"), another = write("another.jpg", "of another"),
                         nothing = write("nothing.jpg", {});
        const auto savedOf = [&](const QByteArray& photo) {
            if (!desk.window.loadImageFromFile(photo))
                qFatal("the photo does not open");
            desk.click("btnMono");
            const QString path = desk.folder.filePath("saved.jpg");
            QFile::remove(path);
            printedBy([&] { desk.saveAs(path); });
            return contentsOf(QFile::encodeName(path));
        };
        QVERIFY(savedOf(carries).contains("of the first"));
        const QByteArray second = savedOf(another);
        QVERIFY(second.contains("of another") && !second.contains("of the first"));
        const QByteArray third = savedOf(nothing);
        QVERIFY(third.size() > 100 && !third.contains("of another") && !third.contains("of the first"));
    }

    void aPhotoThatNoJpegHoldsIsNotSaved()
    {
        Desk desk(makePhoto(65600, 1));
        bool asked = false;
        QTimer watch;
        connect(&watch, &QTimer::timeout, [&] {
            if (auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
                asked = true;
                panel->reject();
            }
        });
        watch.start(0);
        desk.click("btnSave");
        watch.stop();
        QVERIFY(!asked);
        QCOMPARE(desk.sheet(),
            QStringList({"The photo cannot be saved.", "A JPEG cannot hold 65600 x 1 pixels. Choose a smaller size."}));
        QCOMPARE(QDir(desk.folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("photo.png"));
        QVERIFY(desk.closeSheet());
        desk.choose("btnImgSize", "1600");
        printedBy([&] { desk.saveAs(desk.folder.filePath("small.jpg")); });
        QCOMPARE(decoded(desk.folder.filePath("small.jpg")).size(), QSize(1600, 1));
    }

    void nothingBeginsWhileTheSavePanelWaits()
    {
        Desk desk(makePhoto(60, 40));
        desk.click("btnMono");
        const qint64 photo = desk.window.getoriginalImage().cacheKey();
        desk.withPanel(
            [&](QFileDialog& panel) {
                // As a screen reader does, which needs no way past the panel.
                for (const char* name : {"btnLeft", "btnRight", "btnFlatten", "btnReExpose", "btnSave", "btnLoad"})
                    desk.find<QAbstractButton>(name)->click();
                for (const char* name : {"btnHelga", "btnOriginal", "chkMultiFilter", "chkRandomness"})
                    desk.find<QAbstractButton>(name)->toggle();
                for (QAction* action : desk.window.findChildren<QAction*>())
                    if (action->text().startsWith("&Undo") || action->text().startsWith("Rotate"))
                        action->trigger();
                QVERIFY(!desk.window.loadImageFromFile(QFile::encodeName(desk.folder.filePath("photo.png"))));
                QVERIFY(panel.isVisible());
                panel.reject();
            },
            [&] { desk.click("btnSave"); });
        QCOMPARE(desk.window.getoriginalImage().cacheKey(), photo);
        QCOMPARE(desk.looks(), (std::vector<int>{5}));
        QCOMPARE(desk.pressedButtons(), QStringList("Mono"));
        QVERIFY(!desk.find<QAbstractButton>("chkMultiFilter")->isChecked());
        QVERIFY(!desk.find<QAbstractButton>("chkRandomness")->isChecked());
    }

    void savingWritesTheFullSizeRender()
    {
        Desk desk;
        desk.window.displayRes = 800;
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "a.png", makePhoto(1200, 900))));
        desk.choose("btnBorders", "None");
        desk.click("btnMono");
        const QString path = desk.folder.filePath("out.jpg");
        const QByteArray printed = printedBy([&] { desk.saveAs(path); });
        QVERIFY(printed.contains("downsizing image to -1, ended with 1200.000000 900.000000\n"));
        QCOMPARE(decoded(path), expected(desk));
    }

    void savingScalesToTheSmallestSize()
    {
        Desk desk(makePhoto(300, 200));
        desk.choose("btnImgSize", "100");
        const QString path = desk.folder.filePath("small.jpg");
        const QByteArray printed = printedBy([&] { desk.saveAs(path); });
        QVERIFY(printed.contains("downsizing image to 100, ended with 100.000000 66.666667\n"));
        QCOMPARE(decoded(path).size(), QSize(100, 67));
    }

    void savingScalesToTheChosenSizeAlsoUpwards()
    {
        Desk desk(makePhoto(640, 480));
        desk.choose("btnImgSize", "1000");
        const QString path = desk.folder.filePath("large.jpg");
        QByteArray printed = printedBy([&] { desk.saveAs(path); });
        QVERIFY(printed.contains("downsizing image to 1000, ended with 1000.000000 750.000000\n"));
        QCOMPARE(decoded(path).size(), QSize(1000, 750));

        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "b.png", makePhoto(300, 200))));
        desk.choose("btnImgSize", "800");
        printed = printedBy([&] { desk.saveAs(path + "2.jpg"); });
        QVERIFY(printed.contains("downsizing image to 800, ended with 800.000000 533.333333\n"));
        QCOMPARE(decoded(path + "2.jpg").size(), QSize(800, 533));
    }

    void savingPrintsTheSameLineInEveryCountry()
    {
        Desk desk(makePhoto(300, 200));
        desk.choose("btnImgSize", "800");
        const TurkishLocale turkish;
        QVERIFY(turkish.isSet());
        const QByteArray printed = printedBy([&] { desk.saveAs(desk.folder.filePath("out.jpg")); });
        QVERIFY(printed.contains("downsizing image to 800, ended with 800.000000 533.333333\n"));
    }

    void aSavedFileIsToldOfUntilSomethingElseHappens()
    {
        Desk desk(makePhoto(300, 200));
        const QString path = desk.folder.filePath("over Helga.jpg");
        const auto* line = desk.find<QLabel>("noteText");
        const auto save = [&] {
            QFile::remove(path); // so that the panel does not ask
            printedBy([&] { desk.saveAs(path); });
        };
        QVERIFY(!line->isVisible());
        save();
        const QString bytes =
            QLocale().formattedDataSize(contentsOf(QFile::encodeName(path)).size(), 0, QLocale::DataSizeSIFormat);
        QVERIFY(line->isVisible());
        QCOMPARE(line->text(), "Saved over Helga.jpg, 300 x 200, " + bytes);
        desk.click("btnMono");
        QVERIFY(!line->isVisible());
        save();
        QVERIFY(line->isVisible());
        desk.window.activateWindow(); // after the panel
        QVERIFY(QTest::qWaitForWindowActive(&desk.window));
        QTest::keyClick(&desk.window, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!line->isVisible());
        save();
        desk.choose("btnImgSize", "1600");
        QVERIFY(!line->isVisible());
        save();
        QVERIFY(line->text().contains(", 1600 x 1067, "));
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "b.png", makePhoto(30, 20))));
        QVERIFY(!line->isVisible());
    }

    void aSaveThatFailsTakesTheWordsOfTheOneBefore()
    {
        Desk desk(makePhoto(600, 400));
        printedBy([&] { desk.saveAs(desk.folder.filePath("out.jpg")); });
        QVERIFY(desk.find<QLabel>("noteText")->isVisible());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("second.jpg: The file is larger than may be written"));
        printedBy([&] { saveWithFilesLimited(desk, desk.folder.filePath("second.jpg")); });
        QVERIFY(!desk.find<QLabel>("noteText")->isVisible());
    }

    void thePanelStartsInThePhotosFolder()
    {
        Desk desk(makePhoto(60, 40));
        QTemporaryDir other;
        QVERIFY(desk.window.loadImageFromFile(writePhoto(other, "b.png", makePhoto(60, 40))));
        desk.withPanel(
            [&](QFileDialog& panel) {
                QCOMPARE(panel.directory().canonicalPath(), QDir(other.path()).canonicalPath());
                panel.reject();
            },
            [&] { desk.click("btnSave"); });
    }

    void theSavePanelProposesTheNameAndTheBytesAreAlwaysJpeg()
    {
        Desk desk(makePhoto(60, 40));
        desk.withPanel(
            [&](QFileDialog& panel) {
                QCOMPARE(panel.acceptMode(), QFileDialog::AcceptSave);
                QCOMPARE(panel.findChild<QLineEdit*>("fileNameEdit")->text(), QString("photo.png"));
                QVERIFY(panel.nameFilters().first().endsWith("(*.jpg *.jpeg *.gif *.png *.psd *.tga)"));
                typeName(panel, desk.folder.filePath("picture.tga"));
            },
            [&] { desk.click("btnSave"); });
        QVERIFY(contentsOf(QFile::encodeName(desk.folder.filePath("picture.tga"))).startsWith("\xff\xd8\xff"));
    }

    void aCancelledPanelWritesNothing()
    {
        Desk desk(makePhoto(2600, 1700));
        desk.withPanel(
            [&](QFileDialog& panel) {
                QVERIFY(!desk.find<QProgressBar>("progressBar")->isVisible()); // nothing is worked on
                QTest::keyClick(&panel, Qt::Key_Escape);
            },
            [&] { desk.click("btnSave"); });
        QCOMPARE(QDir(desk.folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("photo.png"));
    }

    void nothingElseIsWritten()
    {
        const auto written = [] {
            QStringList files;
            for (QDirIterator it(configFolder(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
                 it.hasNext();)
                files << it.next();
            return files;
        };
        Desk desk(makePhoto(60, 40));
        desk.withPanel([&](QFileDialog& panel) { typeName(panel, desk.folder.filePath("photo.png")); },
            [&] { desk.click("btnLoad"); });
        desk.saveAs(desk.folder.filePath("out.jpg"));
        QCOMPARE(written(), QStringList(preferencesFile())); // with the recent photos
        desk.window.applicationWillTerminate();
        QCOMPARE(written(), QStringList(preferencesFile()));
        QCOMPARE(QDir(desk.folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList({"out.jpg", "photo.png"}));
    }

    void aFailedWriteIsLoggedAndLeavesTheOldFile()
    {
        Desk desk(makePhoto(600, 400));
        const QString path = desk.folder.filePath("kept.jpg");
        QFile kept(path);
        QVERIFY(kept.open(QIODevice::WriteOnly) && kept.write("the old one") > 0);
        kept.close();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("kept.jpg: The file is larger than may be written"));
        const QByteArray printed = printedBy([&] { saveWithFilesLimited(desk, path); });
        QVERIFY(printed.contains("\ndidn't work!\n"));
        QCOMPARE(contentsOf(QFile::encodeName(path)), QByteArray("the old one"));
        QCOMPARE(
            QDir(desk.folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList({"kept.jpg", "photo.png"}));
        QCOMPARE(desk.sheet(), QStringList());
    }

    void theOpenPhotosOwnFileCanBeReplacedAndOpenedAgain()
    {
        Desk desk(makePhoto(60, 40));
        const QString path = desk.folder.filePath("photo.png");
        desk.click("btnMono");
        Answers answers(button("Replace"));
        desk.saveAs(path);
        QCOMPARE(answers.asked, QStringList(ownPhoto));
        QCOMPARE(pixelsOf(desk.window.getoriginalImage()), makePhoto(60, 40));
        QCOMPARE(decoded(path), expected(desk));
        QVERIFY(desk.window.loadImageFromFile(QFile::encodeName(path)));
    }
};

DESK_MAIN(SavingTest)
#include "SavingTest.moc"
