// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "render/RenderPipeline.h"
#include "tests/app/Desk.h"

#include <QCheckBox>
#include <QMenuBar>
#include <cstring>

using namespace lumora;

using Looks = std::vector<int>;

namespace {

using namespace Filter;

} // namespace

class AppliedFiltersTest : public QObject {
    Q_OBJECT

private:
    static QAction* menuEntry(Desk& desk, const QString& menu, const QString& name)
    {
        for (QAction* title : desk.find<QMenuBar>("menubar")->actions())
            if (title->text().remove('&') == menu)
                for (QAction* entry : title->menu()->actions())
                    if (entry->text().remove('&') == name)
                        return entry;
        return nullptr;
    }

private slots:
    void init() { setPreferences({}); }

    void listMessagesEditTheListAndRenderNothing()
    {
        Desk desk(makePhoto(60, 40));
        const qint64 render = desk.render();
        auto& window = desk.window;
        window.addAppliedFilter(helga);
        window.addAppliedFilter(mono);
        window.addAppliedFilter(helga);
        QCOMPARE(desk.looks(), (Looks{helga, mono}));
        window.toggleAppliedFilter(lolo);
        QCOMPARE(desk.looks(), (Looks{helga, mono, lolo}));
        window.removeAppliedFilter(mono);
        window.removeAppliedFilter(mono);
        QCOMPARE(desk.looks(), (Looks{helga, lolo}));
        window.toggleAppliedFilter(helga);
        QCOMPARE(desk.looks(), (Looks{lolo}));
        window.addAppliedFilter(cinema);
        window.removeOtherFilters(cinema);
        QCOMPARE(desk.looks(), (Looks{cinema}));
        window.removeOtherFilters(mono);
        QCOMPARE(desk.looks(), Looks());
        window.addAppliedFilter(mono);
        window.removeAllFilters();
        QCOMPARE(window.filterIDs.numThings, 0);
        QCOMPARE(window.filterIDs.maxThings, 0);
        QCOMPARE(desk.render(), render);
    }

    void singleModeTakesOneLookAndTakesItOff()
    {
        Desk desk(makePhoto(60, 40));
        desk.click("btnHelga");
        QCOMPARE(desk.looks(), (Looks{helga}));
        QCOMPARE(desk.breadcrumb(), QString("Helga"));
        desk.click("btnHelga");
        QCOMPARE(desk.looks(), Looks());
        QCOMPARE(desk.breadcrumb(), QString("Original"));
        desk.click("btnHelga");
        desk.click("btnLolo");
        QCOMPARE(desk.looks(), (Looks{lolo}));
        QCOMPARE(desk.breadcrumb(), QString("Lolo"));
    }

    void multiModeStacksAndTakesOutWhereverItStands()
    {
        Desk desk(makePhoto(60, 40));
        desk.click("chkMultiFilter");
        for (const char* button : {"btnHelga", "btnLolo", "btnMono"})
            desk.click(button);
        desk.click("btnCinema");
        QCOMPARE(desk.looks(), (Looks{helga, lolo, mono, cinema}));
        QCOMPARE(desk.breadcrumb(), QString("Original > Helga > Lolo > Mono > Cinema"));
        desk.click("btnCinema");
        desk.click("btnLolo");
        QCOMPARE(desk.looks(), (Looks{helga, mono}));
        desk.click("btnOriginal");
        QCOMPARE(desk.looks(), Looks());
        QCOMPARE(desk.breadcrumb(), QString("Original"));
    }

    void leavingMultiModeKeepsTheLastLookAndRenders()
    {
        Desk desk(makePhoto(60, 40));
        desk.click("chkMultiFilter");
        desk.click("btnHelga");
        desk.click("btnMono");
        qint64 render = desk.render();
        desk.click("chkMultiFilter");
        QCOMPARE(desk.looks(), (Looks{mono}));
        QCOMPARE(desk.breadcrumb(), QString("Mono"));
        QVERIFY(desk.render() != render);

        desk.click("btnMono");
        desk.choose("btnBorders", "Thin"); // without it the render of no look is the photo itself
        desk.click("chkMultiFilter");
        render = desk.render();
        desk.click("chkMultiFilter");
        QCOMPARE(desk.looks(), Looks());
        QVERIFY(desk.render() != render);
    }

