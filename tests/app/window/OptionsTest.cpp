// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/SessionEnd.h"
#include "app/state/Preferences.h"
#include "image/CharImage.h"
#include "tests/app/Desk.h"

#include <QApplication>
#include <QCheckBox>
#include <QScreen>
#include <QSettings>
#include <QTimer>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace lumora;

namespace {

QStringList itemsOf(const QComboBox* popUp)
{
    QStringList items;
    for (int i = 0; i < popUp->count(); i++)
        items << popUp->itemText(i);
    return items;
}

} // namespace

namespace {

QByteArrayList replacingFiles; ///< what each file held that took the place of another

} // namespace

/// The platform's store writes its file anew with each key. Its calls come here instead of to the C library.
extern "C" int rename(const char* from, const char* to) noexcept
{
    replacingFiles << contentsOf(from);
    return int(syscall(SYS_renameat, AT_FDCWD, from, AT_FDCWD, to));
}

class OptionsTest : public QObject {
    Q_OBJECT

private:
    struct Choices {
        bool multi, random;
        int border, crop, size;
        bool operator==(const Choices&) const = default;
    };
    static constexpr Choices defaults = {false, false, 0, 0, 0};

    static Choices chosen(Desk& desk)
    {
        return {desk.find<QCheckBox>("chkMultiFilter")->isChecked(), desk.find<QCheckBox>("chkRandomness")->isChecked(),
            desk.find<QComboBox>("btnBorders")->currentIndex(), desk.find<QComboBox>("btnCropping")->currentIndex(),
            desk.find<QComboBox>("btnImgSize")->currentIndex()};
    }

private slots:
    void init() { setPreferences({}); }

    void popUpsOfferTheirItemsInOrder()
    {
        Desk desk;
        QCOMPARE(itemsOf(desk.find<QComboBox>("btnBorders")),
            QStringList({"By Filter", "Thin", "Medium", "Thick", "Rounded", "Instant", "Cinema", "None"}));
        QCOMPARE(itemsOf(desk.find<QComboBox>("btnCropping")),
            QStringList({"By Filter", "Square", "Cinema", "6x4", "4x3", "7x6", "None"}));
        QCOMPARE(itemsOf(desk.find<QComboBox>("btnImgSize")),
            QStringList({"Original", "1600", "1400", "1200", "1000", "800", "600", "500", "400", "200", "100"}));
    }

    void firstRunHasTheDefaults()
    {
        CharImage::useRandom = 1;
        Desk desk;
        QVERIFY(chosen(desk) == defaults);
        QCOMPARE(CharImage::useRandom, 0);
    }

    void choicesComeBackButRandomnessDoesNot()
    {
        {
            Desk desk;
            desk.click("chkMultiFilter");
            desk.click("chkRandomness");
            desk.choose("btnBorders", "Rounded");
            desk.choose("btnCropping", "4x3");
            desk.choose("btnImgSize", "500");
            QVERIFY(chosen(desk) == (Choices{true, true, 4, 4, 7}));
            desk.window.applicationWillTerminate();
            QCOMPARE(getPreferenceBool("UseRandomness"), true);
            QCOMPARE(getPreferenceInt("PrefsVersion"), 2);
        }
        Desk desk;
        QVERIFY(chosen(desk) == (Choices{true, false, 4, 4, 7}));
        QCOMPARE(CharImage::useRandom, 0);
        QCOMPARE(desk.window.doMultiFiltering, false); // until the next render or click
    }

    void theWindowComesBackAsItWas()
    {
        // Its height: the screen of these tests is narrower than the window can be.
        {
            Desk desk;
            desk.window.resize(900, 620);
            desk.window.applicationWillTerminate();
        }
        {
            Desk desk;
            QCOMPARE(desk.window.height(), 620);
            QVERIFY(!desk.window.isMaximized());
            desk.window.showMaximized();
            QTRY_VERIFY(desk.window.isMaximized() && desk.window.height() != 620);
            desk.window.close();
            desk.window.applicationWillTerminate();
        }
        Desk desk;
        QVERIFY(desk.window.isMaximized());
        desk.window.showNormal();
        QTRY_COMPARE(desk.window.height(), 620);
        desk.window.applicationWillTerminate();
        Desk normal;
        QVERIFY(!normal.window.isMaximized());
    }

