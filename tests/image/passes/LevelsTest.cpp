// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/passes/Levels.h"
#include "image/CharImage.h"
#include "tests/reference/Toolkit.h"

#include <gtest/gtest.h>
#include <limits>

using namespace lumora;

namespace {

/// `count` pixels in a row of which every tenth is `sampled` in turn; the others are `rest`.
Picture row(int count, std::initializer_list<int> sampled, int rest)
{
    Picture picture = flatPicture(count, 1, rest, rest, rest);
    int i = 0;
    for (int level : sampled) {
        for (int k = 0; k < 3; k++)
            picture.at(i, 0)[k] = static_cast<unsigned char>(level);
        i += 10;
    }
    return picture;
}

int levelOf(const Picture& picture, int x, float low, float high, float lowLevel, float highLevel, bool clampLow,
    bool clampHigh)
{
    const auto image = imageOf(picture);
    image->fillHistogram(low, high, lowLevel, highLevel, clampLow, clampHigh);
    return image->data[4 * x];
}

} // namespace

TEST(Levels, SamplesNothingUpToElevenPixels)
{
    for (int count : {1, 11}) {
        GrowArray<int> histogram;
        int minLum = -1;
        imageOf(flatPicture(count, 1, 90, 90, 90))->getHistogram(&histogram, &minLum);
        EXPECT_EQ(histogram.numThings, 0);
        EXPECT_EQ(minLum, 0);
    }
    GrowArray<int> histogram;
    int minLum = -1;
    imageOf(flatPicture(12, 1, 90, 90, 90))->getHistogram(&histogram, &minLum);
    EXPECT_EQ(histogram.numThings, 91);
    EXPECT_EQ(minLum, 90);
}

TEST(Levels, SplitsATinyPictureIntoBlackAndTheCeiling)
{
    // Nothing is sampled, so both cut-offs are 0 and the scale is infinite: 0 x infinity is stored as 0.
    Picture picture = flatPicture(11, 1, 0, 0, 0);
    for (int x = 1; x < 11; x++)
        picture.at(x, 0)[1] = static_cast<unsigned char>(x);
    const auto image = imageOf(picture);
    image->fillHistogram(0.01f, 0.01f, 0, 240, true, true);
    for (int x = 0; x < 11; x++) {
        EXPECT_EQ(image->data[4 * x], 0);
        EXPECT_EQ(image->data[4 * x + 1], x == 0 ? 0 : 240);
        EXPECT_EQ(image->data[4 * x + 3], picture.at(x, 0)[3]);
    }
}

TEST(Levels, BlackensAFlatPicture)
{
    // The cut-offs are v - 1 and v, so the scale is finite; the offsets take v off twice.
    for (int v : {1, 2, 100, 255}) {
        const auto image = imageOf(flatPicture(12, 1, v, v, v));
        image->fillHistogram(0.01f, 0.01f, 0, 255, true, true);
        for (int x = 0; x < 12; x++)
            EXPECT_EQ(image->data[4 * x], 0) << v;
    }
}

TEST(Levels, SamplesEveryTenthPixelButTheLastEleven)
{
    GrowArray<int> histogram;
    int minLum = -1;
    imageOf(row(41, {30, 20, 10, 99}, 200))->getHistogram(&histogram, &minLum); // 99 stands at 30 of 41: not sampled
    EXPECT_EQ(histogram.numThings, 31);
    EXPECT_EQ(minLum, 10);
    EXPECT_EQ(histogram.theArray[30], 1);
    EXPECT_EQ(histogram.theArray[20], 1);
    EXPECT_EQ(histogram.theArray[10], 1);
    EXPECT_EQ(histogram.theArray[15], 0);
}

TEST(Levels, PutsTheDarkCutOffOneBinBeforeTheCrossing)
{
    // Samples 0, 100, 200 and 255 in equal parts: half of them is reached at 100, so the dark cut-off is 99; the bright
    // one is the crossing bin itself, 200.
    const Picture picture = row(51, {0, 100, 200, 255}, 150);
    EXPECT_EQ(levelOf(picture, 1, 0.5f, 0.5f, 0, 101, false, false), 51); // (150 - 99) x 101 / 101
}

TEST(Levels, SubtractsTheDarkestSampleTwice)
{
    // Samples 40 and 240: cut-offs 39 and 240, the darkest 40 comes off as well.
    const Picture picture = row(31, {40, 240}, 200);
    EXPECT_EQ(levelOf(picture, 1, 0.0f, 0.0f, 0, 201, false, false), 121);
}

