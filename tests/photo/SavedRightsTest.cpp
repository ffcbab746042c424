// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/Samples.h"
#include "tests/photo/SaveFolder.h"

#include <QTest>
#include <acl/libacl.h>
#include <memory>
#include <sys/acl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

/// The access control list of a file in its short text form, as "u::rw-,g::r--,o::r--".
QByteArray listOf(const QByteArray& path)
{
    const acl_t list = acl_get_file(path.constData(), ACL_TYPE_ACCESS);
    char* const text = acl_to_any_text(list, nullptr, ',', TEXT_ABBREVIATE | TEXT_NUMERIC_IDS);
    const QByteArray shown = text;
    acl_free(text);
    acl_free(list);
    return shown;
}

bool setList(const QByteArray& path, const char* text, acl_type_t type = ACL_TYPE_ACCESS)
{
    const acl_t list = acl_from_text(text);
    const bool set = acl_set_file(path.constData(), type, list) == 0;
    acl_free(list);
    return set;
}

QByteArray attribute(const QByteArray& path, const char* name)
{
    char value[100];
    const ssize_t size = getxattr(path.constData(), name, value, sizeof value);
    return size < 0 ? QByteArray("none") : QByteArray(value, size);
}

} // namespace

/// What may be done with a saved file, and by whom.
class SavedRightsTest : public QObject {
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

    void newFile()
    {
        const mode_t before = umask(027);
        QVERIFY(saves(pathOf("new.jpg"), "data"));
        umask(before);
        QCOMPARE(samples::readFile(pathOf("new.jpg")), QByteArray("data"));
        QCOMPARE(permissionsOf(pathOf("new.jpg")), mode_t(0640));
        QCOMPARE(names(), std::set<std::string>({"new.jpg"}));
    }

