// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/FramedOriginal.h"
#include "image/CharImage.h"
#include "tests/app/Desk.h"

#include <QSlider>

using namespace lumora;

/// What "Before" is, and how long it is kept.
class CompareTest : public QObject {
    Q_OBJECT

private:
    struct Try : Desk {
        explicit Try(const QImage& photo = makePhoto(300, 200))
            : Desk(photo)
        {
        }
        DragDropImageView* view = find<DragDropImageView>("mainImageView");

        /// What is shown while the mouse is held.
        QImage compared()
        {
            QTest::mousePress(view, Qt::LeftButton);
            const QImage shown = view->shownImage();
            QTest::mouseRelease(view, Qt::LeftButton);
            return shown;
        }
        /// Which picture that is: the same number for as long as it is kept.
        qint64 kept() { return compared().cacheKey(); }
        /// The photo in its frame, as the slider shows it that takes the looks back.
        QImage withoutStrength()
        {
            auto* slider = find<QSlider>("sldStrength");
            slider->setValue(0);
            const QImage picture = view->image();
            slider->setValue(100);
            return picture;
        }
    };

private slots:
    void init() { setPreferences({}); }

    void onlyTheLookDiffers()
    {
        Try desk;
        auto* crops = desk.find<QComboBox>("btnCropping");
        auto* borders = desk.find<QComboBox>("btnBorders");
        for (const char* look : {"btnHelga", "btn1974"}) {
            desk.click(look);
            for (int crop = 0; crop < crops->count(); crop++)
                for (int border = 0; border < borders->count(); border++) {
                    crops->setCurrentIndex(crop);
                    borders->setCurrentIndex(border);
                    QVERIFY(desk.compared() != desk.view->image());
                    QCOMPARE(desk.compared(), desk.withoutStrength());
                }
        }
    }

    void withoutCropAndBorderItIsTheDisplayCopyItself()
    {
        Try desk(makePhoto(3000, 2001));
        desk.click("btnMono");
        desk.choose("btnBorders", "None");
        desk.choose("btnCropping", "None");
        QCOMPARE(desk.kept(), desk.window.getoriginalDisplay().cacheKey());
    }

    void byFilterItHasTheFrameOfTheLookThatIsOn()
    {
        Try desk;
        for (const char* look : {"btnInstant", "btnCinema", "btnInstant", "btnFishEye"}) {
            desk.click(look);
            QCOMPARE(desk.compared(), desk.withoutStrength());
        }
        desk.window.pressFilterButton(Filter::fisheye); // whose border takes no room
        QCOMPARE(desk.compared(), desk.withoutStrength());
        desk.click("chkMultiFilter");
        desk.click("btnInstant");
        QCOMPARE(desk.compared(), desk.withoutStrength());
        desk.click("btnOriginal");
        QCOMPARE(desk.compared(), desk.view->image());
    }

    void itIsKeptWhileOnlyLooksChange()
    {
        Try desk;
        desk.choose("btnBorders", "Thick");
        desk.choose("btnCropping", "Square");
        const qint64 kept = desk.kept();
        QCOMPARE(desk.kept(), kept);
        desk.click("btnHelga");
        QCOMPARE(desk.kept(), kept);
        desk.find<QSlider>("sldStrength")->setValue(30);
        QCOMPARE(desk.kept(), kept);
        desk.click("btnReExpose");
        QCOMPARE(desk.kept(), kept);
        desk.choose("btnImgSize", "400");
        QCOMPARE(desk.kept(), kept);
    }

    void anotherFrameOrPhotoMakesItAnew()
    {
        Try desk;
        desk.choose("btnBorders", "Thick");
        desk.choose("btnCropping", "Square");
        desk.click("btnMono");
        QList<QImage> all;
        const auto isNew = [&] {
            all << desk.compared();
            return all.last() == desk.before() && all.last().size() == desk.view->image().size()
                && std::ranges::count(all, all.last()) == 1;
        };
        QVERIFY(isNew());
        desk.choose("btnBorders", "Thin");
        QVERIFY(isNew());
        desk.choose("btnCropping", "6x4");
        QVERIFY(isNew());
        desk.click("btnRight");
        QVERIFY(isNew());
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "other.png", makePhoto(200, 300))));
        QVERIFY(isNew());
        desk.click("btnFlatten");
        QVERIFY(isNew());
        desk.window.undo();
        QCOMPARE(desk.compared(), all[4]);
    }

    void itFollowsTheDisplayCopy()
    {
        Try desk(makePhoto(3000, 2000));
        desk.choose("btnBorders", "Thick");
        desk.click("btnMono");
        const QSize before = desk.compared().size();
        desk.window.displayRes = 800;
        desk.window.windowDidResize();
        QVERIFY(desk.view->image().size() != before);
        QCOMPARE(desk.compared(), desk.before());
        QCOMPARE(desk.compared().size(), desk.view->image().size());
    }

    void nothingIsRenderedWhileItIsHeld()
    {
        Try desk;
        desk.click("btnInstant");
        const qint64 render = desk.render();
        QTest::mousePress(desk.view, Qt::LeftButton);
        const qint64 shown = desk.view->shownImage().cacheKey();
        desk.window.resize(desk.window.size() - QSize(20, 20));
        desk.view->grab();
        QCOMPARE(desk.view->shownImage().cacheKey(), shown);
        QTest::mouseRelease(desk.view, Qt::LeftButton);
        QCOMPARE(desk.render(), render);
        QCOMPARE(desk.kept(), shown);
    }

    void eachSourceHasItsOwn()
    {
        FramedOriginal framed;
        for (const QImage& source : {makePhoto(60, 40), makePhoto(61, 40), makePhoto(60, 40)}) {
            const int thick = CharImage::getFilterFromName("Thick");
            QCOMPARE(framed.of(source, Filter::original, thick), renderPhoto(source, {.borderFilter = thick}));
        }
    }

    void eachSizeHasItsOwn()
    {
        FramedOriginal framed;
        const QImage source = makePhoto(60, 40);
        for (const int size : {90, 30, 90}) {
            const QImage picture = framed.of(source, Filter::original, Filter::original, size);
            QCOMPARE(picture.width(), size);
            QCOMPARE(framed.of(source, Filter::original, Filter::original, size).cacheKey(), picture.cacheKey());
        }
        QCOMPARE(framed.of(source, Filter::original, Filter::original).cacheKey(), source.cacheKey());
    }

    void whereTheFrameDoesNotFitIntoTheMemoryThePhotoIsShown()
    {
        const QImage strip = makePhoto(200'000, 2);
        const int square = CharImage::getFilterFromName("Square");
        QCOMPARE(FramedOriginal().of(strip, square, Filter::original).cacheKey(), strip.cacheKey());
        QCOMPARE(FramedOriginal().of({}, square, Filter::original), QImage());
    }

    void aReaderOfTheScreenIsTold()
    {
        Try desk;
        const QString held = desk.view->accessibleDescription();
        QTest::keyPress(desk.view, Qt::Key_Space);
        QVERIFY(desk.view->accessibleDescription() != held);
        QVERIFY(desk.view->accessibleDescription().startsWith("Before"));
        QTest::keyRelease(desk.view, Qt::Key_Space);
        QCOMPARE(desk.view->accessibleDescription(), held);
    }
};

DESK_MAIN(CompareTest)
#include "CompareTest.moc"
