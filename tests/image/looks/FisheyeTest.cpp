// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/image/looks/LookProperties.h"

using namespace lumora;

TEST(Fisheye, MatchesItsTwin)
{
    expectLookMatchesTwin(Filter::fisheye, reference::fisheye);
}

TEST(Fisheye, MatchesItsTwinInOddShapes)
{
    // Several bands and blocks, long and narrow shapes, whole and half centres.
    const int sizes[][2] = {{700, 37}, {37, 700}, {1, 300}, {513, 1}, {600, 601}, {257, 400}, {1400, 900}};
    for (const auto& size : sizes) {
        Picture expected = randomPicture(size[0], size[1], 3);
        const auto image = imageOf(expected);
        image->makeFisheye();
        reference::fisheye(expected);
        expectSame(*image, expected, std::to_string(size[0]) + "x" + std::to_string(size[1]));
    }
}

TEST(Fisheye, LeavesAnEmptyImageEmpty)
{
    CharImage image;
    image.makeFisheye();
    EXPECT_EQ(image.data, nullptr);
}

TEST(Fisheye, KeepsTheCentrePixelsPlace)
{
    Picture picture = flatPicture(100, 100, 10, 10, 10);
    picture.at(50, 50)[0] = 200;
    const auto image = imageOf(picture);
    image->makeFisheye();
    EXPECT_EQ(image->data[4 * (50 * 100 + 50)], 200);
}

TEST(Fisheye, SamplesTwelvePixelsInAtTheLeftEdgeAndBlackensTheCorners)
{
    Picture picture = flatPicture(1000, 1000, 0, 0, 0);
    for (int y = 0; y < 1000; y++)
        for (int x = 0; x < 1000; x++)
            picture.at(x, y)[0] = static_cast<unsigned char>(x < 250 ? x : 250), picture.at(x, y)[1] = 99;
    const auto image = imageOf(picture);
    image->applyFisheyeFilter();
    EXPECT_NEAR(image->data[4 * (500 * 1000)], 12, 1);
    EXPECT_EQ(image->data[4 * (500 * 1000) + 1], 99);
    for (const int corner : {0, 999, 999000, 999999})
        EXPECT_EQ(image->data[4 * corner + 1], 0);
}

TEST(Fisheye, SamplesASingleColumn)
{
    // One pixel wide, both neighbours are the same column. Only the row through the centre lies within reach.
    Picture picture = flatPicture(1, 4, 0, 0, 0);
    for (int y = 0; y < 4; y++)
        picture.at(0, y)[0] = static_cast<unsigned char>(60 + 10 * y);
    const auto image = imageOf(picture);
    image->makeFisheye();
    EXPECT_EQ(image->data[4 * 2], 80);
    EXPECT_EQ(image->data[4 * 1], 0);
}
