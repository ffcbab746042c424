// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/Export.h"
#include "image/FilterNumber.h"
#include "render/FramingChoice.h"
#include "tests/photo/Samples.h"

#include <QTest>

using namespace lumora;

class ExportTest : public QObject {
    Q_OBJECT

    static GrowArray<int> stack(std::initializer_list<int> looks)
    {
        GrowArray<int> list;
        for (const int look : looks)
            list.add(look);
        return list;
    }

private slots:
    void exportReachesItsLongerSideAlsoUpwards()
    {
        QCOMPARE(exportSize({640, 480}, 1000), QSizeF(1000, 750));
        QCOMPARE(exportSize({2000, 3000}, 600), QSizeF(400, 600));
        QCOMPARE(exportSize({70, 70}, 100), QSizeF(100, 100));
    }

    void bitmapsRoundHalvesUpAndKeepAPixel()
    {
        QCOMPARE(bitmapSize({10.5, 10.49}), QSize(11, 10));
        QCOMPARE(bitmapSize({100, 0.02}), QSize(100, 1));
    }

    void scalingKeepsTheExactSizeForWhoAsks()
    {
        QImage picture = samples::noise(30, 20);
        QCOMPARE(scaleForExport(picture, 8), QSizeF(8, 8 * 20.0 / 30.0));
        QCOMPARE(picture.size(), QSize(8, 5));
    }

    void namesTellTheLooks()
    {
        const GrowArray<int> none, one = stack({Filter::helga}), two = stack({Filter::mono, Filter::look1962});
        QCOMPARE(exportName("over.png", none), "over.jpg");
        QCOMPARE(exportName("over.png", one), "over Helga.jpg");
        QCOMPARE(exportName("over.png", two, ".png"), "over Mono 1962.png");
        QCOMPARE(exportName("a.b.tiff", one), "a.b Helga.jpg");
        QCOMPARE(exportName("plain", one), "plain Helga.jpg");
        QCOMPARE(exportName(".hidden", one), ".hidden Helga.jpg");
        QCOMPARE(exportName("\xff%s.jpg", one), "\xff%s Helga.jpg");
    }

    void choicesStandForFilters()
    {
        const GrowArray<int> none, two = stack({Filter::mono, Filter::look1974});
        QCOMPARE(chosenFilter("By Filter", two), Filter::look1974);
        QCOMPARE(chosenFilter("By Filter", none), Filter::original);
        QCOMPARE(chosenFilter("None", two), Filter::original);
        QCOMPARE(chosenFilter("Square", two), Filter::square);
        QCOMPARE(chosenFilter("Cinema", two), Filter::cinema);
        for (const QStringList& choices : {cropChoices(), borderChoices()}) {
            QCOMPARE(choices.first(), QString("By Filter"));
            for (const QString& choice : choices.mid(1))
                QCOMPARE(chosenFilter(choice, two) == Filter::original, choice == "None");
        }
        QCOMPARE(chosenSize("Original"), -1);
        for (const QString& choice : sizeChoices().mid(1))
            QVERIFY(chosenSize(choice) >= 100);
    }
};

QTEST_GUILESS_MAIN(ExportTest)
#include "ExportTest.moc"
