// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/toolkit/Blur.h"
#include "image/CharImage.h"
#include "image/numbers/Arithmetic.h"
#include "image/toolkit/BlurKernel.h"
#include "image/toolkit/Kernel.h"
#include "tests/reference/Toolkit.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace lumora;

namespace {

Picture blurred(const Picture& picture, int size, float exponent)
{
    const auto image = imageOf(picture);
    image->makeBlurry(size, exponent);
    Picture result = picture;
    std::copy_n(image->data, picture.pixels.size(), result.pixels.begin());
    return result;
}

Picture greyPicture(int width, int height, unsigned seed)
{
    Picture picture = randomPicture(width, height, seed);
    for (std::size_t i = 0; i < picture.pixels.size(); i += 4)
        picture.pixels[i + 1] = picture.pixels[i + 2] = picture.pixels[i];
    return picture;
}

void expectBlurMatchesTwin(const Picture& picture, int size, float exponent)
{
    Picture expected = picture;
    reference::makeBlurry(expected, size, exponent);
    const auto image = imageOf(picture);
    image->makeBlurry(size, exponent);
    expectSame(*image, expected,
        std::to_string(picture.width) + " x " + std::to_string(picture.height) + ", size " + std::to_string(size)
            + ", exponent " + std::to_string(exponent));
}

bool isWhole(int size, float exponent, bool* box = nullptr)
{
    GrowArray<float> weights;
    fillKernel(weights, size, exponent, true);
    const BlurKernel kernel(weights);
    if (box)
        *box = kernel.box;
    return kernel.whole;
}

/// What a tap in whole numbers makes of a sum.
int stepped(const BlurTap& tap, int sum, unsigned char byte)
{
    int next = sum + blurShare(byte, tap.multiplier);
    for (const BlurCarry carry : tap.carries)
        next += carry.byte == byte && sum >= carry.leastSum;
    return next & 255;
}

/// Holds every tap of a kernel, also those left out, to the float arithmetic: every byte, every `sumStep`-th sum and
/// those around the powers of two, where the rounding changes.
void expectTapsMatchFloats(int size, float exponent, int sumStep)
{
    GrowArray<float> weights;
    fillKernel(weights, size, exponent, true);
    const BlurKernel kernel(weights);
    ASSERT_TRUE(kernel.whole);
    const int reach = (weights.numThings - 1) / 2;
    for (int t = 0; t <= reach; t++) {
        const auto found = std::find_if(
            kernel.taps.begin(), kernel.taps.end(), [=](const BlurTap& tap) { return tap.offset == reach - t; });
        const BlurTap tap = found == kernel.taps.end() ? BlurTap{reach - t, 0, {}} : *found;
        for (int sum = 0; sum < 256; sum++) {
            if (sum % sumStep != 0 && (sum & (sum - 1)) != 0 && (sum & (sum + 1)) != 0)
                continue;
            for (int byte = 0; byte < 256; byte++)
                ASSERT_EQ(stepped(tap, sum, static_cast<unsigned char>(byte)),
                    truncateAndWrap(float(sum) + float(byte) * weights.theArray[t]))
                    << "size " << size << ", exponent " << exponent << ", tap " << t << ", " << sum << " + " << byte;
        }
    }
}

} // namespace

TEST(Blur, RaisesSmallSizesToThree)
{
    const Picture picture = randomPicture(20, 15, 2);
    for (float exponent : {-1.0f, 0.0f, 2.0f}) {
        const Picture three = blurred(picture, 3, exponent);
        EXPECT_EQ(blurred(picture, 0, exponent).pixels, three.pixels);
        EXPECT_EQ(blurred(picture, 2, exponent).pixels, three.pixels);
    }
    // A box: three taps of a third, each truncated.
    Picture dot = flatPicture(5, 1, 0, 0, 0);
    dot.at(2, 0)[0] = 90;
    const Picture result = blurred(dot, 3, 0.0f);
    for (int x = 1; x < 4; x++)
        EXPECT_EQ(result.at(x, 0)[0], 30);
    EXPECT_EQ(result.at(0, 0)[0], 0);
}

TEST(Blur, WeighsFourPixelsInQuarters)
{
    Picture dot = flatPicture(5, 1, 0, 0, 0);
    dot.at(2, 0)[0] = 200;
    const Picture result = blurred(dot, 4, 1.0f);
    // Three vertical taps of one row: 25 + 50 + 25 per cent of 50, 100 and 50.
    EXPECT_EQ(result.at(1, 0)[0], 12 + 25 + 12);
    EXPECT_EQ(result.at(2, 0)[0], 100);
    EXPECT_EQ(result.at(3, 0)[0], 12 + 25 + 12);
}

