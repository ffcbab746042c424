// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/panels/SaveManyPanel.h"
#include "tests/app/Desk.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <functional>
#include <memory>

using namespace lumora;

/// Many photos by the real panel and real processes.
class SaveManyTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    QStringList m_photos;

    QString out() const { return m_folder->filePath("out"); }
    QStringList outputs() const { return QDir(out()).entryList(QDir::Files | QDir::Hidden); }

    void makePhotos(int count, int side)
    {
        for (int i = 0; i < count; i++) {
            m_photos << m_folder->filePath(QStringLiteral("photo %1.png").arg(i, 3, 10, QLatin1Char('0')));
            QVERIFY(makePhoto(side + i, side).save(m_photos.last(), "PNG"));
        }
    }

    std::unique_ptr<SaveManyPanel> panel()
    {
        GrowArray<int> looks;
        looks.add(Filter::mono);
        const ManyChoices choices = {
            looks, 100, "By Filter", "By Filter", "Original", {}, Kept::Everything, JpegQuality::Standard};
        auto made =
            std::make_unique<SaveManyPanel>(nullptr, choices, "Mono", [this](QWidget&, SaveManyPanel::Asked asked) {
                return asked == SaveManyPanel::Asked::Photos        ? m_photos
                    : asked == SaveManyPanel::Asked::FolderOfPhotos ? QStringList(m_folder->path())
                                                                    : QStringList(out());
            });
        made->show();
        return made;
    }

    static QPushButton& button(QWidget& panel, const QString& text)
    {
        for (auto* found : panel.findChildren<QPushButton*>())
            if (found->text().remove('&') == text)
                return *found;
        qFatal("there is no %s", qPrintable(text));
    }
    static void press(QWidget& panel, const QString& text) { QTest::mouseClick(&button(panel, text), Qt::LeftButton); }
    static QStringList words(QWidget& panel)
    {
        QStringList texts;
        for (const auto* label : panel.findChildren<QLabel*>())
            texts += label->text().split('\n');
        return texts;
    }
    static bool hasEnded(SaveManyPanel& panel)
    {
        return QTest::qWaitFor([&] { return !panel.isGoingOn(); }, 60000);
    }
    void start(SaveManyPanel& panel)
    {
        press(panel, "Choose Photos…");
        press(panel, "Save Into…");
        press(panel, "Save Them");
    }
    void verifyWhole()
    {
        for (const QString& output : outputs()) {
            const QByteArray jpeg = contentsOf(QFile::encodeName(out() + '/' + output));
            QVERIFY2(jpeg.startsWith("\xff\xd8") && jpeg.endsWith("\xff\xd9"), qPrintable(output));
        }
    }

    static QAction& action(Desk& desk, const QString& text)
    {
        for (QAction* found : desk.window.findChildren<QAction*>())
            if (found->text() == text)
                return *found;
        qFatal("there is no %s", qPrintable(text));
    }

    /// Has a window save a photo under Lolo and what is chosen: by itself, and as one of many. Gives the file, which
    /// has that name and is the same either way.
    QByteArray savedByTheWindow(const std::function<void(Desk&)>& choose, const QString& words, const QString& name)
    {
        setPreferences({});
        QDir(out()).removeRecursively();
        QDir().mkpath(out());
        Desk desk(makePhoto(90, 60));
        desk.window.pressFilterButton(Filter::lolo);
        choose(desk);
        printedBy([&] { desk.saveAs(desk.folder.filePath("one.jpg")); });

        bool done = false, told = false;
        QTimer watch;
        connect(&watch, &QTimer::timeout, [&] {
            auto* many = qobject_cast<SaveManyPanel*>(QApplication::activeModalWidget());
            if (!many)
                return;
            watch.stop();
            const auto answer = [&](const QString& text, const QString& path) {
                desk.withPanel([&](QFileDialog& files) { typeName(files, path); }, [&] { press(*many, text); });
            };
            told = this->words(*many).contains(words);
            answer("Choose Photos…", desk.folder.filePath("photo.png"));
            answer("Save Into…", out());
            press(*many, "Save Them");
            done = hasEnded(*many);
            press(*many, "Close");
        });
        watch.start(0);
        action(desk, "Save &Many…").trigger();
        if (!done || !told || outputs() != QStringList(name))
            qFatal("it saves %s and tells other words than %s", qPrintable(outputs().join('|')), qPrintable(words));
        const QByteArray file = contentsOf(QFile::encodeName(out() + '/' + name));
        if (file.isEmpty() || file != contentsOf(QFile::encodeName(desk.folder.filePath("one.jpg"))))
            qFatal("the files differ: %s", qPrintable(words));
        return file;
    }

