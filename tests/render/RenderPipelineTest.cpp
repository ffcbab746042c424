// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/RenderPipeline.h"
#include "image/CharImage.h"
#include "render/ImageBridge.h"
#include "render/Variation.h"
#include "tests/photo/Samples.h"
#include "tests/photo/ScarceMemory.h"

#include <QColorSpace>
#include <QStringList>
#include <QTest>
#include <cmath>
#include <cstdlib>
#include <memory>

using namespace lumora;

namespace {

constexpr int none = Filter::original, mono = Filter::mono, look1962 = Filter::look1962,
              colorcross = Filter::colorcross, square = Filter::square, cinema = Filter::cinema, thick = Filter::thick,
              instant = Filter::instant, thin = Filter::thin;

QImage render(const QImage& source, int crop, int border, bool asThumbnail = false)
{
    const GrowArray<int> empty;
    RenderSettings settings;
    settings.filterIDs = &empty;
    settings.cropFilter = crop;
    settings.borderFilter = border;
    settings.asThumbnail = asThumbnail;
    return renderPhoto(source, settings);
}

/// The picture under looks that the engine applies by itself.
QImage under(const QImage& source, std::initializer_list<int> filters)
{
    const std::unique_ptr<CharImage> image(charImageFromNSImage(source, -1.0f, -1, -1, 0, 0, 0, 0, false, 3));
    for (const int filter : filters)
        image->applyFilter(filter);
    return NSImageFromCharImage(image.get());
}

bool isFlat(const QImage& picture, QRgb colour)
{
    return picture.size().isEmpty()
        || samples::largestDifference(picture, samples::flat(picture.width(), picture.height(), QColor(colour))) == 0;
}

} // namespace

class RenderPipelineTest : public QObject {
    Q_OBJECT

private slots:
    void init() { CharImage::useRandom = 0; }

    void fixedSettingsDrawTheSameNumbers()
    {
        useFixedSettings();
        const int drawn = std::rand();
        QVERIFY(std::rand() != drawn);
        useFixedSettings();
        QCOMPARE(std::rand(), drawn);
    }

    void nothingChosenGivesThePhotoBack()
    {
        for (const QSize size : {QSize(3000, 2000), QSize(2000, 3000), QSize(1000, 667), QSize(1, 1), QSize(1, 77)}) {
            const QImage source = samples::noise(size.width(), size.height());
            const QImage copy = source.copy();
            QCOMPARE(render(source, none, none), source);
            QCOMPARE(source, copy);
        }
    }

    void whatNothingIsDoneToIsNotCopied()
    {
        const QImage source = samples::noise(30, 20).convertToFormat(QImage::Format_RGB32);
        QCOMPARE(render(source, none, none).constBits(), source.constBits());
        QImage clear(30, 20, QImage::Format_ARGB32);
        clear.fill(Qt::transparent);
        QVERIFY(isFlat(render(clear, none, none), qRgb(255, 255, 255)));
    }

    void theColourSpaceStays()
    {
        QImage source = samples::noise(30, 20);
        source.setColorSpace(QColorSpace::SRgb);
        QCOMPARE(render(source, square, instant).colorSpace(), source.colorSpace());
        QCOMPARE(renderPhoto(source, {.filter = mono}).colorSpace(), source.colorSpace());
    }

    void squareWithInstantFrame()
    {
        const QImage picture = render(samples::flat(3000, 2000, Qt::red), square, instant);
        QCOMPARE(picture.size(), QSize(2521, 3000));
        const QRgb offWhite = qRgb(245, 245, 245);
        QVERIFY(isFlat(picture.copy(0, 0, 2521, 120), offWhite));
        QVERIFY(isFlat(picture.copy(0, 0, 120, 3000), offWhite));
        QVERIFY(isFlat(picture.copy(2401, 0, 120, 3000), offWhite));
        QVERIFY(isFlat(picture.copy(0, 2401, 2521, 599), offWhite));
        QVERIFY(isFlat(picture.copy(120, 120, 2281, 2281), qRgb(255, 0, 0)));
    }