    void aWindowsSizeIsMadeToFit_data()
    {
        QTest::addColumn<QByteArray>("saved");
        QTest::addColumn<bool>("isFirstSize");
        QTest::newRow("nothing") << QByteArray() << true;
        QTest::newRow("no height") << QByteArray("Width=950\n") << true;
        QTest::newRow("words") << QByteArray("Width=wide\nHeight=high\n") << true;
        QTest::newRow("negative") << QByteArray("Width=-950\nHeight=-650\n") << true;
        QTest::newRow("tiny") << QByteArray("Width=1\nHeight=1\n") << false;
        QTest::newRow("huge") << QByteArray("Width=2147483647\nHeight=2147483647\n") << true;
    }
    void aWindowsSizeIsMadeToFit()
    {
        QFETCH(QByteArray, saved);
        QFETCH(bool, isFirstSize);
        const QSize first = MainWindowController().size();
        setPreferences("[Window]\n" + saved);
        const MainWindowController window;
        QCOMPARE(window.size() == first, isFirstSize);
        QVERIFY(window.height() <= window.screen()->availableSize().height());
        QCOMPARE(window.size(), window.size().expandedTo(window.minimumSize()));
    }

    void thePanelsFolderComesBack()
    {
        QTemporaryDir folder;
        const QString photos = folder.filePath(QString::fromUtf8("50% of [é]; photos"));
        QVERIFY(QDir().mkpath(photos));
        const auto standsAt = [](Desk& desk) {
            QString place;
            desk.withPanel(
                [&](QFileDialog& panel) {
                    place = panel.directory().absolutePath();
                    panel.reject();
                },
                [&] { desk.click("btnLoad"); });
            return place;
        };
        {
            Desk desk(makePhoto(60, 40));
            desk.saveAs(photos + "/saved.jpg");
            desk.window.applicationWillTerminate();
        }
        {
            Desk desk;
            QCOMPARE(standsAt(desk), photos);
            desk.window.applicationWillTerminate();
        }
        QVERIFY(QDir(photos).removeRecursively());
        Desk desk;
        const QString elsewhere = standsAt(desk);
        QVERIFY2(elsewhere != photos && QDir(elsewhere).exists(), qPrintable(elsewhere));
    }

    void theWindowsKeysAreAGroupOfTheirOwn()
    {
        {
            Desk desk;
            desk.window.applicationWillTerminate();
        }
        QSettings file(preferencesFile(), QSettings::IniFormat);
        QCOMPARE(file.childGroups(), QStringList("Window"));
        QCOMPARE(file.childKeys(),
            QStringList(
                {"BorderStyle", "CroppingStyle", "OutputSize", "PrefsVersion", "UseMultiFilter", "UseRandomness"}));
        // Another version of the choices does not make the window forget.
        setPreferences("[General]\nPrefsVersion=1\n\n[Window]\nWidth=700\nHeight=620\n");
        QCOMPARE(MainWindowController().size(), QSize(700, 620));
    }

