// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/Desk.h"

#include "image/CharImage.h"
#include "image/FilterNumber.h"

#include <QAction>
#include <QCheckBox>
#include <QMenuBar>
#include <QtTest>
#include <vector>

using namespace lumora;

// Steps are taken and taken back by keys and clicks in the real window.

namespace {

class UndoDesk : public Desk {
public:
    using Desk::Desk;

    /// What the preview shows.
    QImage shown() { return pixelsOf(find<DragDropImageView>("mainImageView")->image()); }
    QImage thumbnail(int button)
    {
        return pixelsOf(window.filterButtons.theArray[button]->icon().pixmap(100, 100).toImage());
    }

    void undo() { QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier); }
    void redo() { QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }

    QAction* editEntry(int index) { return window.menuBar()->actions().at(1)->menu()->actions().at(index); }
    QString undoText() { return editEntry(0)->text().remove('&'); }
    QString redoText() { return editEntry(1)->text().remove('&'); }
    bool canUndo() { return editEntry(0)->isEnabled(); }
    bool canRedo() { return editEntry(1)->isEnabled(); }
};

} // namespace

class UndoTest : public QObject {
    Q_OBJECT

private slots:
    void init() { setPreferences({}); }

    void thereIsNothingToTakeBackAtFirst()
    {
        UndoDesk desk(makePhoto(60, 40));
        QVERIFY(!desk.canUndo() && !desk.canRedo());
        QCOMPARE(desk.undoText(), QString("Undo"));
        QCOMPARE(desk.redoText(), QString("Redo"));
    }

