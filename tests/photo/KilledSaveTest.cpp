// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/Samples.h"
#include "tests/photo/SaveFolder.h"

#include <QTest>
#include <csignal>
#include <ctime>
#include <memory>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Runs `child` in a process of its own, which is to be killed in it.
bool isKilledIn(const std::function<void()>& child)
{
    const pid_t process = fork();
    if (process == 0) {
        child();
        _exit(0);
    }
    int status = 0;
    waitpid(process, &status, 0);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

void die()
{
    raise(SIGKILL);
}

/// The number of a process that has ended.
pid_t endedProcess()
{
    const pid_t process = fork();
    if (process == 0)
        _exit(0);
    waitpid(process, nullptr, 0);
    return process;
}

QByteArray hiddenName(pid_t process)
{
    return ".lumora-" + QByteArray::number(process) + "-0";
}

} // namespace

/// Saves that are killed, what they leave behind, and file systems that can do less than others.
class KilledSaveTest : public QObject {
    Q_OBJECT

    std::unique_ptr<SaveFolder> m_folder;

    QByteArray pathOf(const QByteArray& name) { return m_folder->path(name); }
    std::set<std::string> names() { return m_folder->names(); }

private slots:
    void init()
    {
        fileSystem = {};
        m_folder = std::make_unique<SaveFolder>();
    }

    /// At any moment; how often may be set for a longer trial.
    void leavesAWholeFileAndAtMostOneLeftover()
    {
        const int rounds =
            qEnvironmentVariableIsSet("LUMORA_KILLS") ? qEnvironmentVariableIntValue("LUMORA_KILLS") : 40;
        const QByteArray path = pathOf("photo.jpg");
        const QByteArray contents[2] = {QByteArray(3000000, 'a'), QByteArray(2000000, 'b')};
        samples::writeFile(path, contents[0]);
        bool seen[2] = {};
        int found = 0;
        // On a slow disk the second content takes later moments than the first rounds have.
        for (int round = 0; round < rounds || (round < 10 * rounds && !(seen[0] && seen[1])); round++) {
            int started[2];
            QVERIFY(pipe(started) == 0);
            const pid_t process = fork();
            if (process == 0) {
                for (int i = 0;; i++) {
                    saves(path, contents[i % 2]);
                    if (i == 0 && ::write(started[1], "", 1) != 1)
                        _exit(1);
                }
            }
            char byte;
            QCOMPARE(read(started[0], &byte, 1), ssize_t(1));
            // Any moment of a save will do: each round takes another one.
            const timespec pause = {0, round % 60 * 211000};
            nanosleep(&pause, nullptr);
            QVERIFY(kill(process, SIGKILL) == 0);
            waitpid(process, nullptr, 0);
            close(started[0]);
            close(started[1]);
            const QByteArray left = samples::readFile(path);
            QVERIFY(left == contents[0] || left == contents[1]);
            seen[left == contents[1]] = true;
            QVERIFY(m_folder->leftovers() <= 1);
            found += m_folder->leftovers();
        }
        QVERIFY(seen[0] && seen[1]);
        qInfo("%d leftovers", found);
        QVERIFY(saves(path, "whole"));
        QCOMPARE(samples::readFile(path), QByteArray("whole"));
        QCOMPARE(names(), std::set<std::string>({"photo.jpg"}));
    }

    void withoutANameNothingIsLeft()
    {
        samples::writeFile(pathOf("photo.jpg"), "old");
        QVERIFY(isKilledIn([&] {
            fileSystem.atWrite = die;
            saves(pathOf("photo.jpg"), "new");
        }));
        QCOMPARE(samples::readFile(pathOf("photo.jpg")), QByteArray("old"));
        QCOMPARE(names(), std::set<std::string>({"photo.jpg"}));
    }

    void aNewFileIsNeverHidden()
    {
        fileSystem.atRename = die;
        QVERIFY(saves(pathOf("photo.jpg"), "new"));
        QVERIFY(bool(fileSystem.atRename));
        QCOMPARE(names(), std::set<std::string>({"photo.jpg"}));
    }

    void leftoversGoWithTheNextSave_data()
    {
        QTest::addColumn<bool>("noUnnamedFiles");
        QTest::addColumn<bool>("atRename");
        QTest::newRow("while being renamed") << false << true;
        QTest::newRow("while being written") << true << false;
    }
    void leftoversGoWithTheNextSave()
    {
        QFETCH(bool, noUnnamedFiles);
        QFETCH(bool, atRename);
        samples::writeFile(pathOf("photo.jpg"), "old");
        QVERIFY(isKilledIn([&] {
            fileSystem.noUnnamedFiles = noUnnamedFiles;
            (atRename ? fileSystem.atRename : fileSystem.atWrite) = die;
            saves(pathOf("photo.jpg"), "new");
        }));
        QCOMPARE(samples::readFile(pathOf("photo.jpg")), QByteArray("old"));
        QCOMPARE(m_folder->leftovers(), 1);
        QVERIFY(saves(pathOf("another.jpg"), "newer"));
        QCOMPARE(names(), std::set<std::string>({"another.jpg", "photo.jpg"}));
    }

