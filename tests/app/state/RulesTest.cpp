// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/Rules.h"
#include "render/Export.h"

#include <QtTest>

using namespace lumora;

class RulesTest : public QObject {
    Q_OBJECT

private slots:
    void init() { QLocale::setDefault(QLocale::English); } // not the desktop's, nor that of the test before

    void lengthsAreToldByTheLocale()
    {
        QLocale::setDefault(QLocale::German);
        QCOMPARE(shownLength(2'149'000), "2,1 MB");
    }

    void aSavedFileIsNamedWithoutControlCharacters()
    {
        QCOMPARE(shownLength(0), "0 bytes");
        QCOMPARE(shownLength(999'400), "999 kB");
        QCOMPARE(shownLength(1'000'000), "1.0 MB");
        QCOMPARE(shownLength(2'149'000), "2.1 MB");
        QCOMPARE(savedLine("over\nHelga.jpg", QSize(1600, 1067), 412'345), "Saved over Helga.jpg, 1600 x 1067, 412 kB");
    }

    void displayResAtLoadIsTheFirstStepOf20()
    {
        QCOMPARE(displayResAtLoad(1000), 1000);
        QCOMPARE(displayResAtLoad(805), 820);
        QCOMPARE(displayResAtLoad(600), 800);
        QCOMPARE(displayResAtLoad(800), 800);
        QCOMPARE(displayResAtLoad(801), 820);
    }

    void displayResGrowsByTruncatedFactorsAndNeverShrinks()
    {
        QCOMPARE(displayResAfterResize(800, 1000), 1152); // 960, then 1152
        QCOMPARE(displayResAfterResize(1152, 900), 1152);
        QCOMPARE(displayResAfterResize(1152, 1153), 1382); // 1382.4
        QCOMPARE(displayResAfterResize(820, 821), 984);
    }

    void displayCopyFitsItsLongerSide()
    {
        const QSizeF landscape = displaySize({3000, 2000}, 800);
        QCOMPARE(landscape.width(), 800.0);
        QVERIFY(qAbs(landscape.height() - 533.33) < 0.005);
        QCOMPARE(bitmapSize(landscape), QSize(800, 533));
        QCOMPARE(bitmapSize(displaySize({2000, 3000}, 800)), QSize(533, 800));
        QCOMPARE(displaySize({640, 480}, 800), QSizeF(640, 480));
        QCOMPARE(displaySize({2000, 2000}, 800), QSizeF(2000, 2000));
    }

    void aThumbnailTakesNoMoreThanANinthOfTheWindow()
    {
        QCOMPARE(thumbnailSide(1000, 900), 100);
        QCOMPARE(thumbnailSide(1000, 899), 99);
        QCOMPARE(thumbnailSide(100, 900), 92); // nor than its button
        QCOMPARE(thumbnailSide(1000, 2000), 120);
        QCOMPARE(thumbnailSide(10, 10), 72);
    }

    void thumbnailHasAShorterSideOf100()
    {
        QCOMPARE(thumbnailSize({3000, 2000}), QSizeF(150, 100));
        QCOMPARE(thumbnailSize({2000, 3000}), QSizeF(100, 150));
        QCOMPARE(thumbnailSize({50, 50}), QSizeF(100, 100));
    }

    void breadcrumbNamesTheChain()
    {
        GrowArray<int> looks;
        QCOMPARE(breadcrumb(looks, false), QString("Original"));
        QCOMPARE(breadcrumb(looks, true), QString("Original"));
        looks.add(Filter::helga);
        QCOMPARE(breadcrumb(looks, false), QString("Helga"));
        looks.add(Filter::mono);
        QCOMPARE(breadcrumb(looks, true), QString("Original > Helga > Mono"));
    }

    void namesAreShownOnOneLine()
    {
        QCOMPARE(fileNameOf("/a/b c.jpg"), QByteArray("b c.jpg"));
        QCOMPARE(fileNameOf("plain"), QByteArray("plain"));
        QCOMPARE(shownName("two\nlines\tand 100%s.jpg"), QString("two lines and 100%s.jpg"));
        QCOMPARE(shownName("a\u2028b\u2029c\u0085.jpg"), QString("a b c .jpg"));
        QCOMPARE(shownName("\xff.jpg"), QString(QChar(0xfffd)) + ".jpg");
    }
};

QTEST_APPLESS_MAIN(RulesTest)
#include "RulesTest.moc"