    void enteringMultiModeOnlyChangesTheBreadcrumb()
    {
        Desk desk(makePhoto(60, 40));
        desk.click("btnHelga");
        const qint64 render = desk.render();
        desk.click("chkMultiFilter");
        QCOMPARE(desk.looks(), (Looks{helga}));
        QCOMPARE(desk.render(), render);
        QCOMPARE(desk.breadcrumb(), QString("Original > Helga"));
        QVERIFY(desk.window.doMultiFiltering);
    }

    void withoutAPhotoOnlyTheListChanges()
    {
        Desk desk;
        desk.click("btnHelga");
        QCOMPARE(desk.looks(), (Looks{helga}));
        QCOMPARE(desk.breadcrumb(), QString("Original"));
        for (const char* button :
            {"chkMultiFilter", "btnMono", "chkMultiFilter", "btnOriginal", "chkRandomness", "btnReExpose", "btnHelga"})
            desk.click(button);
        desk.choose("btnBorders", "Thin");
        desk.choose("btnCropping", "Square");
        desk.choose("btnImgSize", "800");
        QCOMPARE(desk.looks(), (Looks{helga}));
        QVERIFY(desk.find<DragDropImageView>("mainImageView")->image().isNull());
        QVERIFY(desk.window.getFiltersAppliedImage().isNull());
        QCOMPARE(desk.pressedButtons(), QStringList("Helga"));
    }

