// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/panels/SavePanel.h"
#include "tests/app/Desk.h"

#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStorageInfo>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString ownPhoto = "This is the photo that you opened. Replacing it cannot be undone.";

/// The line of the panel that begins so and is shown; empty without one.
QString lineOf(const QFileDialog& panel, const QString& begin)
{
    for (const QLabel* label : panel.findChildren<QLabel*>())
        if (label->isVisible() && label->text().startsWith(begin))
            return label->text();
    return {};
}

QByteArray fileOf(const Desk& desk, const QString& name)
{
    return contentsOf(QFile::encodeName(desk.folder.filePath(name)));
}

bool isJpeg(const QByteArray& data)
{
    return data.startsWith("\xff\xd8\xff");
}

QStringList filesOf(const Desk& desk)
{
    return QDir(desk.folder.path()).entryList(QDir::Files | QDir::Hidden);
}

void pressDefault(QMessageBox& question)
{
    QTest::keyClick(&question, Qt::Key_Return);
}

} // namespace

class SavePanelTest : public QObject {
    Q_OBJECT

private slots:
    void init() { setPreferences({}); }

    void anEndingThatIsNotOfferedGetsJpg_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("written");
        QTest::newRow("none") << "no ending"
                              << "no ending.jpg";
        QTest::newRow("another kind") << "holiday.webp"
                                      << "holiday.webp.jpg";
        QTest::newRow("text") << "notes.txt"
                              << "notes.txt.jpg";
        QTest::newRow("dots") << "v1.2 of it"
                              << "v1.2 of it.jpg";
        QTest::newRow("letters alone") << "ajpg"
                                       << "ajpg.jpg";
        for (const char* name : {"a.jpg", "a.jpeg", "a.gif", "a.png", "a.psd", "a.tga", "a.JPG", "a.Png"})
            QTest::newRow(name) << name << name;
    }
    void anEndingThatIsNotOfferedGetsJpg()
    {
        QFETCH(QString, typed);
        QFETCH(QString, written);
        Desk desk(makePhoto(60, 40));
        printedBy([&] { desk.saveAs(desk.folder.filePath(typed)); });
        QVERIFY(isJpeg(fileOf(desk, written)));
        QCOMPARE(filesOf(desk).size(), 2);
    }

    void returnOnTheProposedNameTouchesNoFile()
    {
        Desk desk;
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "holiday.webp", makePhoto(60, 40))));
        const QByteArray photo = fileOf(desk, "holiday.webp");
        printedBy([&] {
            desk.withPanel(
                [&](QFileDialog& panel) { QTest::keyClick(&panel, Qt::Key_Return); }, [&] { desk.click("btnSave"); });
        });
        QCOMPARE(fileOf(desk, "holiday.webp"), photo);
        QVERIFY(isJpeg(fileOf(desk, "holiday.webp.jpg")));
    }

    void aProposedNameWithQuotationMarksIsOneName()
    {
        Desk desk;
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "a \"b\" c.png", makePhoto(60, 40))));
        printedBy([&] {
            desk.withPanel(
                [&](QFileDialog& panel) { QTest::keyClick(&panel, Qt::Key_Return); }, [&] { desk.click("btnSave"); });
        });
        QVERIFY(isJpeg(fileOf(desk, "a 'b' c.png")));
    }

    void thePanelSaysWhatIsWritten()
    {
        QLocale::setDefault(QLocale::English); // not the desktop's
        const LookList looks;
        for (const auto& [bytes, length] : {std::pair(412'345, "412 kB"), std::pair(2'123'456, "2.1 MB")}) {
            SavePanel panel(nullptr, bytes, "photo.png", looks);
            panel.show();
            QCOMPARE(lineOf(panel, "JPEG"), QString("JPEG, whatever the ending: %1").arg(length));
        }
    }

    void theOpenPhotoIsKnownByEveryName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("beside");
        QTest::newRow("its own") << "photo.png"
                                 << "photo Mono.jpg";
        QTest::newRow("symbolic link") << "soft.png"
                                       << "soft Mono.jpg";
        QTest::newRow("hard link") << "hard.png"
                                   << "hard Mono.jpg";
        QTest::newRow("through folders") << "sub/../photo.png"
                                         << "photo Mono.jpg";
        QTest::newRow("linked folder") << "sub/same/photo.png"
                                       << "photo Mono.jpg";
        QTest::newRow("another ending") << "soft"
                                        << "soft Mono.jpg";
    }
    void theOpenPhotoIsKnownByEveryName()
    {
        QFETCH(QString, name);
        QFETCH(QString, beside);
        Desk desk(makePhoto(60, 40));
        const QDir folder(desk.folder.path());
        QVERIFY(folder.mkdir("sub") && QFile::link("..", folder.filePath("sub/same")));
        QVERIFY(QFile::link("photo.png", folder.filePath("soft.png")));
        QVERIFY(QFile::link("photo.png", folder.filePath("soft.jpg")));
        QVERIFY(link(qPrintable(folder.filePath("photo.png")), qPrintable(folder.filePath("hard.png"))) == 0);
        const QByteArray photo = fileOf(desk, "photo.png");
        desk.click("btnMono");
        const Answers answers(pressDefault);
        printedBy([&] { desk.saveAs(folder.filePath(name)); });
        QCOMPARE(answers.asked, QStringList(ownPhoto));
        QCOMPARE(fileOf(desk, "photo.png"), photo);
        QVERIFY(isJpeg(fileOf(desk, beside)));
        QVERIFY(desk.find<QLabel>("noteText")->text().startsWith("Saved " + beside + ", "));
    }

    void thePhotoIsKnownThroughARelativePath()
    {
        Desk desk;
        writePhoto(desk.folder, "photo.png", makePhoto(60, 40));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(desk.folder.path()));
        const auto back = qScopeGuard([&] { QDir::setCurrent(before); });
        QVERIFY(desk.window.loadImageFromFile("photo.png"));
        const Answers answers(button("Keep both"));
        printedBy([&] { desk.saveAs("photo.png"); });
        QCOMPARE(answers.asked, QStringList(ownPhoto));
        QVERIFY(isJpeg(fileOf(desk, "photo.jpg"))); // no look: nothing but the ending changes
    }

    void keepBothFindsANameThatIsFree()
    {
        Desk desk(makePhoto(60, 40));
        desk.click("chkMultiFilter");
        desk.click("btnHelga");
        desk.click("btnMono");
        QVERIFY(QFile::link("nothing", desk.folder.filePath("photo Helga Mono 2.jpg")));
        const Answers answers(button("Keep both"));
        for (const char* wanted : {"photo Helga Mono.jpg", "photo Helga Mono 3.jpg", "photo Helga Mono 4.jpg"}) {
            QVERIFY(!QFile::exists(desk.folder.filePath(wanted)));
            printedBy([&] { desk.saveAs(desk.folder.filePath("photo.png")); });
            QVERIFY(isJpeg(fileOf(desk, wanted)));
        }
        QVERIFY(!QFile::exists(desk.folder.filePath("nothing")));
    }

    void cancelLeavesThePanelAsItWas_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("the open photo") << "photo.png";
        QTest::newRow("another file") << "other.jpg";
    }
    void cancelLeavesThePanelAsItWas()
    {
        QFETCH(QString, name);
        Desk desk(makePhoto(60, 40));
        writePhoto(desk.folder, "other.jpg", makePhoto(30, 20));
        const QByteArray photo = fileOf(desk, name);
        desk.withPanel(
            [&](QFileDialog& panel) {
                for (const bool byKey : {false, true}) {
                    const Answers answers([&](QMessageBox& question) {
                        byKey ? QTest::keyClick(&question, Qt::Key_Escape) : button("Cancel")(question);
                    });
                    typeName(panel, desk.folder.filePath(name));
                    QVERIFY(panel.isVisible());
                    QCOMPARE(answers.asked.size(), 1);
                }
                panel.reject();
            },
            [&] { desk.click("btnSave"); });
        QCOMPARE(fileOf(desk, name), photo);
        QCOMPARE(filesOf(desk), QStringList({"other.jpg", "photo.png"}));
    }

    void anotherFileIsReplacedWhenPeopleSaySo()
    {
        Desk desk(makePhoto(60, 40));
        const QString other = desk.folder.filePath("other.webp.jpg");
        writePhoto(desk.folder, "other.webp.jpg", makePhoto(30, 20));
        desk.withPanel(
            [&](QFileDialog& panel) {
                const Answers byReturn(pressDefault);
                typeName(panel, other);
                QVERIFY(panel.isVisible()); // Return keeps the file
                panel.reject();
            },
            [&] { desk.click("btnSave"); });
        QVERIFY(!isJpeg(fileOf(desk, "other.webp.jpg")));
        const Answers answers(button("Replace"));
        printedBy([&] { desk.saveAs(desk.folder.filePath("other.webp")); });
        QCOMPARE(answers.asked, QStringList("“other.webp.jpg” already exists. Do you want to replace it?"));
        QVERIFY(isJpeg(fileOf(desk, "other.webp.jpg")));
    }

    void theQuestionShowsNamesAsTheyAre_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("the open photo") << "<b>bold.png";
        QTest::newRow("another file") << "<b>other.jpg";
    }
    void theQuestionShowsNamesAsTheyAre()
    {
        QFETCH(QString, name);
        Desk desk;
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "<b>bold.png", makePhoto(60, 40))));
        writePhoto(desk.folder, "<b>other.jpg", makePhoto(30, 20));
        const Answers answers([](QMessageBox& question) {
            for (const QLabel* label : question.findChildren<QLabel*>())
                QCOMPARE(label->textFormat(), Qt::PlainText);
            pressDefault(question);
        });
        printedBy([&] {
            desk.withPanel(
                [&](QFileDialog& panel) {
                    typeName(panel, desk.folder.filePath(name));
                    panel.reject();
                },
                [&] { desk.click("btnSave"); });
        });
        QCOMPARE(answers.asked.size(), 1);
    }

    void thePanelStaysOpenWhereNothingCanBeWritten()
    {
        Desk desk(makePhoto(60, 40));
        QVERIFY(mkfifo(qPrintable(desk.folder.filePath("<b>pipe.jpg")), 0600) == 0);
        printedBy([&] {
            desk.withPanel(
                [&](QFileDialog& panel) {
                    const QString noRight = "There is no permission to write there.";
                    for (const auto& [name, reason] : {
                             std::pair(QString("gone/out.jpg"), QString("The folder does not exist.")),
                             std::pair(QString("<b>pipe.jpg"), noRight),
                             std::pair(QString("/sys/out.jpg"), noRight), // where root cannot write either
                             std::pair(QString(253, 'n'), QString("The file's name is too long.")),
                         }) {
                        typeName(panel, QDir(desk.folder.path()).filePath(name));
                        QVERIFY(panel.isVisible());
                        const QString shown = QFileInfo(name).fileName();
                        QCOMPARE(lineOf(panel, "“"),
                            QString("“%1” cannot be saved there. %2")
                                .arg(shown.size() > 99 ? shown + ".jpg" : shown, reason));
                    }
                    const Answers answers(button("Cancel"));
                    typeName(panel, desk.folder.filePath("photo.png")); // which could be replaced
                    QCOMPARE(answers.asked, QStringList(ownPhoto));
                    QVERIFY(panel.isVisible());
                    QCOMPARE(lineOf(panel, "“"), QString());
                    typeName(panel, desk.folder.filePath("out.jpg"));
                },
                [&] { desk.click("btnSave"); });
        });
        QVERIFY(isJpeg(fileOf(desk, "out.jpg")));
    }

    void thePanelStaysOpenWhereTheDiskHasNoRoom()
    {
        const QTemporaryDir folder;
        const qint64 room = QStorageInfo(folder.path()).bytesAvailable();
        QVERIFY(room > 0);
        for (const bool fits : {false, true}) {
            const LookList looks;
            SavePanel panel(nullptr, fits ? room / 2 : room * 2, "photo.png", looks);
            panel.show();
            QVERIFY(QTest::qWaitForWindowActive(&panel));
            typeName(panel, folder.filePath("out.jpg"));
            QCOMPARE(panel.isVisible(), !fits);
            QCOMPARE(lineOf(panel, "“"), fits ? QString() : "“out.jpg” cannot be saved there. The disk is full.");
            QCOMPARE(panel.path(), fits ? folder.filePath("out.jpg") : QString());
        }
        QVERIFY(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }

    void aNameThatIsAFolderEntersIt()
    {
        Desk desk(makePhoto(60, 40));
        QVERIFY(QDir(desk.folder.path()).mkdir("sub"));
        printedBy([&] {
            desk.withPanel(
                [&](QFileDialog& panel) {
                    typeName(panel, desk.folder.filePath("sub"));
                    QVERIFY(panel.isVisible());
                    QCOMPARE(panel.directory().dirName(), "sub");
                    typeName(panel, "out.jpg");
                },
                [&] { desk.click("btnSave"); });
        });
        QVERIFY(isJpeg(fileOf(desk, "sub/out.jpg")));
    }
};

DESK_MAIN(SavePanelTest)
#include "SavePanelTest.moc"
