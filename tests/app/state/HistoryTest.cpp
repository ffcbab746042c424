// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/History.h"

#include "app/state/LookList.h"
#include "app/state/Photo.h"
#include "image/CharImage.h"
#include "image/FilterNumber.h"
#include "render/RenderPipeline.h"
#include "tests/app/Desk.h"

#include <QtTest>
#include <algorithm>
#include <random>

using namespace lumora;

namespace {

/// A photo and choices that are worked on without a window.
class Model : public HistoryTarget {
public:
    Photo photo;
    Shown shown;
    qint64 room = 1'000'000'000;
    bool hasMemory = true;
    History history{*this, [this] { return room; }};

    Model()
    {
        photo.setOriginal(makePhoto(40, 30), 800, 1);
        history.begin(shown);
    }

    void setShown(const Shown& other) override { shown = other; }
    bool turnPhoto(int quarterTurns) override
    {
        if (hasMemory)
            photo.setOriginal(photo.original().transformed(QTransform().rotate(-90.0 * quarterTurns)), 800, 1);
        return hasMemory;
    }
    QImage exchangePhoto(const QImage& picture) override
    {
        const QImage former = photo.original();
        photo.setOriginal(picture, 800, 1);
        return former;
    }

    void choose(const QString& name, const std::function<void(Choices&)>& change)
    {
        change(shown.choices);
        history.add(name, shown);
    }
    void press(int look)
    {
        choose("Look", [=](Choices& choices) { choices.looks = {look}; });
    }
    void turn(int quarterTurns)
    {
        turnPhoto(quarterTurns);
        history.add("Turn", shown, {quarterTurns, {}});
    }
    void flatten(const QImage& flat)
    {
        const QImage former = exchangePhoto(flat);
        shown.choices.looks.clear();
        history.add("Flatten", shown, {0, former});
    }

    /// What a preview of it shows.
    QImage render()
    {
        constexpr int borders[] = {Filter::original, Filter::thin, Filter::rounded, Filter::instant};
        constexpr int crops[] = {Filter::original, Filter::square, Filter::crop6x4};
        std::srand(shown.choices.variation);
        CharImage::renewRandomNumbers();
        CharImage::useRandom = shown.choices.varied ? 1 : 0;
        std::srand(shown.seed);
        LookList looks;
        for (const int look : shown.choices.looks)
            looks.add(look);
        RenderSettings settings;
        settings.filterIDs = &looks;
        settings.borderFilter = borders[shown.choices.border];
        settings.cropFilter = crops[shown.choices.crop];
        return renderPhoto(photo.display(), settings);
    }
};

QImage flat(QRgb colour, const QSize& size = {40, 30})
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(colour);
    return picture;
}

} // namespace

class HistoryTest : public QObject {
    Q_OBJECT

private slots:
    void aFreshHistoryHasNoSteps()
    {
        Model model;
        QVERIFY(!model.history.canUndo() && !model.history.canRedo());
        model.history.undo();
        model.history.redo();
        QVERIFY(model.shown.choices.looks.empty());
    }

    void choicesGoBackAndForth()
    {
        Model model;
        model.press(1);
        model.press(5);
        QCOMPARE(model.history.undoName(), QString("Look"));
        model.history.undo();
        QCOMPARE(model.shown.choices.looks, std::vector<int>({1}));
        QVERIFY(model.history.canRedo());
        model.history.undo();
        QVERIFY(model.shown.choices.looks.empty() && !model.history.canUndo());
        model.history.redo();
        model.history.redo();
        QCOMPARE(model.shown.choices.looks, std::vector<int>({5}));
        QVERIFY(!model.history.canRedo());
    }

    void whatChangesNothingIsNoStep()
    {
        Model model;
        model.press(1);
        model.shown.seed = 7; // rendered anew
        model.choose("Same", [](Choices&) {});
        QCOMPARE(model.history.undoName(), QString("Look"));
        model.shown.seed = 8;
        model.press(5);
        model.history.undo();
        QCOMPARE(model.shown.seed, 7u);
    }

    void aRenderBetweenStepsIsWhatUndoBringsBack()
    {
        Model model;
        model.press(Filter::lightleak);
        model.shown.seed = 7; // rendered anew
        model.history.refresh(model.shown);
        model.shown.seed = 8;
        model.press(5);
        model.history.undo();
        QCOMPARE(model.shown.seed, 7u);
    }

    void aNewStepEndsWhatWasUndone()
    {
        Model model;
        model.press(1);
        model.history.undo();
        model.press(2);
        QVERIFY(!model.history.canRedo());
        model.history.undo();
        QVERIFY(model.shown.choices.looks.empty());
    }

