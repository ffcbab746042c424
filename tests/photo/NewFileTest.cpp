// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/PhotoSaver.h"
#include "tests/photo/Samples.h"
#include "tests/photo/SaveFolder.h"

#include <QTest>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

/// Files that are written where none stands.
class NewFileTest : public QObject {
    Q_OBJECT

    std::unique_ptr<SaveFolder> m_folder;

    QByteArray pathOf(const QByteArray& name) { return m_folder->path(name); }
    /// The reason; empty where it was written.
    static QString written(const QByteArray& path, const QByteArray& data)
    {
        QString reason;
        const bool done = writeNewFile(path, data, &reason);
        return done == reason.isEmpty() ? reason : QString("written with a reason, or refused without one");
    }

private slots:
    void init() { m_folder = std::make_unique<SaveFolder>(); }
    void cleanup() { fileSystem = {}; }

    void onEveryFileSystem_data()
    {
        QTest::addColumn<FileSystemFaults>("faults");
        QTest::newRow("all that it needs") << FileSystemFaults{};
        QTest::newRow("no unnamed files") << FileSystemFaults{.noUnnamedFiles = true};
        QTest::newRow("no names that must be new") << FileSystemFaults{.noUnnamedFiles = true, .noNewNames = true};
        QTest::newRow("a memory card") << FileSystemFaults{.noUnnamedFiles = true, .noLinks = true, .noRights = true};
    }
    void onEveryFileSystem()
    {
        QFETCH(FileSystemFaults, faults);
        fileSystem = faults;
        QCOMPARE(written(pathOf("photo.jpg"), "one"), QString());
        QCOMPARE(samples::readFile(pathOf("photo.jpg")), QByteArray("one"));
        QCOMPARE(written(pathOf("photo.jpg"), "two"), QString("There is a file of that name already."));
        QCOMPARE(samples::readFile(pathOf("photo.jpg")), QByteArray("one"));
        QCOMPARE(m_folder->names(), std::set<std::string>({"photo.jpg"}));
    }

    void whatComesMeanwhileStays()
    {
        fileSystem.atWrite = [this] { samples::writeFile(pathOf("photo.jpg"), "another's"); };
        QCOMPARE(written(pathOf("photo.jpg"), "mine"), QString("There is a file of that name already."));
        QCOMPARE(samples::readFile(pathOf("photo.jpg")), QByteArray("another's"));
    }

    void linksAndFoldersStay()
    {
        QVERIFY(symlink("nowhere", pathOf("link.jpg").constData()) == 0);
        QVERIFY(mkdir(pathOf("folder.jpg").constData(), 0777) == 0);
        for (const char* name : {"link.jpg", "folder.jpg"})
            QCOMPARE(written(pathOf(name), "data"), QString("There is a file of that name already."));
        QCOMPARE(m_folder->names(), std::set<std::string>({"link.jpg", "folder.jpg"}));
        QCOMPARE(written(pathOf("gone/photo.jpg"), "data"), QString("The folder does not exist."));
    }

    void itHasTheRightsOfANewFile()
    {
        const mode_t before = umask(027);
        QCOMPARE(written(pathOf("photo.jpg"), "data"), QString());
        umask(before);
        QCOMPARE(permissionsOf(pathOf("photo.jpg")), mode_t(0640));
    }
};

QTEST_GUILESS_MAIN(NewFileTest)
#include "NewFileTest.moc"