    void replacedFileKeepsItsPermissions()
    {
        samples::writeFile(pathOf("old.jpg"), QByteArray(10000, 'o'));
        for (const mode_t permissions : {0600, 0664, 0755, 01644, 02755, 04755}) {
            chmod(pathOf("old.jpg").constData(), permissions);
            QVERIFY(saves(pathOf("old.jpg"), "new"));
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
        QVERIFY(saves(pathOf("old.jpg"), "new"));
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
        const bool isOwn = geteuid() != 0; // only the superuser can give the file to somebody else
        QVERIFY(isOwn || chown(pathOf("old.jpg").constData(), 1, group) == 0);
        QVERIFY(chmod(pathOf("old.jpg").constData(), before) == 0);
        QCOMPARE(resultInChild([&] { return saves(pathOf("old.jpg"), "new") ? 0 : 1; }), 0);
        struct stat status = {};
        QVERIFY(stat(pathOf("old.jpg").constData(), &status) == 0);
        QCOMPARE(samples::readFile(pathOf("old.jpg")), QByteArray("new"));
        QCOMPARE(permissionsOf(pathOf("old.jpg")), isOwn ? before : after);
        if (group == sharedGroup)
            QCOMPARE(status.st_gid, isOwn ? getegid() : sharedGroup);
    }

    void groupThatCannotBeKeptWidensNothing()
    {
        // A member of the former group, which could do less than everybody, now counts as everybody.
        samples::writeFile(pathOf("old.jpg"), "old");
        const bool isOwn = geteuid() != 0;
        QVERIFY(isOwn || chown(pathOf("old.jpg").constData(), 1, 1) == 0);
        QVERIFY(chmod(pathOf("old.jpg").constData(), 0606) == 0);
        QCOMPARE(resultInChild([&] { return saves(pathOf("old.jpg"), "new") ? 0 : 1; }), 0);
        QCOMPARE(permissionsOf(pathOf("old.jpg")), mode_t(isOwn ? 0606 : 0600));
    }

    void accessControlListStays()
    {
        samples::writeFile(pathOf("old.jpg"), "old");
        const char* list = "u::rw-,u:1234:rw-,g::---,g:2345:r--,m::rw-,o::---";
        QVERIFY(setList(pathOf("old.jpg"), list));
        QVERIFY(saves(pathOf("old.jpg"), "new"));
        QCOMPARE(listOf(pathOf("old.jpg")), QByteArray(list));
        QCOMPARE(samples::readFile(pathOf("old.jpg")), QByteArray("new"));
    }

    void listOfTheFolderIsForNewFilesAlone()
    {
        QVERIFY(setList(pathOf(""), "u::rwx,u:1234:rwx,g::r-x,m::rwx,o::---", ACL_TYPE_DEFAULT));
        samples::writeFile(pathOf("old.jpg"), "old");
        QVERIFY(setList(pathOf("old.jpg"), "u::rw-,g::rw-,o::r--"));
        QVERIFY(saves(pathOf("old.jpg"), "new"));
        QCOMPARE(listOf(pathOf("old.jpg")), QByteArray("u::rw-,g::rw-,o::r--"));
        QVERIFY(saves(pathOf("new.jpg"), "new"));
        QCOMPARE(listOf(pathOf("new.jpg")), QByteArray("u::rw-,u:1234:rwx,g::r-x,m::rw-,o::---"));
    }

    void listOfAnotherUsersFileGivesNobodyMore()
    {
        samples::writeFile(pathOf("old.jpg"), "old");
        const bool isOwn = geteuid() != 0;
        QVERIFY(isOwn || chown(pathOf("old.jpg").constData(), 1, 1) == 0);
        const QByteArray list = "u::rw-,u:1234:rw-,u:65534:rw-,g::rwx,m::rwx,o::r--";
        QVERIFY(setList(pathOf("old.jpg"), list.constData()));
        QCOMPARE(resultInChild([&] { return saves(pathOf("old.jpg"), "new") ? 0 : 1; }), 0);
        QCOMPARE(listOf(pathOf("old.jpg")), isOwn ? list : QByteArray(list).replace("g::rwx", "g::r--"));
    }

    void listThatCannotBeKeptLeavesTheOwnerAlone()
    {
        samples::writeFile(pathOf("old.jpg"), "old");
        QVERIFY(setList(pathOf("old.jpg"), "u::rw-,u:1234:---,g::rw-,m::rw-,o::rw-"));
        fileSystem.settingLists = ENOSPC;
        QVERIFY(saves(pathOf("old.jpg"), "new"));
        QCOMPARE(listOf(pathOf("old.jpg")), QByteArray("u::rw-,g::---,o::---"));
    }

    void permissionsStayWhereThereAreNoLists()
    {
        samples::writeFile(pathOf("old.jpg"), "old");
        QVERIFY(chmod(pathOf("old.jpg").constData(), 0664) == 0);
        fileSystem.settingLists = ENOTSUP;
        QVERIFY(saves(pathOf("old.jpg"), "new"));
        QCOMPARE(permissionsOf(pathOf("old.jpg")), mode_t(0664));
    }

    void attributesOfTheUserStay()
    {
        samples::writeFile(pathOf("old.jpg"), "old");
        const QByteArray path = pathOf("old.jpg"), value("a\0b", 3);
        QVERIFY(setxattr(path.constData(), "user.xdg.comment", value.constData(), 3, 0) == 0);
        QVERIFY(setxattr(path.constData(), "user.empty", "", 0, 0) == 0);
        // Those of the system are not to be handed on, not even by the superuser, who alone can set them.
        QVERIFY(setxattr(path.constData(), "trusted.label", "t", 1, 0) == 0 || errno == EPERM);
        QVERIFY(saves(path, "new"));
        QCOMPARE(attribute(path, "trusted.label"), QByteArray("none"));
        QCOMPARE(attribute(path, "user.xdg.comment"), value);
        QCOMPARE(attribute(path, "user.empty"), QByteArray());
    }

    void untilItIsCompleteNobodyElseMayReadIt()
    {
        for (const bool noUnnamedFiles : {false, true}) {
            samples::writeFile(pathOf("old.jpg"), "old");
            QVERIFY(chmod(pathOf("old.jpg").constData(), 0644) == 0);
            fileSystem.noUnnamedFiles = noUnnamedFiles;
            mode_t seen = 1;
            fileSystem.atWrite = [&] {
                for (const std::string& name : names())
                    if (name.starts_with(".lumora-"))
                        seen = permissionsOf(pathOf(name.c_str()));
            };
            QVERIFY(saves(pathOf("old.jpg"), "new"));
            QCOMPARE(seen, mode_t(noUnnamedFiles ? 0600 : 1));
            QCOMPARE(permissionsOf(pathOf("old.jpg")), mode_t(0644));
        }
    }
};

QTEST_GUILESS_MAIN(SavedRightsTest)
#include "SavedRightsTest.moc"