    void aStepIsNamedTakenBackAndTakenAgain_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<std::function<void(UndoDesk&)>>("step");
        using Step = std::function<void(UndoDesk&)>;
        const auto row = [](const char* name, const Step& step) { QTest::newRow(name) << QString(name) << step; };
        row("Mono", [](UndoDesk& desk) { desk.click("btnMono"); });
        row("Lightleak", [](UndoDesk& desk) { desk.window.pressFilterButton(Filter::lightleak); });
        row("Original", [](UndoDesk& desk) { desk.click("btnOriginal"); });
        row("Multiple looks", [](UndoDesk& desk) { desk.click("chkMultiFilter"); });
        row("Border", [](UndoDesk& desk) { desk.choose("btnBorders", "Thin"); });
        row("Crop", [](UndoDesk& desk) { desk.choose("btnCropping", "Square"); });
        row("Size", [](UndoDesk& desk) { desk.choose("btnImgSize", "1600"); });
        row("Randomness", [](UndoDesk& desk) { desk.click("chkRandomness"); });
        row("Re-expose", [](UndoDesk& desk) { desk.click("btnReExpose"); });
        row("Rotate left", [](UndoDesk& desk) { desk.click("btnLeft"); });
        row("Rotate right", [](UndoDesk& desk) { desk.click("btnRight"); });
        row("Flatten", [](UndoDesk& desk) { desk.click("btnFlatten"); });
    }
    void aStepIsNamedTakenBackAndTakenAgain()
    {
        QFETCH(QString, name);
        QFETCH(std::function<void(UndoDesk&)>, step);
        UndoDesk desk(makePhoto(60, 40));
        desk.click("btnHelga");
        const QImage before = desk.shown(), monoBefore = desk.thumbnail(6),
                     photoBefore = desk.window.getoriginalImage();
        const std::vector<int> looksBefore = desk.looks();
        const QString lineBefore = desk.breadcrumb();
        const std::vector<float> randomBefore(CharImage::random, CharImage::random + 100);

        step(desk);
        const QImage after = desk.shown(), monoAfter = desk.thumbnail(6), photoAfter = desk.window.getoriginalImage();
        const std::vector<int> looksAfter = desk.looks();
        const QString lineAfter = desk.breadcrumb();
        const std::vector<float> randomAfter(CharImage::random, CharImage::random + 100);
        const int variedAfter = CharImage::useRandom;
        QCOMPARE(desk.undoText(), "Undo " + name);

        desk.undo();
        QCOMPARE(desk.shown(), before);
        QCOMPARE(desk.thumbnail(6), monoBefore);
        QCOMPARE(desk.window.getoriginalImage(), photoBefore);
        QCOMPARE(desk.looks(), looksBefore);
        QCOMPARE(desk.breadcrumb(), lineBefore);
        QCOMPARE(std::vector<float>(CharImage::random, CharImage::random + 100), randomBefore);
        QCOMPARE(CharImage::useRandom, 0);
        QVERIFY(!desk.find<QCheckBox>("chkRandomness")->isChecked());
        QCOMPARE(desk.find<QComboBox>("btnBorders")->currentIndex(), 0);
        QCOMPARE(desk.find<QComboBox>("btnCropping")->currentIndex(), 0);
        QCOMPARE(desk.window.imgOutputSize, -1);
        QVERIFY(!desk.window.doMultiFiltering);
        QCOMPARE(desk.pressedButtons(), QStringList("Helga"));
        QCOMPARE(desk.redoText(), "Redo " + name);
        QCOMPARE(desk.undoText(), QString("Undo Helga"));

        desk.redo();
        QCOMPARE(desk.shown(), after);
        QCOMPARE(desk.thumbnail(6), monoAfter);
        QCOMPARE(desk.window.getoriginalImage(), photoAfter);
        QCOMPARE(desk.looks(), looksAfter);
        QCOMPARE(desk.breadcrumb(), lineAfter);
        QCOMPARE(std::vector<float>(CharImage::random, CharImage::random + 100), randomAfter);
        QCOMPARE(CharImage::useRandom, variedAfter);
        QVERIFY(!desk.canRedo());
    }

    void aStepDoneAnewAfterUndoDrawsNewNumbers()
    {
        UndoDesk desk(makePhoto(60, 40));
        desk.click("btnReExpose");
        std::vector<float> former(CharImage::random, CharImage::random + 100);
        for (int again = 0; again < 2; again++) {
            desk.undo();
            desk.click("btnReExpose");
            const std::vector<float> drawn(CharImage::random, CharImage::random + 100);
            QVERIFY(drawn != former);
            former = drawn;
        }
    }

    void aRenderComesBackWithTheNumbersThatItDrew()
    {
        UndoDesk desk(makePhoto(60, 40));
        desk.window.pressFilterButton(Filter::lightleak);
        const QImage leaks = desk.shown();
        desk.click("btnMono");
        desk.undo();
        QCOMPARE(desk.shown(), leaks);
    }

    void undoRendersOnce()
    {
        UndoDesk desk(makePhoto(60, 40));
        desk.click("btnReExpose");
        desk.window.pressFilterButton(Filter::colorcross); // Colorcross says so each time that it is rendered
        const QByteArray printed = printedBy([&] { desk.window.pressFilterButton(Filter::mono); });
        QVERIFY(!printed.contains("powers"));
        QCOMPARE(printedBy([&] { desk.undo(); }).count("powers"), 1);
    }

    void anotherPhotoBeginsANewHistoryAndKeepsTheLooks()
    {
        UndoDesk desk(makePhoto(60, 40));
        desk.click("btnHelga");
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "other.png", makePhoto(50, 50))));
        QVERIFY(!desk.canUndo());
        desk.undo();
        QCOMPARE(desk.looks(), std::vector<int>({1}));
    }

    void aRefusedPhotoKeepsTheHistory()
    {
        UndoDesk desk(makePhoto(60, 40));
        desk.click("btnHelga");
        QVERIFY(!desk.window.loadImageFromFile("/there/is/none.png"));
        QVERIFY(desk.closeSheet());
        desk.undo();
        QVERIFY(desk.looks().empty());
    }

    void stepsAreTakenBackWithoutAPhotoToo()
    {
        UndoDesk desk;
        desk.click("btnHelga");
        desk.undo();
        QVERIFY(desk.looks().empty());
        desk.redo();
        QCOMPARE(desk.looks(), std::vector<int>({1}));
        desk.click("chkMultiFilter");
        const QString several = desk.breadcrumb();
        desk.undo();
        QVERIFY(desk.breadcrumb() != several);
        desk.redo();
        QCOMPARE(desk.breadcrumb(), several);
        QVERIFY(desk.shown().isNull());
    }

    void anEnlargedWindowBringsTheStepBackAtItsSize()
    {
        UndoDesk desk(makePhoto(2000, 1500));
        desk.click("btnHelga");
        desk.window.displayRes = 900; // as a larger window has it
        desk.window.setoriginalImage(desk.window.getoriginalImage());
        desk.undo();
        QCOMPARE(desk.shown().width(), 900);
    }
};

DESK_MAIN(UndoTest)
#include "UndoTest.moc"