private slots:
    void init()
    {
        setPreferences({});
        m_folder = std::make_unique<QTemporaryDir>();
        m_photos.clear();
        QVERIFY(QDir().mkpath(out()));
        SaveManyPanel::setProgram(RENDER_PROGRAM);
    }

    void allAreSavedAndTheRestIsTold()
    {
        makePhotos(5, 60);
        QFile broken(m_photos[3]);
        QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("\x89PNG\r\n\x1a\nbroken") > 0);
        broken.close();
        QFile there(out() + "/photo 001 Mono.jpg");
        QVERIFY(there.open(QIODevice::WriteOnly) && there.write("another's") > 0);
        there.close();

        const auto many = panel();
        QVERIFY(!button(*many, "Save Them").isEnabled());
        press(*many, "Choose Photos…");
        QVERIFY(words(*many).contains("photo 000.png and others: 5 photos"));
        QVERIFY(!button(*many, "Save Them").isEnabled());
        press(*many, "Save Into…");
        press(*many, "Save Them");
        QVERIFY(many->isGoingOn());
        QVERIFY(!button(*many, "Save Them").isEnabled() && !button(*many, "Choose Photos…").isEnabled());
        QVERIFY(hasEnded(*many));
        QCOMPARE(outputs(),
            QStringList({"photo 000 Mono.jpg", "photo 001 Mono.jpg", "photo 002 Mono.jpg", "photo 004 Mono.jpg"}));
        QCOMPARE(contentsOf(QFile::encodeName(there.fileName())), QByteArray("another's"));
        for (const char* line : {"Saved: 3", "Already there: 1", "Not saved: 1"})
            QVERIFY2(words(*many).contains(line), line);
        auto* remarks = many->findChild<QListWidget*>();
        QVERIFY(remarks->isVisible());
        QCOMPARE(remarks->count(), 1);
        QVERIFY(remarks->item(0)->text().startsWith("photo 003.png: "));
        QCOMPARE(many->findChild<QProgressBar*>()->value(), 5);
        bool picture = false;
        for (const auto* label : many->findChildren<QLabel*>())
            picture = picture || !label->pixmap().isNull();
        QVERIFY(picture);
        press(*many, "Close");
        QVERIFY(!many->isVisible());
    }

    void aFolderStandsForItsPhotos()
    {
        makePhotos(2, 30);
        const auto many = panel();
        press(*many, "Choose a Folder…");
        press(*many, "Save Into…");
        press(*many, "Save Them");
        QVERIFY(hasEnded(*many));
        QCOMPARE(outputs(), QStringList({"photo 000 Mono.jpg", "photo 001 Mono.jpg"}));
    }

    void cancelLeavesWholeFilesAndAnotherRunGoesOn()
    {
        makePhotos(40, 300);
        const auto many = panel();
        start(*many);
        QVERIFY(QTest::qWaitFor([&] { return many->findChild<QProgressBar*>()->value() > 0; }, 60000));
        QVERIFY(words(*many).contains(QStringLiteral("%1 of 40").arg(many->findChild<QProgressBar*>()->value())));
        QVERIFY(words(*many).join('\n').contains("Time left: 0:"));
        press(*many, "Cancel");
        QVERIFY(hasEnded(*many));
        QVERIFY(words(*many).contains("Cancelled. What was saved stays."));
        const auto saved = outputs().size();
        QVERIFY(saved > 0 && saved < 40);
        QVERIFY(words(*many).contains(QStringLiteral("Saved: %1").arg(saved)));
        verifyWhole();
        press(*many, "Save Them");
        QVERIFY(hasEnded(*many));
        QCOMPARE(outputs().size(), 40);
        QVERIFY(words(*many).contains(QStringLiteral("Already there: %1").arg(saved)));
        verifyWhole();
    }

    void escapeCancelsToo()
    {
        makePhotos(40, 300);
        const auto many = panel();
        start(*many);
        QTest::keyClick(many.get(), Qt::Key_Escape);
        QVERIFY(many->isVisible());
        QVERIFY(hasEnded(*many));
        QVERIFY(outputs().size() < 40);
        QTest::keyClick(many.get(), Qt::Key_Escape);
        QVERIFY(!many->isVisible());
    }

    void nothingOutlivesThePanel()
    {
        makePhotos(40, 300);
        {
            const auto many = panel();
            start(*many);
            QVERIFY(QTest::qWaitFor([&] { return many->findChild<QProgressBar*>()->value() > 0; }, 60000));
        }
        const auto saved = outputs();
        QVERIFY(saved.size() < 40);
        verifyWhole();
    }

    void nothingBeginsUnderThePanel()
    {
        Desk desk(makePhoto(90, 60));
        desk.click("btnMono");
        const qint64 photo = desk.window.getoriginalImage().cacheKey(), render = desk.render();
        bool waited = false;
        QTimer::singleShot(0, &desk.window, [&] {
            auto* many = qobject_cast<SaveManyPanel*>(QApplication::activeModalWidget());
            waited = many != nullptr;
            desk.find<QAbstractButton>("btnHelga")->toggle(); // as a screen reader does
            desk.find<QAbstractButton>("btnRight")->click();
            desk.find<QAbstractButton>("btnFlatten")->click();
            action(desk, "&Next photo").trigger();
            desk.find<QSlider>("sldStrength")->setValue(40);
            if (many)
                many->reject();
        });
        action(desk, "Save &Many…").trigger();
        QVERIFY(waited);
        QVERIFY(!desk.find<QLabel>("noteText")->isVisible()); // nor says that there is no other photo
        QCOMPARE(desk.looks(), std::vector<int>{5});
        QCOMPARE(desk.pressedButtons(), QStringList("Mono"));
        QCOMPARE(desk.find<QSlider>("sldStrength")->value(), 100);
        QCOMPARE(desk.render(), render);
        QCOMPARE(desk.window.getoriginalImage().cacheKey(), photo);
        desk.click("btnHelga"); // nothing waits any more
        QCOMPARE(desk.looks(), std::vector<int>{1});
    }

    void aProgramThatIsMissingIsTold()
    {
        makePhotos(1, 30);
        SaveManyPanel::setProgram("/nowhere/lumora-render");
        const auto many = panel();
        start(*many);
        QTRY_VERIFY(words(*many).contains(
            "The program that renders photos cannot be started. Lumora is not completely installed."));
        QVERIFY(button(*many, "Save Them").isEnabled());
    }

    /// To the byte as it saves the one photo, and told in words.
    void eachChoiceThatIsOnReachesTheFiles()
    {
        const QString plain = "Lolo · Strength: 100 % · Crop: By Filter · Border: By Filter · Size: Original · "
                              "Quality: Standard";
        const QByteArray plainFile = savedByTheWindow([](Desk&) {}, plain, "photo Lolo.jpg");
        const struct {
            std::function<void(Desk&)> choose;
            const char *before, *after; ///< the word that changes
            const char* name = "photo Lolo.jpg";
        } choices[] = {
            {[](Desk& desk) {
                 desk.click("chkMultiFilter");
                 desk.window.pressFilterButton(Filter::mono);
             },
                "Lolo", "Lolo > Mono", "photo Lolo Mono.jpg"},
            {[](Desk& desk) { desk.find<QSlider>("sldStrength")->setValue(40); }, "100 %", "40 %"},
            {[](Desk& desk) { desk.choose("btnCropping", "4x3"); }, "Crop: By Filter", "Crop: 4x3"},
            {[](Desk& desk) { desk.choose("btnBorders", "Rounded"); }, "Border: By Filter", "Border: Rounded"},
            {[](Desk& desk) { desk.choose("btnImgSize", "100"); }, "Original", "100"},
            {[](Desk& desk) { action(desk, "&Best").trigger(); }, "Standard", "Best"},
            {[](Desk& desk) {
                 desk.click("chkRandomness");
                 desk.click("btnReExpose");
             },
                "", ""},
        };
        for (const auto& choice : choices) {
            const QString words = *choice.before ? QString(plain).replace(choice.before, choice.after) : plain;
            QVERIFY2(savedByTheWindow(choice.choose, words, choice.name) != plainFile, qPrintable(words));
        }
    }
};

DESK_MAIN(SaveManyTest)
#include "SaveManyTest.moc"