    void turnsAreTurnedBack()
    {
        Model model;
        const QImage upright = model.photo.original();
        model.turn(1);
        QCOMPARE(model.photo.original().size(), QSize(30, 40));
        const QImage turned = model.photo.original();
        model.history.undo();
        QCOMPARE(model.photo.original(), upright);
        model.history.redo();
        QCOMPARE(model.photo.original(), turned);
    }

    void aTurnWithoutMemoryLeavesThePhotoAndTheOtherSteps()
    {
        Model model;
        model.press(1);
        model.turn(1);
        const QImage turned = model.photo.original();
        model.hasMemory = false;
        model.history.undo();
        QCOMPARE(model.photo.original(), turned);
        QCOMPARE(model.shown.choices.looks, std::vector<int>({1}));
        QCOMPARE(model.history.undoName(), QString("Look"));
        QVERIFY(!model.history.canRedo()); // which would turn it once more
        model.history.undo();
        QVERIFY(model.shown.choices.looks.empty());
    }

    void flatteningBringsTheFormerPhotoBack()
    {
        Model model;
        const QImage former = model.photo.original();
        model.press(1);
        model.flatten(flat(Qt::red));
        model.history.undo();
        QCOMPARE(model.photo.original(), former);
        QCOMPARE(model.shown.choices.looks, std::vector<int>({1}));
        model.history.redo();
        QCOMPARE(model.photo.original(), flat(Qt::red));
        QVERIFY(model.shown.choices.looks.empty());
    }

    void theOldestPictureIsDroppedAndTheHistoryEndsThere()
    {
        Model model;
        const qint64 bytes = model.photo.original().sizeInBytes();
        model.room = 2 * bytes;
        model.press(1);
        model.flatten(flat(Qt::red));
        model.flatten(flat(Qt::green));
        model.flatten(flat(Qt::blue));
        model.history.undo();
        model.history.undo();
        QCOMPARE(model.photo.original(), flat(Qt::red));
        QVERIFY(!model.history.canUndo());
        model.history.undo();
        QCOMPARE(model.photo.original(), flat(Qt::red));
        model.history.redo();
        QCOMPARE(model.photo.original(), flat(Qt::green));
    }

    void picturesOfStepsThatAreGoneTakeNoRoom()
    {
        Model model;
        const QImage former = model.photo.original();
        model.room = former.sizeInBytes();
        model.flatten(flat(Qt::red));
        model.history.undo();
        model.flatten(flat(Qt::green));
        QVERIFY(model.history.canUndo());
        model.history.undo();
        QCOMPARE(model.photo.original(), former);
    }

    void anotherPhotoBeginsANewHistory()
    {
        Model model;
        model.press(1);
        model.history.begin(model.shown);
        QVERIFY(!model.history.canUndo());
        model.press(2);
        model.history.undo();
        QCOMPARE(model.shown.choices.looks, std::vector<int>({1}));
    }

    void aHundredStepsLookTheSameBackAndForth()
    {
        std::mt19937 random(20);
        const auto upTo = [&](int n) { return int(random() % unsigned(n)); };
        const GrowArray<int> looks = CharImage::getLooks();
        Model model;
        model.shown.seed = random();
        model.history.begin(model.shown);
        std::vector<QImage> renders{model.render()};
        while (renders.size() <= 100) {
            model.shown.seed = random();
            switch (upTo(7)) {
            case 0:
                model.choose(
                    "Looks", [&](Choices& choices) { choices.looks.push_back(looks.theArray[upTo(looks.numThings)]); });
                break;
            case 1:
                model.choose("Border", [&](Choices& choices) { choices.border = (choices.border + 1) % 4; });
                break;
            case 2:
                model.choose("Crop", [&](Choices& choices) { choices.crop = (choices.crop + 1) % 3; });
                break;
            case 3:
                model.choose("Randomness", [&](Choices& choices) { choices.varied = !choices.varied; });
                break;
            case 4:
                model.choose("Re-expose", [&](Choices& choices) {
                    choices.varied = true;
                    choices.variation = unsigned(upTo(1000000));
                });
                break;
            case 5:
                model.turn(upTo(2) == 0 ? 1 : -1);
                break;
            default:
                model.flatten(model.render());
            }
            QVERIFY(model.history.canUndo());
            renders.push_back(model.render());
        }
        for (int i = 99; i >= 0; i--) {
            model.history.undo();
            QCOMPARE(model.render(), renders[std::size_t(i)]);
        }
        QVERIFY(!model.history.canUndo());
        for (int i = 1; i <= 100; i++) {
            model.history.redo();
            QCOMPARE(model.render(), renders[std::size_t(i)]);
        }
        QVERIFY(!model.history.canRedo());
    }
};

DESK_MAIN(HistoryTest)
#include "HistoryTest.moc"
