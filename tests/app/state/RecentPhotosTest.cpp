// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/RecentPhotos.h"
#include "tests/app/Desk.h"

class RecentPhotosTest : public QObject {
    Q_OBJECT

private slots:
    void init() { setPreferences({}); }

    void theNewestComesFirst()
    {
        QCOMPARE(recentPhotos(), QByteArrayList());
        addRecentPhoto("/a");
        addRecentPhoto("/b");
        addRecentPhoto("/a");
        QCOMPARE(recentPhotos(), QByteArrayList({"/a", "/b"}));
    }

    void thereAreEightAtMost()
    {
        for (int i = 1; i <= 10; i++)
            addRecentPhoto("/" + QByteArray::number(i));
        QCOMPARE(recentPhotos(), QByteArrayList({"/10", "/9", "/8", "/7", "/6", "/5", "/4", "/3"}));
        setPreferences("[Recent]\nPhotos=/1 /2 /3 /4 /5 /6 /7 /8 /9\n");
        QCOMPARE(recentPhotos().size(), 8);
    }

    void pathsMayBeOfAnyBytes()
    {
        const QByteArrayList paths = {"/50% of [\xc3\xa9]; a, b/@x", "/two words\nand lines", "/\xff\xfe\"\\=&"};
        for (const QByteArray& path : paths)
            addRecentPhoto(path);
        QCOMPARE(recentPhotos(), QByteArrayList({paths[2], paths[1], paths[0]}));
    }

    void aRelativePathBecomesAbsolute()
    {
        addRecentPhoto("a.jpg");
        QCOMPARE(recentPhotos(), QByteArrayList({QFile::encodeName(QDir::currentPath()) + "/a.jpg"}));
    }

    void theListCanBeCleared()
    {
        addRecentPhoto("/a");
        clearRecentPhotos();
        QCOMPARE(recentPhotos(), QByteArrayList());
    }
};

DESK_MAIN(RecentPhotosTest)
#include "RecentPhotosTest.moc"
