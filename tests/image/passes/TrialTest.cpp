// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/numbers/Hues.h"
#include "image/numbers/Power.h"
#include "image/passes/Levels.h"
#include "image/passes/PixelPass.h"
#include "image/passes/RadialPass.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>

using namespace lumora;

namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();

float randomByte(std::mt19937& random)
{
    return float(random() % 256);
}

Inputs bytes(float heaviest)
{
    const ChannelRanges all = ChannelRanges::ofBytes();
    return {all, all, all, {0.0, heaviest}};
}

/// Evaluates a recipe for many colours, exactly and in Single, and checks that the two are nowhere further apart than
/// errorOf says, and that what it says is small enough to be of use.
template <class... Step> void expectErrorHolds(const Steps<Step...>& steps)
{
    const float heaviest = 0.75f;
    const double error = errorOf(steps, bytes(heaviest));
    ASSERT_LT(error, tolerableError);
    std::mt19937 random(7);
    double worst = 0.0;
    for (int k = 0; k < 200000; k++) {
        Rgb c = {randomByte(random), randomByte(random), randomByte(random)};
        if (k % 4 == 0)
            c.g = c.b; // hues and extremes that meet
        const float weight = float(random() % 1001) * 0.001f * heaviest;
        const Rgb exact = applied(steps, c, &weight, 0);
        const Colour<Single> tried = applied(steps, Colour<Single>{c.r, c.g, c.b}, SingleWeights{&weight}, 0);
        for (const auto& [wanted, got] :
            {std::pair(exact.r, tried.r.value), std::pair(exact.g, tried.g.value), std::pair(exact.b, tried.b.value)}) {
            const double off = std::fabs(double(wanted) - double(got));
            if (got != std::trunc(got)) // a whole number leaves the pixel to the exact recipe
                worst = std::max(worst, off);
        }
    }
    EXPECT_LE(worst, error) << error;
}

/// The bytes of a picture of many colours after a pass of the recipe in its own arithmetic, one pixel at a time. The
/// levels come first, if any.
template <class... Step, class... Source> void expectPassIsExact(const Steps<Step...>& steps, const Source&... levels)
{
    constexpr int width = 300, height = 200;
    std::mt19937 random(3);
    CharImage image(new unsigned char[width * height * 4], width, height);
    for (int i = 0; i < width * height * 4; i++)
        image.data[i] = static_cast<unsigned char>(random());
    const CharImage before(image);
    forEachPixel(image, levels..., steps);
    for (int i = 0; i < width * height; i++) {
        const unsigned char* pixel = image.data + 4 * i;
        Rgb c = pixelAt(before.data + 4 * i);
        ((c = eachChannel(c, levels)), ...);
        const Rgb exact = applied(steps, c, static_cast<const float*>(nullptr), 0);
        ASSERT_EQ(pixel[0], truncateAndClamp(exact.r)) << i;
        ASSERT_EQ(pixel[1], truncateAndClamp(exact.g)) << i;
        ASSERT_EQ(pixel[2], truncateAndClamp(exact.b)) << i;
        ASSERT_EQ(pixel[3], before.data[4 * i + 3]) << i;
    }
}

/// A recipe that adds 1, of which the trial knows nothing but that it must leave a red of 67 to the exact form.
struct DoubtfulOf67 {
    Rgb operator()(Rgb c) const
    {
        return eachChannel(c, [](float v) { return v + 1.0f; });
    }
    Colour<Single> operator()(Colour<Single> c) const
    {
        const Single certain = c.r.value == 67.0f ? 0.0f : 0.5f;
        return eachChannel(c, [=](Single v) { return v + certain; });
    }
};

const auto tenths = [](auto c) { return eachChannel(c, [](auto v) { return rounded(v * 0.1 + 3.7); }); };

} // namespace

TEST(Trial, KnowsHowFarEachKindOfStepIsOff)
{
    expectErrorHolds(Steps(tenths));
    expectErrorHolds(Steps([](auto c) {
        const auto level = luminance(c) * 0.4f;
        return eachChannel(c, [=](auto v) { return v * 0.6f - level; });
    }));
    expectErrorHolds(Steps([](auto c) { return eachChannel(c, [](auto v) { return withContrast(v, 1.54f); }); },
        [](auto c) { return eachChannel(c, [](auto v) { return withContrast(v, 0.3); }); }));
    expectErrorHolds(Steps([](auto c) {
        const auto share = rounded(byteLuminance(c) * per255);
        return eachChannel(c, [=](auto v) { return withShareTimes(v, share, 1.5f); });
    }));
    expectErrorHolds(Steps([](auto c) {
        const auto share = rounded(luminance(c) * -per255 + 1.0);
        return eachChannel(c, [=](auto v) { return withShareTimes(v, share, 0.4); });
    }));
    expectErrorHolds(Steps([](auto c, auto weight) {
        return eachChannel(c, [=](auto v) { return withDoubledCast(v, weight, weight * v); });
    }));
    expectErrorHolds(Steps([](auto c, auto weight) { return partedTones(c, byteLuminance(c) < 135.0f, weight); }));
    expectErrorHolds(Steps([](auto c) {
        const auto power = sesquiPower(rounded(luminance(c) * per255 + 0.1));
        return eachChannel(c, [=](auto v) { return notBelow(v * power, 62.5f); });
    }));
    expectErrorHolds(Steps([](auto c) {
        const auto gain = lightnessOf(c) + 1.0f;
        return eachChannel(c, [=](auto v) { return v * gain; });
    }));
    // A neutral colour as one channel.
    expectErrorHolds(Steps([](auto c) { return luminance(c) * 0.7f - larger(c.g - 140.0f, 140.0f - c.g) * 0.3f; }));
}