    void savedMultiModeBeginsWithTheFirstRender()
    {
        setPreferences("[General]\nPrefsVersion=2\nUseMultiFilter=true\n");
        Desk desk;
        QVERIFY(desk.find<QCheckBox>("chkMultiFilter")->isChecked());
        desk.click("btnHelga");
        desk.click("btnLolo");
        QCOMPARE(desk.looks(), (Looks{lolo}));
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "p.png", makePhoto(60, 40))));
        desk.click("btnHelga");
        QCOMPARE(desk.looks(), (Looks{lolo, helga}));
    }

    void eachButtonAppliesItsLook()
    {
        const std::pair<const char*, int> buttons[] = {{"btnHelga", helga}, {"btnLolo", lolo}, {"btnCinema", cinema},
            {"btn1962", look1962}, {"btn1974", look1974}, {"btnMono", mono}, {"btnFishEye", colorcross},
            {"btnInstant", instant}, {"btnMagazine", magazine}};
        Desk desk(makePhoto(60, 40));
        for (const auto& [button, filter] : buttons) {
            desk.click(button);
            QCOMPARE(desk.looks(), (Looks{filter}));
            QCOMPARE(desk.pressedButtons(), QStringList(CharImage::getFilterName(filter)));
        }
        desk.click("btnOriginal");
        QCOMPARE(desk.looks(), Looks());
        QCOMPARE(desk.pressedButtons(), QStringList("Original"));
        desk.click("btnOriginal");
        QCOMPARE(desk.pressedButtons(), QStringList("Original"));
        desk.window.applyInfraredFilter();
        QCOMPARE(desk.looks(), (Looks{infrared}));
        QCOMPARE(desk.pressedButtons(), QStringList());
    }

    void theFishEyeButtonSaysWhatItDoes()
    {
        Desk desk(makePhoto(60, 40));
        QCOMPARE(desk.find<QToolButton>("btnFishEye")->text(), QString("Colorcross"));
        desk.click("btnFishEye");
        QCOMPARE(desk.looks(), (Looks{colorcross}));
    }

    void digitsPressTheTenButtons()
    {
        Desk desk(makePhoto(60, 40));
        const int filters[] = {helga, lolo, cinema, look1962, look1974, mono, colorcross, instant, magazine};
        for (int i = 0; i < 9; i++) {
            QTest::keyClick(&desk.window, Qt::Key(i == 8 ? Qt::Key_0 : Qt::Key_2 + i));
            QCOMPARE(desk.looks(), (Looks{filters[i]}));
        }
        QTest::keyClick(&desk.window, Qt::Key_1);
        QCOMPARE(desk.looks(), Looks());
    }

    void theMenuReachesEveryLook()
    {
        Desk desk(makePhoto(60, 40));
        const GrowArray<int> all = CharImage::getLooks();
        QVERIFY(all.numThings > 0);
        for (int i = 0; i < all.numThings; i++) {
            QAction* entry = menuEntry(desk, "Looks", CharImage::getFilterName(all.theArray[i]));
            QVERIFY(entry);
            QVERIFY(!entry->isChecked());
            entry->trigger();
            QCOMPARE(desk.looks(), (Looks{all.theArray[i]}));
            QVERIFY(entry->isChecked());
        }
        menuEntry(desk, "Looks", "Original")->trigger();
        QCOMPARE(desk.looks(), Looks());
        QVERIFY(menuEntry(desk, "Looks", "Original")->isChecked());
    }

    void looksAreAppliedInTheirOrder()
    {
        Desk desk(makePhoto(60, 40));
        desk.choose("btnCropping", "None");
        desk.choose("btnBorders", "None");
        desk.click("chkMultiFilter");
        desk.click("btnMono");
        desk.click("btnFishEye");
        const QImage monoFirst = desk.window.getFiltersAppliedImage();
        desk.click("btnMono");
        desk.click("btnMono");
        QCOMPARE(desk.looks(), (Looks{colorcross, mono}));
        QVERIFY(desk.window.getFiltersAppliedImage() != monoFirst);
        QCOMPARE(desk.find<DragDropImageView>("mainImageView")->image(), desk.window.getFiltersAppliedImage());
    }

    void randomnessFollowsItsBoxAndRendersEverything()
    {
        Desk desk(makePhoto(60, 40));
        desk.click("btnInstant");
        const auto thumbnail = [&] { return desk.find<QToolButton>("btnHelga")->icon().cacheKey(); };
        float table[100];
        std::memcpy(table, CharImage::random, sizeof table);
        qint64 render = desk.render(), icon = thumbnail();
        desk.click("chkRandomness");
        QCOMPARE(CharImage::useRandom, 1);
        QVERIFY(desk.render() != render && thumbnail() != icon);
        QCOMPARE(std::memcmp(table, CharImage::random, sizeof table), 0);
        render = desk.render(), icon = thumbnail();
        desk.click("chkRandomness");
        QCOMPARE(CharImage::useRandom, 0);
        QVERIFY(desk.render() != render && thumbnail() != icon);
    }

    void reExposeDrawsAFreshTableAndSwitchesRandomnessOn()
    {
        Desk desk(makePhoto(60, 40));
        desk.click("btnInstant");
        float table[100];
        std::memcpy(table, CharImage::random, sizeof table);
        const qint64 render = desk.render(), icon = desk.find<QToolButton>("btnHelga")->icon().cacheKey();
        desk.click("btnReExpose");
        QVERIFY(std::memcmp(table, CharImage::random, sizeof table) != 0);
        QVERIFY(desk.find<QCheckBox>("chkRandomness")->isChecked());
        QCOMPARE(CharImage::useRandom, 1);
        QVERIFY(desk.render() != render && desk.find<QToolButton>("btnHelga")->icon().cacheKey() != icon);
        std::memcpy(table, CharImage::random, sizeof table);
        desk.click("btnReExpose");
        QVERIFY(std::memcmp(table, CharImage::random, sizeof table) != 0);
        QVERIFY(desk.find<QCheckBox>("chkRandomness")->isChecked());
    }

    void aNewPhotoTakesTheLooksThatAreApplied()
    {
        Desk desk(makePhoto(60, 40));
        desk.click("chkMultiFilter");
        desk.click("btnHelga");
        desk.click("btnMono");
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "second one.png", makePhoto(90, 90))));
        QCOMPARE(desk.looks(), (Looks{helga, mono}));
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - second one.png"));
        QCOMPARE(desk.breadcrumb(), QString("Original > Helga > Mono"));
        GrowArray<int> both;
        both.add(helga);
        both.add(mono);
        const QImage expected = renderPhoto(
            desk.window.getoriginalDisplay(), {.filterIDs = &both, .cropFilter = mono, .borderFilter = mono});
        QCOMPARE(pixelsOf(desk.window.getFiltersAppliedImage()), pixelsOf(expected));
    }
};

DESK_MAIN(AppliedFiltersTest)
#include "AppliedFiltersTest.moc"
