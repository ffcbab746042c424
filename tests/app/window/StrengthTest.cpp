// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "tests/app/Desk.h"

#include <QAction>
#include <QLabel>
#include <QSlider>

using namespace lumora;

namespace {

/// Each colour byte of the mix, rounded half up.
QImage mixed(const QImage& before, const QImage& after, int strength)
{
    QImage mix = after.copy();
    for (int y = 0; y < mix.height(); y++)
        for (int x = 0; x < mix.width(); x++) {
            const QRgb a = before.pixel(x, y), b = after.pixel(x, y);
            const auto of = [strength](
                                int from, int to) { return (from * (100 - strength) + to * strength + 50) / 100; };
            mix.setPixel(x, y, qRgb(of(qRed(a), qRed(b)), of(qGreen(a), qGreen(b)), of(qBlue(a), qBlue(b))));
        }
    return mix;
}

class StrengthDesk : public Desk {
public:
    StrengthDesk()
        : Desk(makePhoto(300, 200))
    {
        choose("btnBorders", "None");
        choose("btnCropping", "None");
    }
    QSlider& slider() { return *find<QSlider>("sldStrength"); }
    /// What the preview shows.
    QImage preview() { return pixelsOf(find<DragDropImageView>("mainImageView")->image()); }
    void type(Qt::Key key) { QTest::keyClick(&window, key); }
    /// What the mouse does to a slider whose handle it holds.
    void drag(const std::vector<int>& values)
    {
        slider().setSliderDown(true);
        for (const int value : values)
            slider().setSliderPosition(value);
    }
    void letGo() { slider().setSliderDown(false); }
    QString undoEntry()
    {
        for (const QAction* action : window.findChildren<QAction*>())
            if (action->shortcuts().contains(QKeySequence(QKeySequence::Undo)))
                return action->text();
        return {};
    }
};

} // namespace

class StrengthTest : public QObject {
    Q_OBJECT

private slots:
    void init() { setPreferences({}); }

    void withoutALookThereIsNothingToWeaken()
    {
        StrengthDesk desk;
        const auto verify = [&](bool isEnabled) {
            QCOMPARE(desk.slider().isEnabled(), isEnabled);
            int entries = 0;
            for (const QAction* action : desk.window.findChildren<QAction*>())
                if (action->text() == "&Weaker" || action->text() == "&Stronger") {
                    QCOMPARE(action->isEnabled(), isEnabled);
                    entries++;
                }
            QCOMPARE(entries, 2);
        };
        verify(false);
        desk.click("btnMono");
        verify(true);
        QCOMPARE(desk.slider().value(), 100);
        desk.click("btnMono");
        verify(false);
    }

    void bracketsWeakenAndStrengthenByTenPerCent()
    {
        StrengthDesk desk;
        const QImage before = desk.preview();
        desk.click("btnMono");
        const QImage after = desk.preview();
        desk.type(Qt::Key_BracketLeft);
        QCOMPARE(desk.slider().value(), 90);
        QCOMPARE(desk.preview(), mixed(before, after, 90));
        for (int i = 0; i < 9; i++)
            desk.type(Qt::Key_BracketLeft);
        QCOMPARE(desk.preview(), before);
        desk.type(Qt::Key_BracketRight);
        QCOMPARE(desk.preview(), mixed(before, after, 10));
        QCOMPARE(desk.find<QLabel>("lblStrength")->text(), QString("Stren&gth 10 %"));
    }

    void dragIsOneStepThatUndoTakesBack()
    {
        StrengthDesk desk;
        const QImage before = desk.preview();
        desk.click("btnMono");
        const QImage after = desk.preview();
        desk.drag({80, 33});
        QCOMPARE(desk.preview(), mixed(before, after, 33)); // while it is dragged
        desk.letGo();
        QCOMPARE(desk.undoEntry(), QString("&Undo Strength"));
        desk.window.undo();
        QCOMPARE(desk.slider().value(), 100);
        QCOMPARE(desk.preview(), after);
        desk.window.redo();
        QCOMPARE(desk.slider().value(), 33);
        QCOMPARE(desk.preview(), mixed(before, after, 33));
    }

    void dragOfALookThatDrawsAnewKeepsWhatItDrew()
    {
        StrengthDesk desk;
        desk.window.pressFilterButton(Filter::lightleak);
        const QImage after = desk.preview();
        desk.drag({50});
        desk.drag({100});
        QCOMPARE(desk.preview(), after);
        desk.letGo();
        QCOMPARE(desk.undoEntry(), QString("&Undo Lightleak"));
    }

    void newListBeginsWithTheWholeLook()
    {
        StrengthDesk desk;
        desk.click("btnMono");
        desk.type(Qt::Key_BracketLeft);
        desk.click("btn1962");
        QCOMPARE(desk.slider().value(), 100);
        desk.type(Qt::Key_BracketLeft);
        desk.click("btnOriginal");
        QCOMPARE(desk.slider().value(), 100);
    }

    void stackKeepsItsStrength()
    {
        StrengthDesk desk;
        desk.click("chkMultiFilter");
        desk.click("btnMono");
        desk.type(Qt::Key_BracketLeft);
        desk.click("btn1962");
        QCOMPARE(desk.slider().value(), 90);
        desk.click("btn1962");
        QCOMPARE(desk.slider().value(), 90);
        desk.click("btnMono");
        QCOMPARE(desk.slider().value(), 100);
    }

    void otherPhotoKeepsIt()
    {
        StrengthDesk desk;
        desk.click("btnMono");
        desk.type(Qt::Key_BracketLeft);
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "other.png", makePhoto(200, 300))));
        QCOMPARE(desk.slider().value(), 90);
    }

    void flattenBakesItIn()
    {
        StrengthDesk desk;
        const QImage before = desk.preview();
        desk.click("btnMono");
        const QImage after = desk.preview();
        desk.type(Qt::Key_BracketLeft);
        desk.click("btnFlatten");
        QCOMPARE(desk.preview(), mixed(before, after, 90));
        QCOMPARE(desk.slider().value(), 100);
        desk.window.undo();
        QCOMPARE(desk.slider().value(), 90);
        QCOMPARE(desk.preview(), mixed(before, after, 90));
    }

    void fullSizeRenderHasIt()
    {
        StrengthDesk desk;
        desk.click("btnMono");
        const QImage whole = pixelsOf(desk.window.saveMultipleFilters(false));
        desk.type(Qt::Key_BracketLeft);
        QCOMPARE(pixelsOf(desk.window.saveMultipleFilters(false)),
            mixed(pixelsOf(desk.window.getoriginalImage()), whole, 90));
    }

    void thumbnailsStayAtFullStrength()
    {
        StrengthDesk desk;
        desk.click("btnMono");
        const auto thumbnail = [&] { return desk.find<QToolButton>("btnMono")->icon().pixmap(60).toImage(); };
        const QImage before = thumbnail();
        desk.type(Qt::Key_BracketLeft);
        desk.window.updateThumbnailImages();
        QCOMPARE(thumbnail(), before);
    }

    void wheelThatPassesLeavesIt()
    {
        StrengthDesk desk;
        desk.click("btnMono");
        QWheelEvent wheel({5, 5}, desk.slider().mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
            Qt::NoScrollPhase, false);
        QApplication::sendEvent(&desk.slider(), &wheel);
        QCOMPARE(desk.slider().value(), 100);
    }
};

DESK_MAIN(StrengthTest)
#include "StrengthTest.moc"