    void aLivingProcessKeepsItsFile()
    {
        samples::writeFile(pathOf("photo.jpg"), "old");
        for (const bool noUnnamedFiles : {false, true}) {
            int waits[2], mayGoOn[2];
            QVERIFY(pipe(waits) == 0 && pipe(mayGoOn) == 0);
            const pid_t process = fork();
            if (process == 0) {
                fileSystem.noUnnamedFiles = noUnnamedFiles;
                fileSystem.atRename = [&] {
                    char byte;
                    if (::write(waits[1], "", 1) != 1 || read(mayGoOn[0], &byte, 1) != 1)
                        _exit(2);
                };
                _exit(saves(pathOf("photo.jpg"), "new") ? 0 : 1);
            }
            char byte;
            QCOMPARE(read(waits[0], &byte, 1), ssize_t(1));
            QCOMPARE(m_folder->leftovers(), 1);
            // On another machine the process is not known, and the lock tells.
            const std::string hidden = *names().begin();
            const QByteArray elsewhere = hiddenName(endedProcess());
            QVERIFY(link(pathOf(hidden.c_str()).constData(), pathOf(elsewhere).constData()) == 0);
            QVERIFY(saves(pathOf("photo.jpg"), "newer"));
            QCOMPARE(names(), std::set<std::string>({hidden, elsewhere.toStdString(), "photo.jpg"}));
            QVERIFY(::write(mayGoOn[1], "", 1) == 1);
            int status = 0;
            waitpid(process, &status, 0);
            QCOMPARE(status, 0);
            QCOMPARE(samples::readFile(pathOf("photo.jpg")), QByteArray("new"));
            unlink(pathOf(elsewhere).constData());
            for (const int descriptor : {waits[0], waits[1], mayGoOn[0], mayGoOn[1]})
                close(descriptor);
        }
    }

    void whatIsNotOursStays()
    {
        const QByteArray ended = QByteArray::number(endedProcess());
        std::set<std::string> kept = {"photo.jpg"};
        const auto keep = [&](const QByteArray& name) {
            kept.insert(name.toStdString());
            return pathOf(name);
        };
        for (const QByteArray name : {".lumora-", ".lumora-notes", ".lumora-0-0", ".lumora--1-0", ".lumora-1"})
            samples::writeFile(keep(name), "mine");
        for (const QByteArray& name : {ended, ended + "-", ended + "-0x", ended + "-0 ", ended + "-99999999999"})
            samples::writeFile(keep(".lumora-" + name), "mine");
        samples::writeFile(keep("lumora-" + ended + "-0"), "mine");
        samples::writeFile(keep(hiddenName(getppid())), "a living process's");
        QVERIFY(mkdir(keep(".lumora-" + ended + "-1").constData(), 0700) == 0);
        QVERIFY(mkfifo(keep(".lumora-" + ended + "-2").constData(), 0600) == 0);
        QVERIFY(symlink(".lumora-notes", keep(".lumora-" + ended + "-3").constData()) == 0);
        samples::writeFile(pathOf(".lumora-" + ended + "-4"), "a leftover");
        if (geteuid() == 0) {
            samples::writeFile(keep(".lumora-" + ended + "-5"), "another user's");
            QVERIFY(chown(pathOf(".lumora-" + ended + "-5").constData(), nobody, nobody) == 0);
        }
        QVERIFY(saves(pathOf("photo.jpg"), "new"));
        QCOMPARE(names(), kept);
    }

    void fileSystemsThatCanDoLess_data()
    {
        QTest::addColumn<bool>("noUnnamedFiles");
        QTest::addColumn<bool>("noLinks");
        QTest::addColumn<bool>("noRights");
        QTest::addColumn<int>("synchronising");
        QTest::newRow("no unnamed files") << true << false << false << 0;
        QTest::newRow("no links") << false << true << false << 0;
        QTest::newRow("no synchronising") << false << false << false << EINVAL;
        QTest::newRow("a memory card") << true << true << true << 0;
    }
    void fileSystemsThatCanDoLess()
    {
        QFETCH(bool, noUnnamedFiles);
        QFETCH(bool, noLinks);
        QFETCH(bool, noRights);
        QFETCH(int, synchronising);
        fileSystem.noUnnamedFiles = noUnnamedFiles;
        fileSystem.noLinks = noLinks;
        fileSystem.noRights = noRights;
        fileSystem.synchronising = synchronising;
        for (const char* data : {"one", "two"}) {
            QVERIFY(saves(pathOf("photo.jpg"), data));
            QCOMPARE(samples::readFile(pathOf("photo.jpg")), QByteArray(data));
            QCOMPARE(names(), std::set<std::string>({"photo.jpg"}));
        }
    }

    void whatIsNotOnTheDiskIsNotSaved()
    {
        samples::writeFile(pathOf("photo.jpg"), "old");
        fileSystem.synchronising = EDQUOT;
        QTest::ignoreMessage(QtWarningMsg, "The disk is full.");
        QVERIFY(!saves(pathOf("photo.jpg"), "new"));
        QCOMPARE(samples::readFile(pathOf("photo.jpg")), QByteArray("old"));
        QCOMPARE(names(), std::set<std::string>({"photo.jpg"}));
    }
};

QTEST_GUILESS_MAIN(KilledSaveTest)
#include "KilledSaveTest.moc"
