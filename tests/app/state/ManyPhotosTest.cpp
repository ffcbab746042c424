// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/ManyPhotos.h"
#include "app/state/PhotoNames.h"
#include "image/FilterNumber.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <unistd.h>

using namespace lumora;

class ManyPhotosTest : public QObject {
    Q_OBJECT

private slots:
    void argumentsNameEachChoice()
    {
        const ManyChoices plain = {{}, 100, "By Filter", "None", "Original", {}, Kept::WithoutPlace, JpegQuality::Best};
        QCOMPARE(renderArguments(plain, "/a b", 3).join('|'),
            QString("--strength|100|--crop|By "
                    "Filter|--border|None|--size|Original|--metadata|no-place|--quality|best|--jobs|3|"
                    "--output|/a b/|--skip-existing|--json|-0|--files-from|-"));
        GrowArray<int> looks;
        looks.add(Filter::mono);
        looks.add(Filter::look1962);
        const ManyChoices varied = {
            looks, 40, "Square", "Thin", "800", 4294967295, Kept::Everything, JpegQuality::Standard};
        QVERIFY(renderArguments(varied, "out", 1)
                    .join('|')
                    .startsWith("--look|Mono|--look|1962|--random|4294967295|--strength|40|--crop|Square|--border|Thin|"
                                "--size|800|--metadata|all|--quality|standard|"));
    }

    void linesAreCountedInWhateverPiecesTheyCome()
    {
        const QByteArray printed = "{\"output\":\"o/a.jpg\",\"file\":\"a\",\"size\":1}\n"
                                   "{\"output\":\"o/b.jpg\",\"file\":\"b\",\"reason\":\"It is broken.\"}\n"
                                   "{\"output\":\"o/c.jpg\",\"file\":\"c\",\"skipped\":true}\n"
                                   "{\"output\":\"o/d.jpg\",\"file\":\"d\",\"warning\":\"It breaks off.\"}\n";
        for (const int piece : {1, 7, 1000}) {
            ManyPhotos run(5);
            for (qsizetype at = 0; at < printed.size(); at += piece)
                run.add(printed.mid(at, piece));
            QCOMPARE(run.count(), 5);
            QCOMPARE(run.done(), 4);
            QCOMPARE(run.saved(), 2);
            QCOMPARE(run.there(), 1);
            QCOMPARE(run.failed(), 1);
            QCOMPARE(run.newest(), QString("o/d.jpg"));
            QCOMPARE(run.remarks().size(), 2);
            QCOMPARE(run.remarks()[0].file, QString("b"));
            QCOMPARE(run.remarks()[0].words, QString("It is broken."));
            QCOMPARE(run.remarks()[1].words, QString("It breaks off."));
        }
    }

    void theTimeLeftFollowsFromWhatWasWorkedOn()
    {
        ManyPhotos run(40);
        QCOMPARE(run.timeLeft(1000), -1);
        for (int i = 0; i < 10; i++)
            run.add("{\"skipped\":true}\n"); // which took no time
        QCOMPARE(run.timeLeft(1000), -1);
        for (int i = 0; i < 10; i++)
            run.add("{\"output\":\"a\"}\n");
        QCOMPARE(run.timeLeft(5000), 10000);
        for (int i = 0; i < 20; i++)
            run.add("{\"output\":\"a\"}\n");
        QCOMPARE(run.timeLeft(9000), 0);
    }

    void aFoldersPhotosAreKnownByTheirNames()
    {
        const QTemporaryDir folder;
        const QByteArray here = QFile::encodeName(folder.path());
        for (const char* name :
            {"b.JPG", "a 10.jpg", "a 9.jpg", "\xff.cr2", "notes.txt", "jpg", ".hidden.jpg", "folder.png/deep.png"}) {
            const QString path = folder.filePath("folder.png");
            QDir().mkpath(path);
            FILE* file = fopen((here + '/' + name).constData(), "w");
            QVERIFY(file);
            fclose(file);
        }
        QVERIFY(symlink("nowhere", (here + "/link.jpg").constData()) == 0);
        QByteArrayList photos = photosIn(here);
        QCOMPARE(photos.removeAll(here + "/\xff.cr2"), 1); // which reads as nothing
        QCOMPARE(photos, QByteArrayList({here + "/a 9.jpg", here + "/a 10.jpg", here + "/b.JPG"}));
        QVERIFY(photosIn(here + "/gone").empty());
    }
};

QTEST_GUILESS_MAIN(ManyPhotosTest)
#include "ManyPhotosTest.moc"