TEST(Blur, RisesToItsCentre)
{
    // The weights of size 7 and exponent 1 are 2, 4, 6, 7, 6, 4, 2 (half sevenths, the centre raised to 1) of their
    // sum.
    Picture dot = flatPicture(1, 9, 0, 0, 0);
    dot.at(0, 4)[1] = 155;
    const auto column = imageOf(dot);
    column->makeBlurry(7, 1.0f);
    const int weights[] = {0, 2, 4, 6, 7, 6, 4, 2, 0};
    // One column: the horizontal pass meets the same byte at every tap and truncates each.
    int across = 0;
    for (int weight : weights)
        across += 155 * weight / 31;
    ASSERT_EQ(across, 155);
    for (int y = 0; y < 9; y++)
        EXPECT_NEAR(column->data[4 * y + 1], 5 * weights[y], 1) << y; // a third of a seventh has no exact float
}

TEST(Blur, RepeatsTheEdgePixels)
{
    // 1 x 1: three taps of a third of 100, each truncated, twice.
    const Picture one = blurred(flatPicture(1, 1, 100, 200, 0), 3, 0.0f);
    EXPECT_EQ(one.at(0, 0)[0], 3 * (3 * 33 / 3));
    EXPECT_EQ(one.at(0, 0)[1], 3 * (3 * 66 / 3));
    EXPECT_EQ(one.at(0, 0)[2], 0);
    // 2 x 1 in quarters: the edge pixel counts for the tap beyond it.
    Picture two = flatPicture(2, 1, 0, 0, 0);
    two.at(1, 0)[0] = 160;
    const Picture result = blurred(two, 4, 1.0f);
    EXPECT_EQ(result.at(0, 0)[0], 40);
    EXPECT_EQ(result.at(1, 0)[0], 120);
}

TEST(Blur, DarkensSlightly)
{
    const Picture result = blurred(flatPicture(9, 9, 100, 100, 100), 7, 1.0f);
    EXPECT_LT(result.at(4, 4)[0], 100);
    EXPECT_GT(result.at(4, 4)[0], 80);
}

TEST(Blur, MatchesItsTwin)
{
    const struct {
        int size;
        float exponent;
    } kernels[] = {
        {0, 0.0f}, {3, 1.0f}, {4, 1.0f}, {5, 3.0f}, {7, 0.0f}, {7, 1.5f}, {10, 0.3f}, {30, 3.0f}, {60, 3.0f}};
    for (const NamedPicture& sample : samplePictures())
        for (const auto& kernel : kernels) {
            if (sample.picture.width > 500 && kernel.size != 7)
                continue; // the twin is slow
            Picture expected = sample.picture;
            reference::makeBlurry(expected, kernel.size, kernel.exponent);
            const auto image = imageOf(sample.picture);
            image->makeBlurry(kernel.size, kernel.exponent);
            expectSame(*image, expected, sample.name + ", size " + std::to_string(kernel.size));
        }
}

TEST(Blur, MatchesItsTwinForEveryKernel)
{
    const Picture picture = randomPicture(61, 9, 12);
    for (int size = 3; size <= 40; size++)
        for (float exponent : {-1.0f, 0.3f, 0.5f, 1.0f, 1.5f, 2.0f, 3.0f, 40.0f})
            expectBlurMatchesTwin(picture, size, exponent);
}

TEST(Blur, MatchesItsTwinInGreyAndInColour)
{
    for (int size = 3; size <= 70; size++)
        for (float exponent : {0.0f, 0.5f, 1.0f, 3.0f}) {
            expectBlurMatchesTwin(randomPicture(45, 8, unsigned(size)), size, exponent);
            expectBlurMatchesTwin(greyPicture(7, 50, unsigned(size)), size, exponent);
        }
}

/// Blurs a grey picture that is black at first and whose rows are made on the way.
void expectMadeRowsToBlurAlike(const Picture& picture, int size, float exponent)
{
    Picture expected = picture;
    reference::makeBlurry(expected, size, exponent);
    Picture black = picture;
    std::fill(black.pixels.begin(), black.pixels.end(), static_cast<unsigned char>(0));
    const auto image = imageOf(black);
    int next = 0;
    blurNeutralRows(*image, size, exponent, [&](int y) {
        EXPECT_EQ(y, next++);
        const std::size_t row = std::size_t(picture.width) * 4;
        std::copy_n(picture.pixels.data() + y * row, row, image->data + y * row);
    });
    EXPECT_EQ(next, picture.height);
    expectSame(*image, expected, "size " + std::to_string(size) + ", exponent " + std::to_string(exponent));
}

