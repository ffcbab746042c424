// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/image/looks/LookProperties.h"

#include "image/looks/Magazine.h"

using namespace lumora;

namespace {

void magazineLevels(Picture& picture)
{
    reference::fillHistogram(picture, 0.001f, 0.01f, 0.0f, 255.0f, true, false);
}

// White may lose one in the saturation step, which adds two rounded products.
constexpr ByteColour white = {254, 254, 254};

} // namespace

TEST(Magazine, MatchesItsTwin)
{
    expectLookMatchesTwin(Filter::magazine, reference::magazine);
}

TEST(Magazine, KeepsBlackAndWhite)
{
    expectBeforeLevels(Filter::magazine, {0, 0, 0}, {0, 0, 0}, {0, 0, 0}, white, magazineLevels);
    expectBeforeLevels(Filter::magazine, {255, 255, 255}, white, {0, 0, 0}, white, magazineLevels);
}

TEST(Magazine, OnlyTintsAndSaturatesThePivot)
{
    // l = 0.5294, w = 0.3271: red 135 x 0.6729 + 2 x 0.3271 x 122.82 = 171.2, green 137.6, blue 106.1; L2 = 144.2.
    expectBeforeLevels(Filter::magazine, {135, 135, 135}, {177, 136, 97}, {0, 0, 0}, white, magazineLevels);
}

TEST(Magazine, IsAFunctionOfEachPixelAlone)
{
    CharImage::useRandom = 0;
    Picture picture = sampledPicture({60, 60, 60}, {190, 190, 190});
    for (const int x : {1, 399})
        picture.at(x, 0)[1] = 77;
    picture.at(2, 0)[0] = 10; // another neighbour
    const auto image = imageOf(picture);
    image->applyFilter(Filter::magazine);
    EXPECT_TRUE(std::equal(image->data + 4, image->data + 7, image->data + 4 * 399));
}

TEST(Magazine, StretchesAnEmptyImageWithoutAPixelPass)
{
    CharImage empty;
    empty.applyFilter(Filter::magazine);
    EXPECT_EQ(empty.data, nullptr);
}

TEST(Magazine, VariesWithinItsBands)
{
    const MagazineParameters p = MagazineParameters::varied(allRandom(0.0f).data());
    EXPECT_EQ(p.pivot, 80.0f);
    EXPECT_EQ(p.shadowExponent, 1.0f);
    EXPECT_EQ(p.highlightExponent, 0.8f);
}