TEST(Trial, KnowsHowFarTheShortWayPastTheHueIsOff)
{
    const auto spread = [](auto c) { return eachChannel(c, [](auto v) { return withContrast(v, 1.51); }); };
    const auto darkened = [](auto c, auto e) { return withSaturationAndValueTimes(c, 1.0 + 0.4 * e, 1.0 - e); };
    expectErrorHolds(Steps(darkened));
    expectErrorHolds(Steps(spread, darkened));
}

TEST(Trial, IsAsFarOffAsItsWorstChannel)
{
    const auto errorIn = [](int channel) {
        return errorOf(Steps([channel](auto c) {
            auto& one = channel == 0 ? c.r : channel == 1 ? c.g : c.b;
            one = withContrast(one, 1.51);
            return c;
        }),
            bytes(1.0f));
    };
    EXPECT_GT(errorIn(2), 0.0);
    EXPECT_EQ(errorIn(0), errorIn(2));
    EXPECT_EQ(errorIn(1), errorIn(2));
}

TEST(Trial, IsAsFarOffAsTheWorseOfTwoWays)
{
    const auto errorWith = [](auto way) {
        return errorOf(Steps([way](auto c) { return eachChannel(c, way); }), bytes(1.0f));
    };
    const double error = errorWith([](auto v) { return withContrast(v, 1.51); });
    EXPECT_GT(error, 0.0);
    EXPECT_EQ(errorWith([](auto v) { return select(v < 128.0f, v, withContrast(v, 1.51)); }), error);
    EXPECT_EQ(errorWith([](auto v) { return select(v < 128.0f, withContrast(v, 1.51), v); }), error);
}

TEST(Trial, LeavesTheUnclearHuesToTheExactRecipe)
{
    // Neutral colours, a hue that falls short of a full turn by a hair, and a value of 0.
    const Single half = 0.5f, more = 1.2f;
    for (const Colour<Single>& c : {Colour<Single>{90.0f, 40.0f, 40.0f}, Colour<Single>{90.0f, 40.0f, 40.001f},
             Colour<Single>{70.0f, 70.0f, 70.0f}, Colour<Single>{0.0f, -20.0f, -30.0f}})
        EXPECT_EQ(withSaturationAndValueTimes(c, more, half).r.value, 255.0f);
    for (const Colour<Single>& c :
        {Colour<Single>{90.0f, 40.0f, 50.0f}, Colour<Single>{40.0f, 90.0f, 90.0f}, Colour<Single>{40.0f, 40.0f, 90.0f}})
        EXPECT_NE(withSaturationAndValueTimes(c, more, half).r.value, 255.0f);
}

TEST(Trial, GivesUpWhereABoundIsOutOfReach)
{
    // A trial may compare values, or take their luminance as bytes, only while they are still whole bytes.
    const auto compared = [](auto c) {
        const auto level = luminance(c);
        return eachChannel(c, [=](auto v) { return select(level < 128.0f, v, v * 2.0f); });
    };
    EXPECT_EQ(errorOf(Steps(compared), bytes(1.0f)), infinite);
    EXPECT_EQ(errorOf(Steps(tenths,
                          [](auto c) { return eachChannel(c, [level = byteLuminance(c)](auto) { return level; }); }),
                  bytes(1.0f)),
        infinite);
    // A square root is infinitely steep at 0; and values so large that their parts do not fit an int.
    EXPECT_EQ(errorOf(Steps([](auto c) { return eachChannel(c, [](auto v) { return sesquiPower(v - 1.0f); }); }),
                  bytes(1.0f)),
        infinite);
    EXPECT_EQ(errorOf(Steps([](auto c) { return eachChannel(c, [](auto v) { return v * 1000.0f; }); }), bytes(1.0f)),
        infinite);
}

