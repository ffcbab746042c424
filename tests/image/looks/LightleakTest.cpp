// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/image/looks/LookProperties.h"

using namespace lumora;

TEST(Lightleak, MatchesItsTwin)
{
    expectLookMatchesTwin(Filter::lightleak, reference::lightleak);
}

TEST(Lightleak, DiffersFromRenderToRenderAlsoWithoutVariation)
{
    CharImage::useRandom = 0;
    std::srand(5);
    const auto first = imageOf(photoLikePicture(60, 40)), second = imageOf(photoLikePicture(60, 40));
    first->applyFilter(Filter::lightleak);
    second->applyFilter(Filter::lightleak);
    EXPECT_FALSE(std::equal(first->data, first->data + 60 * 40 * 4, second->data));
}

TEST(Lightleak, NeverGoesBelow62AtTheCentre)
{
    // The corner darkening leaves the centre alone, so that it shows the floor of the contrast.
    std::srand(5);
    const auto image = imageOf(flatPicture(61, 41, 0, 0, 0));
    image->applyFilter(Filter::lightleak);
    for (int k = 0; k < 3; k++)
        EXPECT_GE(image->data[4 * (20 * 61 + 30) + k], 62);
}

TEST(Lightleak, GivesASinglePixelTheFullGlow)
{
    std::srand(9);
    Picture twin = flatPicture(1, 1, 100, 100, 100);
    const auto image = imageOf(twin);
    reference::lightleak(twin);
    image->applyFilter(Filter::lightleak);
    expectSame(*image, twin, "1x1");
    EXPECT_GT(image->data[0], image->data[2]); // the glow is warm
}

TEST(Lightleak, DrawsThreeNumbersInOrder)
{
    std::srand(11);
    for (int i = 0; i < 3; i++)
        std::rand();
    const int fourth = std::rand();
    std::srand(11);
    const auto image = imageOf(flatPicture(3, 3, 1, 2, 3));
    image->applyFilter(Filter::lightleak);
    EXPECT_EQ(std::rand(), fourth);
}

TEST(Lightleak, RoundsItsRadiusOnce)
{
    Picture twin = photoLikePicture(60, 40);
    const auto image = imageOf(twin);
    std::srand(36); // a radius that a single factor would put one step aside, and a pixel that shows it
    reference::lightleak(twin);
    std::srand(36);
    image->applyFilter(Filter::lightleak);
    expectSame(*image, twin, "seed 36");
}
