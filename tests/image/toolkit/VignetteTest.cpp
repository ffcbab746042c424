// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "tests/reference/Toolkit.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <utility>

using namespace lumora;

TEST(Vignette, LeavesThePixelAtTheInnerRadius)
{
    const Picture picture = randomPicture(41, 41, 4);
    const auto image = imageOf(picture);
    image->vignette(10, 20, 2.0f, 1.0f, true, true);
    for (const int x : {10, 15, 20, 30}) // up to 10 pixels from the centre at (20, 20)
        for (int k = 0; k < 3; k++)
            EXPECT_EQ(image->data[4 * (20 * 41 + x) + k], picture.at(x, 20)[k]);
    EXPECT_EQ(image->data[4 * 20 * 41], 0); // the outer radius is black
}

TEST(Vignette, OnlySoftensWithoutStrength)
{
    const Picture picture = randomPicture(300, 11, 4);
    Picture soft = picture;
    reference::makeBlurry(soft, 1, 0.0f);
    const auto image = imageOf(picture);
    image->vignette(0, 50, 1.0f, 0.0f, false, true);
    for (int k = 0; k < 3; k++) {
        EXPECT_EQ(image->data[4 * (5 * 300 + 150 + 9) + k], picture.at(159, 5)[k]); // t below 0.2
        EXPECT_EQ(image->data[4 * 5 * 300 + k], soft.at(0, 5)[k]); // t far above 1.2
    }
}

TEST(Vignette, SoftensSmallPicturesByTheLeastBox)
{
    Picture picture = flatPicture(199, 3, 0, 0, 0);
    picture.at(10, 1)[0] = 90;
    const auto image = imageOf(picture);
    image->vignette(0, 10, 1.0f, 0.0f, false, true);
    EXPECT_EQ(image->data[4 * (199 + 9)], 10);
    EXPECT_EQ(image->data[4 * (199 + 12)], 0);
}

TEST(Vignette, DarkensByTheCurve)
{
    // Half way with an exponent of 1 both ends of the blend are one half: half dark at full strength.
    const auto one = imageOf(flatPicture(1, 1, 201, 101, 1));
    one->vignette(-1, 1, 1.0f, 1.0f, false, false);
    EXPECT_EQ(one->data[0], 100);
    EXPECT_EQ(one->data[1], 50);
    EXPECT_EQ(one->data[2], 0);
    // 2 x 2: the centre is the lower right pixel, its neighbours are 1 pixel off and the last one sqrt(2). With radii 1
    // and 3 that one has t = 0.2071 and, with exponent 2, dark = (1 - 0.0943) x 0.0429 + 0.2071 x 0.0943 = 0.0584.
    const auto two = imageOf(flatPicture(2, 2, 200, 200, 200));
    two->vignette(1, 3, 2.0f, 1.0f, false, false);
    EXPECT_EQ(two->data[0], 188);
    for (int i = 1; i < 4; i++)
        EXPECT_EQ(two->data[4 * i], 200);
}

TEST(Vignette, LeavesPixelsWhosePlaceIsANegativeZero)
{
    // What lies within the inner radius, divided by so much, is no longer below 0.
    const Picture picture = flatPicture(9, 9, 200, 200, 200);
    for (const auto& [inner, outer] : {std::pair(5.0f, std::numeric_limits<float>::infinity()), {1e-30f, 1e17f}}) {
        const auto image = imageOf(picture);
        image->vignette(inner, outer, 4.8f, 0.9f, false, false);
        EXPECT_TRUE(std::equal(picture.pixels.begin(), picture.pixels.end(), image->data));
    }
}

TEST(Vignette, PushesWhatItDarkensAwayFromGrey)
{
    // Dark by half: each channel is half of 1.5 times itself less half the grey, 0.3 x 200 + 0.59 x 100 = 119.
    const auto image = imageOf(flatPicture(1, 1, 200, 100, 0));
    image->vignette(-1, 1, 1.0f, 1.0f, true, false);
    EXPECT_EQ(image->data[0], 120); // (300 - 59.5) / 2
    EXPECT_EQ(image->data[1], 45); // (150 - 59.5) / 2
    EXPECT_EQ(image->data[2], 0); // -29.75 is held at 0
}

TEST(Vignette, BlursByTheSizeOfThePicture)
{
    // The box grows with the longer side, from 3 pixels to 7 at 1400 and more.
    for (int side : {199, 200, 700, 799, 800, 1000, 1200, 1399, 1400, 3000})
        for (bool tall : {false, true}) {
            const Picture picture = randomPicture(tall ? 2 : side, tall ? side : 2, 5);
            Picture expected = picture;
            reference::vignette(expected, 1, 20, 1.2f, 0.3f, true, true);
            const auto image = imageOf(picture);
            image->vignette(1, 20, 1.2f, 0.3f, true, true);
            expectSame(*image, expected, "side " + std::to_string(side));
        }
}

TEST(Vignette, MatchesItsTwin)
{
    const struct {
        float inner, outer, exponent, strength;
    } rings[] = {{0, 10, 1.2f, 0.2f}, {5, 9, 3.0f, 1.0f}, {40, 300, 1.2f, 0.6f}, {-3, 40, 0.5f, 1.4f},
        {20, 20, 2.0f, 1.0f}, {30, 10, 2.0f, 0.8f}, {0, 500, 5.0f, -0.5f}, {0, 30, 0.0f, 0.7f}, {2, 30, -1.0f, 0.7f}};
    for (const NamedPicture& sample : samplePictures())
        for (const auto& ring : rings)
            for (int flags = 0; flags < 4; flags++) {
                Picture expected = sample.picture;
                reference::vignette(
                    expected, ring.inner, ring.outer, ring.exponent, ring.strength, flags & 1, flags & 2);
                const auto image = imageOf(sample.picture);
                image->vignette(ring.inner, ring.outer, ring.exponent, ring.strength, flags & 1, flags & 2);
                expectSame(*image, expected,
                    sample.name + ", ring " + std::to_string(ring.inner) + ", flags " + std::to_string(flags));
            }
}