TEST(Levels, HoldsAtTheCeilingAndTheFloor)
{
    const Picture picture = row(31, {0, 200}, 200);
    EXPECT_EQ(levelOf(picture, 1, 0.0f, 0.0f, 0, 200, true, true), 200); // exactly the ceiling
    const Picture brighter = row(31, {0, 200}, 250);
    EXPECT_EQ(levelOf(brighter, 1, 0.0f, 0.0f, 0, 200, true, true), 200);
    EXPECT_EQ(levelOf(brighter, 1, 0.0f, 0.0f, 0, 200, true, false), 250);
    EXPECT_EQ(levelOf(brighter, 1, 0.0f, 0.0f, 0, 240, true, false), 255);
    const Picture darker = row(31, {100, 200}, 20);
    EXPECT_EQ(levelOf(darker, 1, 0.0f, 0.0f, 50, 250, true, false), 50);
    EXPECT_EQ(levelOf(darker, 1, 0.0f, 0.0f, 50, 250, false, false), 0);
    EXPECT_EQ(levelOf(darker, 1, 0.0f, 0.0f, -7, 250, true, false), 249); // a negative floor wraps
}

TEST(Levels, StartsBeforeTheFirstBinWithoutADarkFraction)
{
    // The first bin is 60, so the dark cut-off is 59; with 0 sampled it is 0.
    EXPECT_EQ(levelOf(row(31, {60, 160}, 160), 1, 0.0f, 0.0f, 0, 101, false, false), 41);
    EXPECT_EQ(levelOf(row(31, {0, 100}, 70), 1, 0.0f, 0.0f, 0, 100, false, false), 70);
}

TEST(Levels, TakesAFractionAboveOneAsTheFirstBin)
{
    // The bright cut-off is then 0 as well: the scale is infinite, and everything above the offset is white.
    EXPECT_EQ(levelOf(row(31, {0, 100}, 70), 1, 0.0f, 1.5f, 0, 255, true, true), 255);
}

TEST(Levels, AreOrdinaryWhereTheShortFormIsTheSame)
{
    const float infinite = std::numeric_limits<float>::infinity();
    for (const Levels& odd : {Levels{9, infinite, 5, 5, 255}, Levels{9, -infinite, 5, 5, 255},
             Levels{9, infinite - infinite, 5, 5, 255}, Levels{9, 2, -20, -20, 255}, Levels{9, 2, 0, 0, 300},
             Levels{9, 2, infinite, 0, 255}, Levels{9, 2, 90, 90, 80}})
        EXPECT_FALSE(odd.isOrdinary());
    for (const Levels& levels : {Levels{12, 1.7f, 5, 5, 255}, Levels{0, 1, 0, 0, 255}, Levels{300, -1.3f, 250, 0, 240},
             Levels{7, 3e38f, 20, 20, 255}, Levels{7, 0, 77, 77, 77}}) {
        EXPECT_TRUE(levels.isOrdinary());
        for (int v = 0; v < 256; v++)
            EXPECT_EQ(levels.ordinaryByteOf(float(v)), levels.byteOf(float(v))) << levels.scale << " at " << v;
    }
}

TEST(Levels, CountAsTheirTwin)
{
    for (const NamedPicture& sample : samplePictures()) {
        int expectedMinimum = -1, minimum = -1;
        const std::vector<int> expected = reference::histogram(sample.picture, &expectedMinimum);
        GrowArray<int> histogram;
        imageOf(sample.picture)->getHistogram(&histogram, &minimum);
        EXPECT_EQ(minimum, expectedMinimum) << sample.name;
        EXPECT_EQ(std::vector<int>(histogram.theArray, histogram.theArray + histogram.numThings), expected)
            << sample.name;
    }
}

TEST(Levels, MatchTheirTwin)
{
    struct Arguments {
        float low, high, lowLevel, highLevel;
        bool clampLow, clampHigh;
    };
    const Arguments all[] = {{0.01f, 0.01f, 0, 255, true, true}, {0.1f, 0.1f, 15, 245, false, false},
        {0.0f, 0.005f, 20, 250, true, true}, {0.5f, 0.4f, 100, 90, true, false}, {0.3f, 1.5f, 0, 255, false, true},
        {0.01f, 0.1f, -20, 300, true, true}, {0.2f, 0.2f, 77, 77, false, false}};
    for (const NamedPicture& sample : samplePictures())
        for (const Arguments& a : all) {
            Picture expected = sample.picture;
            reference::fillHistogram(expected, a.low, a.high, a.lowLevel, a.highLevel, a.clampLow, a.clampHigh);
            const auto image = imageOf(sample.picture);
            image->fillHistogram(a.low, a.high, a.lowLevel, a.highLevel, a.clampLow, a.clampHigh);
            expectSame(*image, expected, sample.name + ", low fraction " + std::to_string(a.low));
        }
}
