// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/PhotoLoader.h"
#include "photo/PhotoSaver.h"
#include "tests/photo/Samples.h"
#include "tests/photo/SaveFolder.h"

#include <QTest>
#include <csignal>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace {

/// 0 when `reason` is that one.
int compare(const QString& reason, const char* wanted)
{
    if (reason == QLatin1String(wanted))
        return 0;
    fprintf(stderr, "%s\n", qPrintable(reason));
    return 2;
}

/// 0 when writing fails for that reason.
int refusal(const QByteArray& path, const QByteArray& data, const char* wanted)
{
    QString reason;
    return writeFileAtomically(path, data, &reason) ? 1 : compare(reason, wanted);
}

/// 0 when it is known for that reason beforehand that so many bytes could not be written.
int warning(const QByteArray& path, qint64 bytes, const char* wanted)
{
    QString reason;
    return mayWriteFile(path, bytes, &reason) ? 1 : compare(reason, wanted);
}

} // namespace

class AtomicWriteTest : public QObject {
    Q_OBJECT

    std::unique_ptr<SaveFolder> m_folder;

    QByteArray pathOf(const QByteArray& name) { return m_folder->path(name); }
    std::set<std::string> names() { return m_folder->names(); }

private slots:
    void init() { m_folder = std::make_unique<SaveFolder>(); }
    void theSignalOfTheSizeLimitIsAsBefore()
    {
        const auto handler = [](int) {};
        const auto before = std::signal(SIGXFSZ, handler);
        QVERIFY(saves(pathOf("new.jpg"), "data"));
        QVERIFY(std::signal(SIGXFSZ, before) == static_cast<void (*)(int)>(handler));
    }

    void cleanup() { fileSystem = {}; }

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
        QVERIFY(saves(pathOf(name), "one"));
        QVERIFY(saves(pathOf(name), "two"));
        QCOMPARE(names(), std::set<std::string>({name.toStdString()}));
        QCOMPARE(samples::readFile(pathOf(name)), QByteArray("two"));
        QVERIFY(unlink(pathOf(name).constData()) == 0); // not every name is one that Qt could remove
    }

    void nameWithoutAFolder()
    {
        QVERIFY(chdir(pathOf("").constData()) == 0);
        QVERIFY(saves("photo.jpg", "data"));
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
        QVERIFY(saves(pathOf("absolute"), "new"));
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
        QVERIFY(saves(pathOf("photo.png"), encodeJpeg(photo.image, photo.metadata)));
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
        QCOMPARE(warning(pathOf(name), 4, reason.constData()), 0);
        QCOMPARE(refusal(pathOf(name), "data", reason.constData()), 0);
        QCOMPARE(samples::readFile(pathOf("file")), QByteArray("old"));
        QCOMPARE(names(), std::set<std::string>({"file", "folder", "loop", "pipe"}));
    }

    void readOnlyFolder()
    {
        samples::writeFile(pathOf("old.jpg"), "old");
        QVERIFY(chmod(pathOf("old.jpg").constData(), 0666) == 0 && chmod(pathOf("").constData(), 0555) == 0);
        const char* wanted = "There is no permission to write there.";
        for (const char* name : {"old.jpg", "new.jpg"}) {
            QCOMPARE(resultInChild([&] { return warning(pathOf(name), 4, wanted); }), 0);
            QCOMPARE(resultInChild([&] { return refusal(pathOf(name), "data", wanted); }), 0);
        }
        QVERIFY(chmod(pathOf("").constData(), 0755) == 0);
        QCOMPARE(samples::readFile(pathOf("old.jpg")), QByteArray("old"));
        QCOMPARE(names(), std::set<std::string>({"old.jpg"}));
    }

    void readOnlyFile()
    {
        samples::writeFile(pathOf("old.jpg"), "old");
        QVERIFY(chmod(pathOf("old.jpg").constData(), 0444) == 0);
        const char* wanted = "There is no permission to write there.";
        QCOMPARE(resultInChild([&] { return warning(pathOf("old.jpg"), 4, wanted); }), 0);
        QCOMPARE(resultInChild([&] { return refusal(pathOf("old.jpg"), "data", wanted); }), 0);
        QCOMPARE(samples::readFile(pathOf("old.jpg")), QByteArray("old"));
        QCOMPARE(names(), std::set<std::string>({"old.jpg"}));
    }

    void lookingBeforehandChangesNothing_data()
    {
        QTest::addColumn<bool>("noUnnamedFiles");
        QTest::newRow("files without a name") << false;
        QTest::newRow("files with hidden names") << true;
    }
    void lookingBeforehandChangesNothing()
    {
        QFETCH(bool, noUnnamedFiles);
        fileSystem.noUnnamedFiles = noUnnamedFiles;
        samples::writeFile(pathOf("old.jpg"), "old");
        struct statvfs disk = {};
        QVERIFY(statvfs(pathOf("").constData(), &disk) == 0 && disk.f_bavail > 0);
        const qint64 room = qint64(disk.f_bavail) * qint64(disk.f_frsize);
        QString reason;
        for (const char* name : {"old.jpg", "new.jpg"}) {
            QVERIFY(mayWriteFile(pathOf(name), room / 2, &reason));
            QCOMPARE(warning(pathOf(name), room * 2, "The disk is full."), 0);
        }
        QCOMPARE(reason, QString());
        QCOMPARE(samples::readFile(pathOf("old.jpg")), QByteArray("old"));
        QCOMPARE(names(), std::set<std::string>({"old.jpg"}));
    }

    void aHiddenFileOfAnotherSaveIsNotWrittenInto()
    {
        fileSystem.noUnnamedFiles = true;
        const QByteArray other = pathOf(".lumora-" + QByteArray::number(getpid()) + "-0");
        samples::writeFile(other, "of another save");
        const int unfinished = ::open(other.constData(), O_RDONLY);
        QVERIFY(unfinished >= 0 && flock(unfinished, LOCK_EX | LOCK_NB) == 0); // as long as it is being written
        QVERIFY(saves(pathOf("photo.jpg"), "data"));
        ::close(unfinished);
        QCOMPARE(samples::readFile(pathOf("photo.jpg")), QByteArray("data"));
        QCOMPARE(samples::readFile(other), QByteArray("of another save"));
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
};

QTEST_GUILESS_MAIN(AtomicWriteTest)
#include "AtomicWriteTest.moc"
