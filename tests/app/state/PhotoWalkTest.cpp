// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/PhotoWalk.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

class PhotoWalkTest : public QObject {
    Q_OBJECT

private:
    /// A folder with empty files of those names, any bytes.
    struct Folder {
        explicit Folder(const QByteArrayList& names)
        {
            for (const QByteArray& name : names) {
                const int file = open((path + name).constData(), O_CREAT | O_WRONLY, 0600);
                if (file < 0)
                    qFatal("cannot make %s", name.constData());
                close(file);
                made << path + name;
            }
        }
        ~Folder()
        {
            for (const QByteArray& file : made)
                unlink(file.constData()); // the folder cannot name them all when it goes
        }

        /// The names that follow one, or come before it.
        QByteArrayList from(const QByteArray& name, PhotoWalk::Direction direction) const
        {
            QByteArrayList names;
            for (const QByteArray& file : PhotoWalk().from(path + name, direction)) {
                if (!file.startsWith(path))
                    qFatal("%s stands elsewhere", file.constData());
                names << file.mid(path.size());
            }
            return names;
        }

        QTemporaryDir folder;
        QByteArray path = QFile::encodeName(folder.path()) + '/';
        QByteArrayList made;
    };

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::English); } // not the desktop's: the order is the language's

    void namesFollowEachOtherInTheirNaturalOrder()
    {
        const Folder folder({"IMG_10.jpg", "IMG_9.jpg", "img_2.jpg", "IMG_1.jpg", "\xc3\xa4.jpg", "b.jpg", "z"});
        QCOMPARE(folder.from("IMG_9.jpg", PhotoWalk::On), QByteArrayList({"IMG_10.jpg", "z"}));
        QCOMPARE(folder.from("IMG_9.jpg", PhotoWalk::Back),
            QByteArrayList({"img_2.jpg", "IMG_1.jpg", "b.jpg", "\xc3\xa4.jpg"}));
        QCOMPARE(folder.from("z", PhotoWalk::On), QByteArrayList());
        QCOMPARE(folder.from("\xc3\xa4.jpg", PhotoWalk::Back), QByteArrayList());
    }

    void whatIsNoFileOfTheFolderIsLeftOut()
    {
        const Folder folder({"1", "3", ".hidden"});
        QVERIFY(mkdir((folder.path + "2").constData(), 0700) == 0);
        QVERIFY(mkfifo((folder.path + "2b").constData(), 0600) == 0);
        QVERIFY(symlink("gone", (folder.path + "2c").constData()) == 0);
        QVERIFY(symlink("3", (folder.path + "4").constData()) == 0);
        QCOMPARE(folder.from("1", PhotoWalk::On), QByteArrayList({"3", "4"}));
        QCOMPARE(folder.from("4", PhotoWalk::Back), QByteArrayList({"3", "1"}));
    }

    void namesMayBeOfAnyBytes()
    {
        const Folder folder({"a", "\xff\xfe", "\xff\xff", "two\nlines", "100%s"});
        QByteArrayList all = folder.from("a", PhotoWalk::Back) + folder.from("a", PhotoWalk::On);
        std::sort(all.begin(), all.end());
        QCOMPARE(all, QByteArrayList({"100%s", "two\nlines", "\xff\xfe", "\xff\xff"}));
        // Two that read the same have their places, too.
        QCOMPARE(folder.from("\xff\xfe", PhotoWalk::On).contains("\xff\xff"),
            !folder.from("\xff\xff", PhotoWalk::On).contains("\xff\xfe"));
    }

    void aPhotoThatIsGoneHasItsPlace()
    {
        const Folder folder({"1", "3"});
        QCOMPARE(folder.from("2", PhotoWalk::On), QByteArrayList({"3"}));
        QCOMPARE(folder.from("2", PhotoWalk::Back), QByteArrayList({"1"}));
        QCOMPARE(PhotoWalk().from("/nowhere/at.all", PhotoWalk::On), QByteArrayList());
        QCOMPARE(PhotoWalk().from("", PhotoWalk::On), QByteArrayList());
    }

    void aRelativePathStaysOne()
    {
        const Folder folder({"1", "2"});
        QVERIFY(chdir(folder.path.constData()) == 0);
        QCOMPARE(PhotoWalk().from("1", PhotoWalk::On), QByteArrayList({"2"}));
        QCOMPARE(PhotoWalk().from("./2", PhotoWalk::Back), QByteArrayList({"./1"}));
    }

    void severalFilesKeepTheirOrder()
    {
        const Folder folder({"1", "2"});
        PhotoWalk walk;
        walk.setFiles({"/c", "/a", "/c", "/b"});
        QCOMPARE(walk.from("/c", PhotoWalk::On), QByteArrayList({"/a", "/b"}));
        QCOMPARE(walk.from("/b", PhotoWalk::Back), QByteArrayList({"/a", "/c"}));
        QCOMPARE(walk.from(folder.path + "1", PhotoWalk::On), QByteArrayList({folder.path + "2"})); // another photo
        walk.setFiles({folder.path + "1"}); // alone
        QCOMPARE(walk.from(folder.path + "1", PhotoWalk::On), QByteArrayList({folder.path + "2"}));
    }
};

QTEST_GUILESS_MAIN(PhotoWalkTest)
#include "PhotoWalkTest.moc"