    void theDescribedKeysAreWhatTheyWouldBeAlone()
    {
        // As the platform itself writes them, one after the other, where nothing else is remembered.
        const std::pair<const char*, QVariant> choices[] = {{"UseMultiFilter", true}, {"UseRandomness", true},
            {"BorderStyle", 4}, {"CroppingStyle", 4}, {"OutputSize", 7}, {"PrefsVersion", 2}};
        for (const auto& [key, value] : choices)
            QSettings("Dovrel", "Lumora").setValue(key, value);
        const QByteArray alone = contentsOf(QFile::encodeName(preferencesFile()));
        QVERIFY(alone.startsWith("[General]\n") && alone.count('[') == 1);

        for (const char* before : {"", "[Window]\nHeight=620\nWidth=900\n"}) {
            setPreferences(before);
            Desk desk;
            setPreferenceInt("Saving/Kept", 1); // before the first of them
            QVERIFY(contentsOf(QFile::encodeName(preferencesFile())).startsWith("[General]\n"));
            desk.click("chkMultiFilter");
            desk.click("chkRandomness");
            desk.choose("btnBorders", "Rounded");
            desk.choose("btnCropping", "4x3");
            desk.choose("btnImgSize", "500");
            desk.window.applicationWillTerminate();
            const QByteArray all = contentsOf(QFile::encodeName(preferencesFile()));
            QVERIFY2(all.startsWith(alone + "\n["), all.constData());
            QCOMPARE(getPreferenceInt("Saving/Kept"), 1);
            QCOMPARE(getPreferenceInt("Window/Height"), desk.window.height());
        }
    }

    void anOlderProgramFindsAndKeepsTheFile()
    {
        {
            Desk desk;
            setPreferenceInt("Saving/Kept", 1);
            desk.choose("btnBorders", "Rounded");
            desk.window.applicationWillTerminate();
        }
        // It takes a file of plain lines that begins with the described section, and knows those keys alone.
        for (const QByteArray& line : contentsOf(QFile::encodeName(preferencesFile())).split('\n'))
            QVERIFY2(QRegularExpression("^(\\[[A-Za-z]+\\]|[A-Za-z]+=.*|)$").match(line).hasMatch(), line.constData());
        QSettings("Dovrel", "Lumora").setValue("BorderStyle", 2);
        Desk desk;
        QCOMPARE(chosen(desk).border, 2);
        QCOMPARE(getPreferenceInt("Saving/Kept"), 1);
    }

    void quittingBehindAPanelSavesTheChoices_data()
    {
        QTest::addColumn<QByteArray>("button");
        QTest::newRow("open") << QByteArray("btnLoad");
        QTest::newRow("save") << QByteArray("btnSave");
    }

    void quittingBehindAPanelSavesTheChoices()
    {
        QFETCH(QByteArray, button);
        Desk desk(makePhoto(60, 40));
        desk.choose("btnBorders", "Rounded");
        QTimer::singleShot(0, &desk.window, [&] { desk.click(button); });
        QTimer watch;
        connect(&watch, &QTimer::timeout, [&] {
            if (qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
                watch.stop();
                desk.window.applicationWillTerminate(); // some desktops say it while the panel is up
                QCOMPARE(getPreferenceInt("BorderStyle"), 4);
                setPreferences({});
                QCoreApplication::quit();
            }
        });
        watch.start(0);
        QCOMPARE(QApplication::exec(), 0);
        QCOMPARE(getPreferenceInt("PrefsVersion"), 2);
        QCOMPARE(getPreferenceInt("BorderStyle"), 4);
    }

    void theVersionIsWrittenLast()
    {
        Desk desk;
        replacingFiles.clear();
        desk.window.applicationWillTerminate();
        QVERIFY(replacingFiles.size() > 5);
        for (const QByteArray& file : replacingFiles)
            for (const char* key :
                {"UseMultiFilter=", "UseRandomness=", "BorderStyle=", "CroppingStyle=", "OutputSize="})
                QVERIFY2(!file.contains("PrefsVersion=") || file.contains(key), file.constData());
        QVERIFY(replacingFiles.last().contains("PrefsVersion=2"));
    }

    void anotherVersionIsIgnored_data()
    {
        QTest::addColumn<QByteArray>("version");
        for (const char* version : {"1", "3", "abc", "@Invalid()", "2.5"})
            QTest::newRow(version) << QByteArray(version);
    }

    void anotherVersionIsIgnored()
    {
        QFETCH(QByteArray, version);
        setPreferences("[General]\nUseMultiFilter=true\nBorderStyle=3\nCroppingStyle=2\nOutputSize=4\nPrefsVersion="
            + version + "\n");
        Desk desk;
        QVERIFY(chosen(desk) == defaults);
    }