    void sizes_data()
    {
        QTest::addColumn<QSize>("source");
        QTest::addColumn<int>("crop");
        QTest::addColumn<int>("border");
        QTest::addColumn<QSize>("size");
        QTest::newRow("no crop keeps the aspect") << QSize(300, 200) << none << none << QSize(300, 200);
        QTest::newRow("cinema on a portrait: a wide strip") << QSize(200, 300) << cinema << none << QSize(300, 169);
        QTest::newRow("cinema's bars") << QSize(1600, 900) << none << cinema << QSize(1600, 1300);
        QTest::newRow("cinema's bars on a square take the box's height")
            << QSize(800, 800) << none << cinema << QSize(600, 800);
        QTest::newRow("square source: the width is the longer side") << QSize(80, 80) << none << thick << QSize(80, 80);
        QTest::newRow("margins from the longer side of a portrait")
            << QSize(500, 700) << none << thin << QSize(506, 700);
        QTest::newRow("a pixel has no margins") << QSize(1, 1) << square << instant << QSize(1, 1);
    }
    void sizes()
    {
        QFETCH(QSize, source);
        QFETCH(int, crop);
        QFETCH(int, border);
        QFETCH(QSize, size);
        QCOMPARE(render(samples::noise(source.width(), source.height()), crop, border).size(), size);
    }

    void cinemaBarsStandAboveAndBelow()
    {
        const QImage picture = render(samples::flat(1000, 500, Qt::red), none, cinema);
        QCOMPARE(picture.size(), QSize(1000, 750));
        QVERIFY(isFlat(picture.copy(0, 0, 1000, 125), qRgb(0, 0, 0)));
        QVERIFY(isFlat(picture.copy(0, 125, 1000, 500), qRgb(255, 0, 0)));
        QVERIFY(isFlat(picture.copy(0, 625, 1000, 125), qRgb(0, 0, 0)));
    }

    void cropsRoundTheCentre()
    {
        const QImage source = samples::quarters(300, 200);
        const QImage picture = render(source, cinema, none);
        QCOMPARE(picture.size(), QSize(300, 169));
        // 200 rows are 31 more than are shown: the middle row stays in the middle.
        QCOMPARE(picture.pixel(0, 83), qRgb(255, 0, 0));
        QCOMPARE(picture.pixel(0, 85), qRgb(0, 0, 255));
        QCOMPARE(picture.pixel(299, 0), qRgb(0, 255, 0));
    }

    void thumbnailsAreSquare_data()
    {
        QTest::addColumn<int>("crop");
        for (const int crop : {none, cinema, square, int(Filter::widescreen), int(Filter::crop6x4),
                 int(Filter::crop7x6), int(Filter::crop4x3)})
            QTest::newRow(CharImage::getFilterName(crop)) << crop;
    }
    void thumbnailsAreSquare()
    {
        QFETCH(int, crop);
        for (const QSize size : {QSize(150, 100), QSize(100, 150), QSize(100, 100)}) {
            const int side = std::max(size.width(), size.height());
            QCOMPARE(render(samples::noise(size.width(), size.height()), crop, none, true).size(), QSize(side, side));
        }
    }

    void thumbnailsLeaveTheBorderOutButNotItsRoom()
    {
        const QImage source = samples::flat(160, 100, Qt::red);
        QCOMPARE(render(source, none, thick, true), samples::flat(140, 140, Qt::red));
        QCOMPARE(render(source, none, cinema, true), samples::flat(120, 120, Qt::red));
    }

    void emptyListLeavesThePixels()
    {
        const QImage source = samples::flat(700, 500, QColor(10, 20, 30));
        const QImage picture = render(source, square, thin);
        QCOMPARE(picture.size(), QSize(700, 700));
        QVERIFY(isFlat(picture.copy(10, 10, 680, 680), qRgb(10, 20, 30)));
        QVERIFY(isFlat(picture.copy(1, 1, 698, 9), qRgb(255, 255, 255)));
        QVERIFY(isFlat(picture.copy(0, 0, 700, 1), qRgb(200, 200, 200)));
    }

    void noListAppliesNothing()
    {
        const QImage source = samples::noise(30, 20);
        QCOMPARE(renderPhoto(source, RenderSettings()), source);
    }

