// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/image/looks/LookProperties.h"

#include "image/looks/Cinema.h"

using namespace lumora;

namespace {

void cinemaLevels(CharImage& image)
{
    image.fillHistogram(0.05f, 0.0f, 5.0f, 255.0f, true, true);
}

} // namespace

TEST(Cinema, MatchesItsTwin)
{
    expectLookMatchesTwin(Filter::cinema, reference::cinema);
}

TEST(Cinema, KeepsTheDarkestBlackAndWhiteWhite)
{
    EXPECT_EQ(afterLevels(Filter::cinema, {5, 5, 5}, cinemaLevels), (ByteColour{0, 0, 0}));
    EXPECT_EQ(afterLevels(Filter::cinema, {255, 255, 255}, cinemaLevels), (ByteColour{255, 255, 255}));
}

TEST(Cinema, TurnsGreyBlue)
{
    const ByteColour c = afterLevels(Filter::cinema, {128, 128, 128}, cinemaLevels);
    EXPECT_EQ(c[0], c[1]);
    EXPECT_NEAR(c[0], 145, 1);
    EXPECT_NEAR(c[2], 162, 1);
}

TEST(Cinema, IgnoresAPixelsPlace)
{
    CharImage::useRandom = 0;
    Picture picture = sampledPicture({60, 60, 60}, {190, 190, 190});
    for (const int x : {1, 399})
        picture.at(x, 0)[1] = 77;
    const auto image = imageOf(picture);
    image->applyFilter(Filter::cinema);
    EXPECT_TRUE(std::equal(image->data + 4, image->data + 7, image->data + 4 * 399));
}

TEST(Cinema, LeavesAnEmptyImageAndTheSpareByteAlone)
{
    CharImage empty;
    empty.applyFilter(Filter::cinema);
    EXPECT_EQ(empty.data, nullptr);
    const Picture picture = randomPicture(20, 20, 3);
    const auto image = imageOf(picture);
    image->applyFilter(Filter::cinema);
    for (int i = 3; i < 1600; i += 4)
        ASSERT_EQ(image->data[i], picture.pixels[i]);
}

TEST(Cinema, VariesItsTintTowardsDark)
{
    const CinemaParameters p = CinemaParameters::varied(allRandom(0.0f).data());
    EXPECT_EQ(p.tint[0], 27);
    EXPECT_EQ(p.tint[2], 36);
    EXPECT_EQ(p.weight, 0.4f * 0.7f);
    EXPECT_EQ(CinemaParameters::varied(allRandom(0.999999f).data()).tint[2], 39);
    EXPECT_EQ(CinemaParameters::varied(allRandom(0.999999f).data()).weight, 0.7f);
}