    void anIndexOutsideOrOfAWrongTypeIsTheFirstItem()
    {
        setPreferences("[General]\nPrefsVersion=2\nUseMultiFilter=maybe\nBorderStyle=8\nCroppingStyle=-1\n"
                       "OutputSize=large\n");
        Desk desk;
        QVERIFY(chosen(desk) == defaults);
        setPreferences("[General]\nPrefsVersion=2\nUseMultiFilter=1\nBorderStyle=7\nCroppingStyle=6\n"
                       "OutputSize=99999999999\n");
        Desk edge;
        QVERIFY(chosen(edge) == (Choices{true, false, 7, 6, 0}));
    }

    void aFileThatIsNoPreferencesIsLeftAlone()
    {
        const char bytes[] = "Dear diary\n\0\xff\xfe of another program\n";
        const QByteArray letter(bytes, sizeof bytes - 1);
        setPreferences(letter);
        {
            for (int i = 0; i < 6; i++)
                QTest::ignoreMessage(QtWarningMsg, QRegularExpression("is not a preferences file"));
            Desk desk;
            QVERIFY(chosen(desk) == defaults);
            desk.window.applicationWillTerminate();
        }
        QCOMPARE(contentsOf(QFile::encodeName(preferencesFile())), letter);
    }

    void whatIsLeftOfACutOffFileIsUsedAndMadeWhole()
    {
        setPreferences("[General]\nBorderStyle=3\nCroppingStyle=2\nOutputSize=4\nPrefsVersion=2\nUseMul");
        {
            Desk desk;
            QVERIFY(chosen(desk) == (Choices{false, false, 3, 2, 4}));
            desk.click("chkMultiFilter");
            desk.window.applicationWillTerminate();
        }
        Desk desk;
        QVERIFY(chosen(desk) == (Choices{true, false, 3, 2, 4}));
    }

    void aFolderInThePlaceOfTheFileIsLeftAlone()
    {
        QDir().mkpath(preferencesFile());
        {
            Desk desk;
            QVERIFY(chosen(desk) == defaults);
            desk.window.applicationWillTerminate();
        }
        QVERIFY(QFileInfo(preferencesFile()).isDir());
        QDir().rmdir(preferencesFile());
    }

    void neitherAPipeNorADeviceKeepsTheWindowWaiting_data()
    {
        QTest::addColumn<QByteArray>("device");
        QTest::newRow("pipe") << QByteArray();
        QTest::newRow("endless device") << QByteArray("/dev/zero");
    }
    void neitherAPipeNorADeviceKeepsTheWindowWaiting()
    {
        QFETCH(QByteArray, device);
        for (const QString& file : {preferencesFile(), configFolder() + "/Dovrel.conf"}) {
            const QByteArray path = QFile::encodeName(file);
            QDir().mkpath(QFileInfo(file).path());
            QVERIFY((device.isEmpty() ? mkfifo(path.constData(), 0600) : symlink(device.constData(), path.constData()))
                == 0);
            {
                Desk desk;
                QVERIFY(chosen(desk) == defaults);
                desk.window.applicationWillTerminate();
            }
            struct stat status = {};
            QVERIFY(lstat(path.constData(), &status) == 0 && !S_ISREG(status.st_mode));
            QVERIFY(QFile::remove(file) || unlink(path.constData()) == 0);
        }
    }