TEST(Trial, GivesTheBytesOfTheExactRecipe)
{
    // Every tenth value of this recipe is a whole number, or would be one if nothing were rounded.
    expectPassIsExact(Steps(tenths));
    // A third of a byte is rarely a whole number; three times that third nearly always is one.
    expectPassIsExact(Steps([](auto c) { return eachChannel(c, [](auto v) { return rounded(v * (1.0 / 3.0)); }); },
        [](auto c) { return eachChannel(c, [](auto v) { return rounded(v * 2.9999999); }); }));
    // Neutral colours as one channel.
    expectPassIsExact(Steps([](auto c) { return rounded(c.g * 0.1 + 3.7); }));
    expectPassIsExact(
        Steps([](auto c) { return luminance(c) * 1.7f - 60.0f; }), Levels{12.0f, 1.7f, 5.0f, 5.0f, 255.0f});
    // Results far below 0 and far beyond 255.
    expectPassIsExact(Steps([](auto c) { return eachChannel(c, [](auto v) { return withContrast(v, 9.7); }); }));
    // Behind levels, ordinary ones and those of a flat picture.
    expectPassIsExact(Steps(tenths), Levels{12.0f, 1.7f, 5.0f, 5.0f, 255.0f});
    expectPassIsExact(Steps(tenths), Levels{12.0f, static_cast<float>(infinite), 5.0f, 5.0f, 255.0f});
    // A recipe whose error bound is too large for a trial.
    expectPassIsExact(Steps([](auto c) { return eachChannel(c, [](auto v) { return withContrast(v, 4000.3); }); },
        [](auto c) { return eachChannel(c, [](auto v) { return rounded(v * 0.0003); }); }));
}

TEST(Trial, VisitsThePixelsOnWhichItDoesNotDecide)
{
    unsigned char marked[blockPixels] = {};
    std::vector<int> visited;
    const auto note = [&](int i) { visited.push_back(i); };
    forEachMarked(marked, blockPixels, note);
    EXPECT_TRUE(visited.empty());
    const std::vector<int> some = {0, 7, 8, 100, 255};
    for (int i : some)
        marked[i] = 1;
    forEachMarked(marked, blockPixels, note);
    EXPECT_EQ(visited, some);
    for (unsigned char& mark : marked)
        mark = 1;
    // In a block that is only partly filled, the pixels that it has and no others.
    for (int count : {1, 7, 63, 64, 65, 200, blockPixels}) {
        visited.clear();
        forEachMarked(marked, count, note);
        EXPECT_EQ(int(visited.size()), count);
        EXPECT_EQ(visited.back(), count - 1);
    }
}

TEST(Trial, DecidesOnPixelsOfManyBlocksTogether)
{
    // Whole blocks, and one that is part filled.
    constexpr int pixels = 11 * blockPixels + 9;
    CharImage image(new unsigned char[pixels * 4](), pixels, 1);
    const auto isDoubtful = [](int i) { return i % 100 == 7 || i == pixels - 1; };
    for (int i = 0; i < pixels; i++)
        image.data[4 * i] = isDoubtful(i) ? 67 : 30;
    Trial trial(Steps{DoubtfulOf67()}, 1e-4, NoLevels());
    forEachBlock(image, [&](Block& block) {
        block.fillPlanes();
        trial.work(block, nullptr);
    });
    trial.finish();
    for (int i = 0; i < pixels; i++) {
        ASSERT_EQ(image.data[4 * i], isDoubtful(i) ? 68 : 30) << i;
        ASSERT_EQ(image.data[4 * i + 1], isDoubtful(i) ? 1 : 0) << i;
    }
}

TEST(Trial, DecidesWithTheWeightsOfItsPixels)
{
    constexpr int width = 600, height = 9, centreX = 411, centreY = 2;
    for (const bool keepsPixels : {false, true}) {
        CharImage image(new unsigned char[width * height * 4], width, height);
        std::fill_n(image.data, width * height * 4, static_cast<unsigned char>(100));
        // The results are whole numbers, so that the trial is in doubt about every pixel.
        const auto weightAt = [](int across, int down) {
            return across < 150 ? float(across % 7 + 10 * (down % 3)) : 0;
        };
        forEachPixelAround(
            image, centreX, centreY, {0.0, 30.0},
            [=](float* weights, const int* across, const int* down, int count) {
                for (int i = 0; i < count; i++)
                    weights[i] = weightAt(across[i], down[i]);
            },
            [](auto c, auto weight) { return eachChannel(c, [=](auto v) { return v + weight; }); }, keepsPixels);
        for (int y = 0; y < height; y++)
            for (int x = 0; x < width; x++)
                ASSERT_EQ(
                    image.data[(y * width + x) * 4], 100 + int(weightAt(std::abs(x - centreX), std::abs(y - centreY))))
                    << x << ", " << y;
    }
}

TEST(Trial, PassesOverBlocksWhoseWeightsAllKeepTheirPixels)
{
    // The recipe changes every pixel that it is given, which shows the blocks that were visited.
    constexpr int width = 2 * blockPixels + 5;
    for (const bool keepsPixels : {false, true}) {
        CharImage image(new unsigned char[width * 4](), width, 1);
        forEachPixelAround(
            image, 0, 0, {0.0, 1.0},
            [](float* weights, const int* across, const int*, int count) {
                for (int i = 0; i < count; i++)
                    weights[i] = across[i] == blockPixels + 9 ? 1.0f : 0.0f;
            },
            [](auto c, auto) { return eachChannel(c, [](auto v) { return v + 9.5f; }); }, keepsPixels);
        for (int x = 0; x < width; x++)
            ASSERT_EQ(image.data[4 * x], !keepsPixels || x / blockPixels == 1 ? 9 : 0) << x;
    }
}
