// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/DraggedPhoto.h"
#include "app/desktop/PrivateFolder.h"
#include "tests/app/Desk.h"

#include <QUrl>
#include <sys/stat.h>

class DraggedPhotoTest : public QObject {
    Q_OBJECT

private slots:
    void nothingIsMadeBeforeItIsAskedFor()
    {
        int files = 0, pictures = 0;
        DraggedPhoto photo(
            [&] {
                files++;
                return QString("/over #1 & é.jpg");
            },
            [&] {
                pictures++;
                return makePhoto(6, 4);
            });
        QVERIFY(photo.hasUrls() && photo.hasImage());
        QCOMPARE(files + pictures, 0);
        for (int i = 0; i < 2; i++)
            QCOMPARE(photo.urls(), QList<QUrl>({QUrl::fromLocalFile("/over #1 & é.jpg")}));
        QCOMPARE(files, 1); // a target may ask more than once
        QCOMPARE(photo.data("text/uri-list"), QByteArray("file:///over%20%231%20&%20%C3%A9.jpg\r\n"));
        QCOMPARE(qvariant_cast<QImage>(photo.imageData()), makePhoto(6, 4));
        QCOMPARE(pictures, 1);
    }

    void whatCannotBeMadeIsNotThere()
    {
        const DraggedPhoto photo([] { return QString(); }, [] { return QImage(); });
        QCOMPARE(photo.urls(), QList<QUrl>());
        QVERIFY(!photo.imageData().isValid());
    }

    void aFileLiesInAFolderThatGoesWithTheProgram()
    {
        const QTemporaryDir runtime;
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
        QString first, second;
        {
            PrivateFolder folder;
            QVERIFY(QDir(runtime.path()).isEmpty());
            first = folder.write("over.jpg", "one");
            second = folder.write("over.jpg", "two");
            QVERIFY(first.startsWith(runtime.path() + '/') && QFileInfo(first).fileName() == "over.jpg");
            QCOMPARE(contentsOf(QFile::encodeName(first)), QByteArray("one"));
            QCOMPARE(contentsOf(QFile::encodeName(second)), QByteArray("two"));
            const QStringList made = QDir(runtime.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
            QCOMPARE(made.size(), 1);
            struct stat status = {};
            QVERIFY(stat(QFile::encodeName(runtime.filePath(made.first())).constData(), &status) == 0);
            QCOMPARE(int(status.st_mode & 07777), 0700);
            QCOMPARE(folder.write("a/b.jpg", "three"), QString());
        }
        QVERIFY(QDir(runtime.path()).isEmpty());
    }

    void withoutARuntimeFolderItLiesAmongTemporaryFiles()
    {
        qputenv("XDG_RUNTIME_DIR", "/nowhere");
        PrivateFolder folder;
        QVERIFY(folder.write("over.jpg", "one").startsWith(QDir::tempPath() + '/'));
    }
};

DESK_MAIN(DraggedPhotoTest)
#include "DraggedPhotoTest.moc"