TEST(Blur, MakesNeutralRowsOnTheWay)
{
    bool box = false;
    ASSERT_TRUE(isWhole(7, 0.0f, &box));
    ASSERT_TRUE(box);
    ASSERT_TRUE(isWhole(30, 3.0f, &box));
    ASSERT_FALSE(box);
    ASSERT_FALSE(isWhole(7, 200.0f));
    for (const Picture& picture : {greyPicture(61, 40, 5), greyPicture(300, 3, 6), greyPicture(1, 90, 7)}) {
        expectMadeRowsToBlurAlike(picture, 7, 0.0f);
        expectMadeRowsToBlurAlike(picture, 30, 3.0f);
        expectMadeRowsToBlurAlike(picture, 7, 200.0f);
    }
    CharImage none;
    blurNeutralRows(none, 7, 0.0f, [](int) { ADD_FAILURE() << "there is no row"; });
}

TEST(Blur, MatchesItsTwinInAwkwardShapes)
{
    const int shapes[][2] = {{1, 1}, {1, 2}, {2, 1}, {1, 90}, {90, 1}, {3, 3}, {16, 17}, {1030, 3}, {2, 600}};
    for (const auto& shape : shapes)
        for (int size : {3, 4, 7, 26, 61})
            for (float exponent : {0.0f, 1.0f, 3.0f}) {
                expectBlurMatchesTwin(randomPicture(shape[0], shape[1], 5), size, exponent);
                expectBlurMatchesTwin(greyPicture(shape[0], shape[1], 6), size, exponent);
            }
}

TEST(Blur, IsNotTakenForGreyByOneChannelAlone)
{
    for (int channel = 0; channel < 3; channel++) {
        Picture picture = greyPicture(40, 9, 3);
        picture.at(39, 8)[channel] ^= 128;
        expectBlurMatchesTwin(picture, 9, 1.0f);
        expectBlurMatchesTwin(picture, 9, 0.0f);
    }
}

TEST(Blur, MatchesItsTwinBeyondWholeNumbers)
{
    constexpr float infinity = std::numeric_limits<float>::infinity(), none = std::numeric_limits<float>::quiet_NaN();
    for (float exponent : {200.0f, infinity, none})
        for (int size : {3, 7, 20}) {
            EXPECT_FALSE(isWhole(size, exponent));
            expectBlurMatchesTwin(randomPicture(40, 9, 4), size, exponent);
            expectBlurMatchesTwin(greyPicture(9, 40, 4), size, exponent);
        }
    expectBlurMatchesTwin(randomPicture(40, 9, 4), 9, -infinity);
}

TEST(Blur, KnowsItsBoxes)
{
    bool box = false;
    EXPECT_TRUE(isWhole(7, 0.0f, &box) && box);
    EXPECT_TRUE(isWhole(7, 3.0f, &box) && !box);
    // The float next to 1/61 is less: 61 times that is just below 1, and rounding carries.
    EXPECT_TRUE(isWhole(61, 0.0f, &box) && !box);
    // Every share is 0: the picture turns black.
    EXPECT_TRUE(isWhole(301, 0.0f, &box) && !box);
    expectBlurMatchesTwin(randomPicture(9, 9, 1), 301, 0.0f);
}

TEST(Blur, RoundsUpOnlyFromASafeFractionOnAndThenEveryLargerSum)
{
    // All products below 256 whose fraction is the safe one or more, and all sums. Sums with a smaller product are no
    // larger than those with the first one.
    for (int whole = 0; whole < 256; whole++) {
        const auto first = float(whole + blurSafeFraction);
        ASSERT_EQ(double(first), whole + blurSafeFraction);
        for (float product = first; product < float(whole + 1); product = std::nextafter(product, 256.0f)) {
            bool roundsUp = false;
            for (int sum = 0; sum < 256; sum++) {
                const int more = int(float(sum) + product) - sum - whole;
                ASSERT_TRUE(more == 0 || more == 1) << sum << " + " << product;
                ASSERT_FALSE(roundsUp && more == 0) << sum << " + " << product;
                roundsUp = more == 1;
            }
            ASSERT_FALSE(roundsUp && product == first) << product;
        }
    }
}

TEST(Blur, HasAMultiplierForEveryTap)
{
    for (int size = 3; size <= 100; size++)
        for (float exponent : {0.0f, 3.0f})
            expectTapsMatchFloats(size, exponent, 256);
    for (int size : {3, 6, 41})
        for (float exponent : {0.0f, 1.0f, 3.0f, 40.0f})
            expectTapsMatchFloats(size, exponent, 1);
}
