#include "photo/PhotoLoader.h"
#include "photo/PhotoSaver.h"
#include "tests/photo/Samples.h"

#include <QTemporaryDir>
#include <QTest>
#include <ctime>
#include <dirent.h>
#include <grp.h>
#include <memory>
#include <set>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr uid_t nobody = 65534;
constexpr gid_t sharedGroup = 12345; ///< one that the user without rights is in

mode_t permissionsOf(const QByteArray& path)
{
    struct stat status = {};
    stat(path.constData(), &status);
    return status.st_mode & 07777;
}

/// Runs `child` in a process of its own, as a user without rights where it has all; gives its result.
template <class Function> int resultInChild(Function child)
{
    const pid_t process = fork();
    if (process == 0) {
        if (geteuid() == 0
            && (setgroups(1, &sharedGroup) != 0 || setresgid(nobody, nobody, nobody) != 0
                || setresuid(nobody, nobody, nobody) != 0))
            _exit(100);
        _exit(child());
    }
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// 0 when writing fails for that reason.
int refusal(const QByteArray& path, const QByteArray& data, const char* wanted)
{
    QString reason;
    if (writeFileAtomically(path, data, &reason))
        return 1;
    if (reason == QLatin1String(wanted))
        return 0;
    fprintf(stderr, "%s\n", qPrintable(reason));
    return 2;
}

} // namespace

class AtomicWriteTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    QByteArray pathOf(const QByteArray& name) { return m_folder->path().toLocal8Bit() + '/' + name; }

    std::set<std::string> names()
    {
        std::set<std::string> found;
        DIR* folder = opendir(pathOf("").constData());
        while (const dirent* entry = readdir(folder))
            found.insert(entry->d_name);
        closedir(folder);
        found.erase(".");
        found.erase("..");
        return found;
    }

    bool write(const QByteArray& path, const QByteArray& data)
    {
        QString reason;
        const bool written = writeFileAtomically(path, data, &reason);
        if (!reason.isEmpty())
            qWarning("%s", qPrintable(reason));
        return written && reason.isEmpty();
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(chmod(pathOf("").constData(), 0777) == 0);
    }

    void newFile()
    {
        const mode_t before = umask(027);
        QVERIFY(write(pathOf("new.jpg"), "data"));
        umask(before);
        QCOMPARE(samples::readFile(pathOf("new.jpg")), QByteArray("data"));
        QCOMPARE(permissionsOf(pathOf("new.jpg")), mode_t(0640));
        QCOMPARE(names(), std::set<std::string>({"new.jpg"}));
    }

    void replacedFileKeepsItsPermissions()
    {
        samples::writeFile(pathOf("old.jpg"), QByteArray(10000, 'o'));
        for (const mode_t permissions : {0600, 0664, 0755}) {
            chmod(pathOf("old.jpg").constData(), permissions);
            QVERIFY(write(pathOf("old.jpg"), "new"));
            QCOMPARE(samples::readFile(pathOf("old.jpg")), QByteArray("new"));
            QCOMPARE(permissionsOf(pathOf("old.jpg")), permissions);
        }
        QCOMPARE(names(), std::set<std::string>({"old.jpg"}));
    }

    void replacedFileKeepsItsOwner()
    {
        samples::writeFile(pathOf("old.jpg"), "old");
        if (geteuid() == 0)
            QVERIFY(chown(pathOf("old.jpg").constData(), nobody, nobody) == 0);
        QVERIFY(write(pathOf("old.jpg"), "new"));
        struct stat status = {};
        QVERIFY(stat(pathOf("old.jpg").constData(), &status) == 0);
        QCOMPARE(status.st_uid, geteuid() == 0 ? nobody : geteuid());
    }

    void anotherUsersFileKeepsItsGroupOrGivesItNoMoreThanEverybody_data()
    {
        QTest::addColumn<gid_t>("group");
        QTest::addColumn<mode_t>("before");
        QTest::addColumn<mode_t>("after");
        QTest::newRow("a group of one's own") << sharedGroup << mode_t(0670) << mode_t(0670);
        QTest::newRow("another group") << gid_t(1) << mode_t(0676) << mode_t(0666);
    }
    void anotherUsersFileKeepsItsGroupOrGivesItNoMoreThanEverybody()
    {
        QFETCH(gid_t, group);
        QFETCH(mode_t, before);
        QFETCH(mode_t, after);
        samples::writeFile(pathOf("old.jpg"), "old");
        const bool isOwn = geteuid() != 0; // then the file is one's own, and stays as it is
        QVERIFY(isOwn || chown(pathOf("old.jpg").constData(), 1, group) == 0);
        QVERIFY(chmod(pathOf("old.jpg").constData(), before) == 0);
        QCOMPARE(resultInChild([&] { return write(pathOf("old.jpg"), "new") ? 0 : 1; }), 0);
        struct stat status = {};
        QVERIFY(stat(pathOf("old.jpg").constData(), &status) == 0);
        QCOMPARE(samples::readFile(pathOf("old.jpg")), QByteArray("new"));
        QCOMPARE(permissionsOf(pathOf("old.jpg")), isOwn ? before : after);
        if (group == sharedGroup)
            QCOMPARE(status.st_gid, isOwn ? getegid() : sharedGroup);
    }

    void namesAreBytes_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("percent") << QByteArray("100%s %n%d %1.jpg");
        QTest::newRow("newline") << QByteArray("two\nlines.jpg");
        QTest::newRow("non-Latin") << QByteArray("写真 фото.jpg");
        QTest::newRow("invalid UTF-8") << QByteArray("\xFF\xFE\xC3 photo.jpg");
        QTest::newRow("as long as names get") << QByteArray(251, 'n') + ".jpg";
    }
    void namesAreBytes()
    {
        QFETCH(QByteArray, name);
        QVERIFY(write(pathOf(name), "one"));
        QVERIFY(write(pathOf(name), "two"));
        QCOMPARE(names(), std::set<std::string>({name.toStdString()}));
        QCOMPARE(samples::readFile(pathOf(name)), QByteArray("two"));
        QVERIFY(unlink(pathOf(name).constData()) == 0); // not every name is one that Qt could remove
    }

    void nameWithoutAFolder()
    {
        QVERIFY(chdir(pathOf("").constData()) == 0);
        QVERIFY(write("photo.jpg", "data"));
        QVERIFY(chdir("/") == 0);
        QCOMPARE(samples::readFile(pathOf("photo.jpg")), QByteArray("data"));
    }

    void symbolicLinksLeadToTheirTarget_data()
    {
        QTest::addColumn<bool>("targetExists");
        QTest::newRow("file") << true;
        QTest::newRow("nothing yet") << false;
    }
    void symbolicLinksLeadToTheirTarget()
    {
        QFETCH(bool, targetExists);
        QVERIFY(mkdir(pathOf("folder").constData(), 0755) == 0);
        const QByteArray target = pathOf("folder/target.jpg");
        if (targetExists)
            samples::writeFile(target, "old");
        QVERIFY(symlink("folder/target.jpg", pathOf("relative").constData()) == 0);
        QVERIFY(symlink(pathOf("relative").constData(), pathOf("absolute").constData()) == 0);
        QVERIFY(write(pathOf("absolute"), "new"));
        QCOMPARE(samples::readFile(target), QByteArray("new"));
        for (const char* link : {"relative", "absolute"}) {
            struct stat status = {};
            QVERIFY(lstat(pathOf(link).constData(), &status) == 0 && S_ISLNK(status.st_mode));
        }
    }

    void ontoTheOpenedPhoto()
    {
        samples::writeFile(pathOf("photo.png"), samples::encoded(samples::quarters(64, 48), "png"));
        const LoadedPhoto photo = loadPhoto(pathOf("photo.png"));
        QVERIFY(write(pathOf("photo.png"), encodeJpeg(photo.image, photo.metadata)));
        QVERIFY(samples::showsQuarters(loadPhoto(pathOf("photo.png")).image, QSize(64, 48)));
    }

    void whatCannotBeWrittenIsTold_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("vanished folder") << QByteArray("gone/photo.jpg") << QByteArray("The folder does not exist.");
        QTest::newRow("below a file") << QByteArray("file/photo.jpg") << QByteArray("The folder does not exist.");
        QTest::newRow("folder") << QByteArray("folder") << QByteArray("There is a folder of that name.");
        QTest::newRow("folder, as a path") << QByteArray("folder/") << QByteArray("There is a folder of that name.");
        QTest::newRow("link to itself") << QByteArray("loop") << QByteArray("The link leads to itself.");
        QTest::newRow("pipe") << QByteArray("pipe") << QByteArray("There is no permission to write there.");
        QTest::newRow("too long") << QByteArray(300, 'n') << QByteArray("The file's name is too long.");
    }
    void whatCannotBeWrittenIsTold()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, reason);
        samples::writeFile(pathOf("file"), "old");
        QVERIFY(mkdir(pathOf("folder").constData(), 0755) == 0 && mkfifo(pathOf("pipe").constData(), 0644) == 0);
        QVERIFY(symlink("loop", pathOf("loop").constData()) == 0);
        QCOMPARE(refusal(pathOf(name), "data", reason.constData()), 0);
        QCOMPARE(samples::readFile(pathOf("file")), QByteArray("old"));
        QCOMPARE(names(), std::set<std::string>({"file", "folder", "loop", "pipe"}));
    }

    void readOnlyFolder()
    {
        samples::writeFile(pathOf("old.jpg"), "old");
        QVERIFY(chmod(pathOf("old.jpg").constData(), 0666) == 0 && chmod(pathOf("").constData(), 0555) == 0);
        const char* wanted = "There is no permission to write there.";
        QCOMPARE(resultInChild([&] { return refusal(pathOf("old.jpg"), "data", wanted); }), 0);
        QCOMPARE(resultInChild([&] { return refusal(pathOf("new.jpg"), "data", wanted); }), 0);
        QVERIFY(chmod(pathOf("").constData(), 0755) == 0);
        QCOMPARE(samples::readFile(pathOf("old.jpg")), QByteArray("old"));
        QCOMPARE(names(), std::set<std::string>({"old.jpg"}));
    }

    void readOnlyFile()
    {
        samples::writeFile(pathOf("old.jpg"), "old");
        QVERIFY(chmod(pathOf("old.jpg").constData(), 0444) == 0);
        const char* wanted = "There is no permission to write there.";
        QCOMPARE(resultInChild([&] { return refusal(pathOf("old.jpg"), "data", wanted); }), 0);
        QCOMPARE(samples::readFile(pathOf("old.jpg")), QByteArray("old"));
        QCOMPARE(names(), std::set<std::string>({"old.jpg"}));
    }

    void noRoomForTheData()
    {
        const QByteArray old(5000, 'o');
        samples::writeFile(pathOf("old.jpg"), old);
        QVERIFY(chmod(pathOf("old.jpg").constData(), 0666) == 0);
        QCOMPARE(resultInChild([&] {
            const rlimit limit = {100000, 100000};
            setrlimit(RLIMIT_FSIZE, &limit);
            return refusal(pathOf("old.jpg"), QByteArray(200000, 'n'), "The file is larger than may be written there.");
        }),
            0);
        QCOMPARE(samples::readFile(pathOf("old.jpg")), old);
        QCOMPARE(names(), std::set<std::string>({"old.jpg"}));
    }

    void killedWhileSaving()
    {
        const QByteArray path = pathOf("photo.jpg");
        const QByteArray contents[2] = {QByteArray(3000000, 'a'), QByteArray(2000000, 'b')};
        samples::writeFile(path, contents[0]);
        bool seen[2] = {};
        // On a slow disk the second content takes later moments than the first rounds have.
        for (int round = 0; round < 60 || (round < 600 && !(seen[0] && seen[1])); round++) {
            int started[2];
            QVERIFY(pipe(started) == 0);
            const pid_t process = fork();
            if (process == 0) {
                QString reason;
                for (int i = 0;; i++) {
                    writeFileAtomically(path, contents[i % 2], &reason);
                    if (i == 0 && ::write(started[1], "", 1) != 1)
                        _exit(1);
                }
            }
            char byte;
            QCOMPARE(read(started[0], &byte, 1), ssize_t(1));
            // Any moment of a save will do: each round takes another one.
            const timespec pause = {0, round * 211000};
            nanosleep(&pause, nullptr);
            QVERIFY(kill(process, SIGKILL) == 0);
            waitpid(process, nullptr, 0);
            close(started[0]);
            close(started[1]);
            const QByteArray found = samples::readFile(path);
            QVERIFY(found == contents[0] || found == contents[1]);
            seen[found == contents[1]] = true;
        }
        QVERIFY(seen[0] && seen[1]);
        // Whatever was left half-written does not keep the next save from its place.
        QVERIFY(write(path, "whole"));
        QCOMPARE(samples::readFile(path), QByteArray("whole"));
    }
};

QTEST_GUILESS_MAIN(AtomicWriteTest)
#include "AtomicWriteTest.moc"
