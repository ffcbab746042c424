// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/image/looks/LookProperties.h"

#include "image/looks/Helga.h"

using namespace lumora;

TEST(Helga, MatchesItsTwin)
{
    expectLookMatchesTwin(Filter::helga, reference::helga);
}

TEST(Helga, GivesTheSameBytesTwice)
{
    CharImage::useRandom = 0;
    const auto first = imageOf(photoLikePicture(61, 43)), second = imageOf(photoLikePicture(61, 43));
    first->applyFilter(Filter::helga);
    second->applyFilter(Filter::helga);
    EXPECT_TRUE(std::equal(first->data, first->data + 61 * 43 * 4, second->data));
}

TEST(Helga, NeverGoesBelowItsBlackFloor)
{
    CharImage::useRandom = 0;
    const auto image = imageOf(randomPicture(80, 60, 17));
    image->applyFilter(Filter::helga);
    for (int i = 0; i < 80 * 60 * 4; i++)
        if (i % 4 < 3) {
            ASSERT_GE(image->data[i], 7); // also where a saturation above 1 makes a channel negative
        }
}

TEST(Helga, LeavesTheCentreBrighterThanTheCorners)
{
    CharImage::useRandom = 0;
    Picture picture = sampledPicture({0, 0, 0}, {255, 255, 255});
    for (const int x : {1, 201, 399})
        for (int k = 0; k < 3; k++)
            picture.at(x, 0)[k] = 150;
    picture.at(203, 0)[0] = 0;
    const auto image = imageOf(picture);
    image->applyFilter(Filter::helga);
    EXPECT_GT(image->data[4 * 201], image->data[4]);
    EXPECT_GT(image->data[4 * 201], image->data[4 * 399]);
}

TEST(Helga, LiftsABlackCentre)
{
    CharImage::useRandom = 0;
    const auto image = imageOf(sampledPicture({0, 0, 0}, {255, 255, 255}));
    image->applyFilter(Filter::helga);
    for (int k = 0; k < 3; k++)
        EXPECT_GE(image->data[4 * 200 + k], 7);
}

TEST(Helga, RendersASinglePixel)
{
    Picture expected = flatPicture(1, 1, 120, 90, 60);
    CharImage::useRandom = 0;
    const auto image = imageOf(expected);
    reference::helga(expected);
    image->applyFilter(Filter::helga);
    expectSame(*image, expected, "1x1");
}

TEST(Helga, VariesWithinItsBands)
{
    const HelgaParameters low = HelgaParameters::varied(allRandom(0.0f).data());
    EXPECT_EQ(low.edgeExponent, float(0.6 * 5.0));
    EXPECT_EQ(low.contrast, 1.54f);
    EXPECT_EQ(low.blackFloor, 0);
    EXPECT_EQ(low.lowLevel, 30);
    EXPECT_EQ(low.tint[0], 138.0f * 0.8f);
    const HelgaParameters high = HelgaParameters::varied(allRandom(0.999999f).data());
    EXPECT_EQ(high.blackFloor, 14);
    EXPECT_EQ(high.lowLevel, 35);
    EXPECT_NEAR(high.contrast, 2.31f, 1e-4f);
}