    void oneFilter()
    {
        const QImage source = samples::noise(64, 48);
        GrowArray<int> ignored;
        ignored.add(9);
        RenderSettings settings;
        settings.filter = mono;
        settings.filterIDs = &ignored;
        QCOMPARE(renderPhoto(source, settings), under(source, {mono}));
        QVERIFY(renderPhoto(source, settings) != source);
    }

    void listInItsOrder()
    {
        const QImage source = samples::noise(64, 48);
        GrowArray<int> list;
        list.add(look1962);
        list.add(mono);
        list.add(colorcross);
        RenderSettings settings;
        settings.filterIDs = &list;
        QCOMPARE(renderPhoto(source, settings), under(source, {look1962, mono, colorcross}));
        QVERIFY(renderPhoto(source, settings) != under(source, {colorcross, mono, look1962}));
    }

    void listThatGrowsIsWalkedToItsEnd()
    {
        const QImage source = samples::noise(64, 48);
        GrowArray<int> list;
        list.add(mono);
        RenderSettings settings;
        settings.filterIDs = &list;
        const QImage picture = renderPhoto(source, settings, [&](const char*) { list.addOnce(6); });
        QCOMPARE(picture, under(source, {mono, look1962}));
    }

    void strengthMixesThePhotoAndItsLooksBeforeTheBorder_data()
    {
        QTest::addColumn<int>("strength");
        for (const int strength : {0, 1, 40, 99, 100})
            QTest::addRow("%i", strength) << strength;
    }
    void strengthMixesThePhotoAndItsLooksBeforeTheBorder()
    {
        QFETCH(int, strength);
        const QImage source = samples::noise(64, 48);
        GrowArray<int> list;
        list.add(look1962);
        list.add(colorcross);
        const RenderSettings settings = {
            .filterIDs = &list, .cropFilter = square, .borderFilter = thick, .strength = strength};
        const QImage picture = renderPhoto(source, settings);
        QCOMPARE(picture.size(), QSize(64, 64));
        // Inside the border; 64 / 16 pixels wide.
        const QRect inside(4, 4, 56, 56);
        const QImage before = render(source, square, thick), after = [&] {
            RenderSettings whole = settings;
            whole.strength = 100;
            return renderPhoto(source, whole);
        }();
        for (int y = 0; y < 64; y++)
            for (int x = 0; x < 64; x++) {
                const QRgb a = before.pixel(x, y), b = after.pixel(x, y);
                const auto mixed = [strength](int from, int to) {
                    return int(std::floor((from * (100 - strength) + to * strength) / 100.0 + 0.5));
                };
                const QRgb expected = inside.contains(x, y)
                    ? qRgb(mixed(qRed(a), qRed(b)), mixed(qGreen(a), qGreen(b)), mixed(qBlue(a), qBlue(b)))
                    : b;
                QCOMPARE(picture.pixel(x, y), expected);
            }
        // Chosen later, it gives the same.
        QCOMPARE(RenderedLooks::of(source, settings)->withStrength(strength), picture);
        // So does a part of the two finished pictures, in either order of bytes.
        const QRect part(3, 10, 40, 21);
        for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_RGBX8888})
            QCOMPARE(mixedPart(before.convertToFormat(format), after, strength, part), picture.copy(part));
    }

    void strengthOfALargePhotoIsMixedAllOver()
    {
        for (const QImage::Format format :
            {QImage::Format_RGB32, QImage::Format_RGBX8888, QImage::Format_ARGB32_Premultiplied})
            for (const int border : {none, thick}) { // fitted as it is, and scaled
                const QImage source = samples::noise(701, 900).convertToFormat(format);
                const RenderSettings settings = {.filter = mono, .borderFilter = border, .strength = 40};
                QCOMPARE(renderPhoto(source, settings), RenderedLooks::of(source, settings)->withStrength(40));
            }
    }

    void strengthIsOfAllLooksTogether()
    {
        const QImage source = samples::noise(64, 48);
        const QImage picture = renderPhoto(source, {.filter = mono, .strength = 0});
        QCOMPARE(picture, source);
        QCOMPARE(renderPhoto(source, {.strength = 0}), source);
    }

    void thumbnailsHaveTheWholeLook()
    {
        const QImage source = samples::noise(64, 48);
        QCOMPARE(renderPhoto(source, {.filter = mono, .strength = 0, .asThumbnail = true}),
            renderPhoto(source, {.filter = mono, .asThumbnail = true}));
    }

    void looksWithoutAPhotoAreNoLooks() { QVERIFY(!RenderedLooks::of(QImage(), {.filter = mono})); }

    void borderWithoutMarginsIsDrawn()
    {
        const QImage picture = render(samples::flat(200, 200, Qt::white), none, 10); // Fisheye
        QCOMPARE(picture.size(), QSize(200, 200));
        QCOMPARE(picture.pixel(0, 0), qRgb(0, 0, 0));
        QCOMPARE(picture.pixel(100, 100), qRgb(255, 255, 255));
    }

    void everyRenderIsOpaque()
    {
        // The spare bytes of a picture that is shown or saved are 255, whatever it went through.
        GrowArray<int> looks = CharImage::getLooks(), borders = CharImage::getLooks();
        borders.add(none);
        for (const QSize size : {QSize(60, 40), QSize(40, 61)})
            for (int i = 0; i < looks.numThings; i++)
                for (int k = 0; k < borders.numThings; k++) {
                    RenderSettings settings;
                    settings.filter = looks.theArray[i];
                    settings.cropFilter = i % 2 ? none : square;
                    settings.borderFilter = borders.theArray[k];
                    const QImage source = samples::noise(size.width(), size.height());
                    const QImage picture =
                        renderPhoto(k % 2 ? source : source.convertToFormat(QImage::Format_RGB32), settings);
                    QCOMPARE(picture.format(), QImage::Format_RGBX8888);
                    for (qsizetype byte = 3; byte < picture.sizeInBytes(); byte += 4)
                        QCOMPARE(picture.constBits()[byte], 255);
                }
    }

    void tellsItsSteps()
    {
        GrowArray<int> list;
        list.add(mono);
        list.add(look1962);
        RenderSettings settings;
        settings.filterIDs = &list;
        QStringList steps;
        const auto note = [&](const char* step) { steps += QString::fromLatin1(step); };
        renderPhoto(samples::noise(8, 8), settings, note);
        QCOMPARE(steps, QStringList({"Fit", "Mono", "1962", "Border"}));
        steps.clear();
        settings.asThumbnail = true;
        settings.filter = mono;
        renderPhoto(samples::noise(8, 8), settings, note);
        QCOMPARE(steps, QStringList({"Fit", "Mono"}));
        steps.clear();
        renderPhoto(samples::noise(8, 8), {}, note);
        QCOMPARE(steps, QStringList({"Fit", "Border"}));
    }

    void whereMemoryWouldNotDoThereIsNoPictureButAReason()
    {
        const QImage strip = samples::noise(1, 10000);
        RenderSettings settings;
        settings.cropFilter = square;
        QStringList steps;
        const auto note = [&](const char* step) { steps += QString::fromLatin1(step); };
        QString reason;
        const ScarceMemory memory(500 << 20); // room for the square, not for a second block beside it
        QVERIFY(renderPhoto(strip, settings, note, &reason).isNull());
        QCOMPARE(reason, QString("There is not enough free memory for a picture of 10000 x 10000 pixels."));
        QCOMPARE(steps, QStringList());
        // The border is outside the picture that is fitted.
        settings.borderFilter = instant;
        QVERIFY(renderPhoto(strip, settings, {}, &reason).isNull());
        QCOMPARE(reason, QString("There is not enough free memory for a picture of 8401 x 10000 pixels."));
        settings.asThumbnail = true;
        QVERIFY(!renderPhoto(samples::noise(1, 100), settings, {}, &reason).isNull());
        settings = {};
        QCOMPARE(renderPhoto(strip, settings), strip);
    }

    void noPhotoGivesNoPicture() { QVERIFY(render(QImage(), square, instant).isNull()); }
};

QTEST_GUILESS_MAIN(RenderPipelineTest)
#include "RenderPipelineTest.moc"