    void filesOfOtherProgramsAreLeftAlone_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::newRow("XML") << QByteArray("<?xml version=\"1.0\"?>\n<a b=\"c\"/>\n");
        QTest::newRow("XML in one line") << QByteArray("<a b=\"c\"/>");
        QTest::newRow("other sections") << QByteArray("[Desktop Entry]\nName=A name\n");
        QTest::newRow("keys of another kind") << QByteArray("[General]\nName[de]=Ein Name\n");
        QTest::newRow("sections of another kind") << QByteArray("[General]\nA=b\n[Colors:View]\nC=d\n");
        QTest::newRow("keys alone") << QByteArray("A=b\n");
    }
    void filesOfOtherProgramsAreLeftAlone()
    {
        QFETCH(QByteArray, contents);
        setPreferences(contents);
        {
            Desk desk;
            desk.click("chkMultiFilter");
            desk.window.applicationWillTerminate();
        }
        QCOMPARE(contentsOf(QFile::encodeName(preferencesFile())), contents);
    }

    void theLastWindowKeepsWhatTheOthersChose()
    {
        for (const char* preferences : {"", "[General]\nBorderStyle=1\nOutputSize=2\nPrefsVersion=2\n"}) {
            setPreferences(preferences);
            Desk first, second;
            first.choose("btnBorders", "Rounded");
            first.click("chkMultiFilter");
            second.choose("btnCropping", "4x3");
            first.window.applicationWillTerminate();
            second.window.applicationWillTerminate();
            Desk third;
            QVERIFY(chosen(third) == (Choices{true, false, 4, 4, *preferences ? 2 : 0}));
        }
    }

    void anOlderSetIsReplacedAsAWhole()
    {
        setPreferences("[General]\nBorderStyle=3\nCroppingStyle=2\nPrefsVersion=1\n");
        {
            Desk desk;
            desk.choose("btnCropping", "4x3");
            desk.window.applicationWillTerminate();
        }
        Desk desk;
        QVERIFY(chosen(desk) == (Choices{false, false, 0, 4, 0}));
    }

    void theEndOfASessionKeepsTheChoices_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<bool>("isPanelOpen");
        for (const bool isPanelOpen : {false, true})
            for (const int signal : {SIGTERM, SIGHUP, SIGINT})
                QTest::addRow("%d%s", signal, isPanelOpen ? ", panel" : "") << signal << isPanelOpen;
    }
    void theEndOfASessionKeepsTheChoices()
    {
        QFETCH(int, signal);
        QFETCH(bool, isPanelOpen);
        {
            Desk desk;
            std::signal(signal, SIG_DFL); // the test's own handler would count as a wish to keep the signal
            const SessionEnd sessionEnd;
            desk.choose("btnBorders", "Rounded");
            QTimer::singleShot(0, &desk.window, [&] {
                if (isPanelOpen) {
                    QTimer::singleShot(0, &desk.window, [&] { raise(signal); });
                    desk.window.loadImageButtonPressed();
                } else
                    raise(signal);
            });
            QCOMPARE(QCoreApplication::exec(), 0);
        }
        QCOMPARE(getPreferenceInt("BorderStyle"), 4);
        struct sigaction action = {};
        QVERIFY(sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_DFL);
    }

    void aSignalThatIsIgnoredStaysIgnored()
    {
        const auto before = std::signal(SIGHUP, SIG_IGN); // as under nohup
        const auto back = qScopeGuard([&] { std::signal(SIGHUP, before); });
        struct sigaction action = {};
        {
            const SessionEnd sessionEnd;
            QVERIFY(sigaction(SIGHUP, nullptr, &action) == 0 && action.sa_handler == SIG_IGN);
        }
        QVERIFY(sigaction(SIGHUP, nullptr, &action) == 0 && action.sa_handler == SIG_IGN);
    }

    void foreignKeysAreKept()
    {
        setPreferences("[General]\n; a remark\nSomebodysKey=theirs\n\n[Other]\nToo=1\n");
        {
            Desk desk;
            desk.window.applicationWillTerminate();
        }
        const QByteArray kept = contentsOf(QFile::encodeName(preferencesFile()));
        QVERIFY(
            kept.contains("SomebodysKey=theirs") && kept.contains("[Other]\nToo=1") && kept.contains("PrefsVersion=2"));
    }

    void textsOfOtherLettersAreNone()
    {
        setPreferences("[General]\nText=caf\xc3\xa9\nPlain=cafe\n");
        QCOMPARE(getPreferenceString("Text").cString(), "");
        QCOMPARE(getPreferenceString("Plain").cString(), "cafe");
    }

    void preferencesKeepTextNumbersAndTruth()
    {
        QCOMPARE(getPreferenceInt("Nothing"), 0);
        QCOMPARE(getPreferenceBool("Nothing"), false);
        QCOMPARE(getPreferenceString("Nothing").cString(), "");
        setPreferenceString("Text", "50%, [a] = \"b\"; c");
        setPreferenceInt("Number", -2147483647);
        setPreferenceBool("Truth", true);
        QCOMPARE(getPreferenceString("Text").cString(), "50%, [a] = \"b\"; c");
        QCOMPARE(getPreferenceInt("Number"), -2147483647);
        QCOMPARE(getPreferenceBool("Truth"), true);
        setPreferenceInt("Number", 7);
        QCOMPARE(getPreferenceBool("Number"), true);
        setPreferenceBool("Truth", false);
        QCOMPARE(getPreferenceBool("Truth"), false);
        QCOMPARE(getPreferenceInt("Text"), 0);
    }

    void cropsAndBordersAreFiltersOfTheirTitles()
    {
        const std::pair<const char*, int> crops[] = {{"Square", Filter::square}, {"Cinema", Filter::cinema},
            {"6x4", Filter::crop6x4}, {"4x3", Filter::crop4x3}, {"7x6", Filter::crop7x6}, {"None", Filter::original},
            {"By Filter", Filter::original}};
        const std::pair<const char*, int> borders[] = {{"Thin", Filter::thin}, {"Medium", Filter::medium},
            {"Thick", Filter::thick}, {"Rounded", Filter::rounded}, {"Instant", Filter::instant},
            {"Cinema", Filter::cinema}, {"None", Filter::original}, {"By Filter", Filter::original}};
        Desk desk(makePhoto(60, 40));
        for (const auto& [title, filter] : crops) {
            desk.choose("btnCropping", title);
            QCOMPARE(desk.window.cropFilter, filter);
        }
        for (const auto& [title, filter] : borders) {
            desk.choose("btnBorders", title);
            QCOMPARE(desk.window.borderFilter, filter);
        }
    }

    void byFilterMeansTheLookThatWasAddedLast()
    {
        Desk desk(makePhoto(60, 40));
        desk.click("chkMultiFilter");
        desk.click("btnHelga");
        desk.click("btnCinema");
        QCOMPARE(desk.window.cropFilter, int(Filter::cinema));
        QCOMPARE(desk.window.borderFilter, int(Filter::cinema));
        desk.click("btnOriginal");
        QCOMPARE(desk.window.cropFilter, int(Filter::original));
        QCOMPARE(desk.window.borderFilter, int(Filter::original));
    }

    void sizesAreNumbersAndOriginalIsNone()
    {
        Desk desk(makePhoto(60, 40));
        for (const char* size : {"1600", "1400", "1200", "1000", "800", "600", "500", "400", "200", "100"}) {
            desk.choose("btnImgSize", size);
            QCOMPARE(desk.window.imgOutputSize, QByteArray(size).toInt());
        }
        desk.choose("btnImgSize", "Original");
        QCOMPARE(desk.window.imgOutputSize, -1);
    }

    void aPopUpRendersThePreviewAndLeavesTheThumbnails()
    {
        Desk desk(makePhoto(60, 40));
        const auto thumbnail = [&] { return desk.find<QToolButton>("btnHelga")->icon().cacheKey(); };
        const qint64 before = thumbnail();
        for (const auto& [popUp, item] :
            {std::pair("btnBorders", "Thick"), std::pair("btnCropping", "Square"), std::pair("btnImgSize", "100")}) {
            const qint64 render = desk.render();
            desk.choose(popUp, item);
            QVERIFY(desk.render() != render);
        }
        QCOMPARE(thumbnail(), before);
        QCOMPARE(desk.find<DragDropImageView>("mainImageView")->image().size(), QSize(60, 60));
    }
};

DESK_MAIN(OptionsTest)
#include "OptionsTest.moc"
