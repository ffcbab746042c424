// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/image/looks/LookProperties.h"

#include "image/looks/Instant.h"

using namespace lumora;

TEST(Instant, MatchesItsTwin)
{
    expectLookMatchesTwin(Filter::instant, reference::instant);
}

TEST(Instant, HasNoBlackBeforeItsVignette)
{
    // One pixel: its levels are those of an empty histogram (everything at most 50 or 255) and the vignette leaves its
    // centre alone. All three channels at 0 go to the floor of the curves.
    const auto image = imageOf(flatPicture(1, 1, 0, 0, 0));
    CharImage::useRandom = 0;
    image->applyFilter(Filter::instant);
    Picture twin = flatPicture(1, 1, 0, 0, 0);
    reference::instant(twin);
    expectSame(*image, twin, "1x1");
    EXPECT_EQ((ByteColour{image->data[0], image->data[1], image->data[2]}), (ByteColour{27, 23, 21}));
}

TEST(Instant, IsAFunctionOfEachPixelUpToItsVignette)
{
    // Both pixels stand equally far from the centre, inside the inner radius of the vignette.
    CharImage::useRandom = 0;
    Picture picture = sampledPicture({60, 60, 60}, {190, 190, 190});
    for (const int x : {198, 202})
        picture.at(x, 0)[1] = 77;
    const auto image = imageOf(picture);
    image->applyFilter(Filter::instant);
    EXPECT_TRUE(std::equal(image->data + 4 * 198, image->data + 4 * 198 + 3, image->data + 4 * 202));
}

TEST(Instant, SurvivesAnEmptyImage)
{
    CharImage empty;
    empty.applyFilter(Filter::instant);
    EXPECT_EQ(empty.data, nullptr);
}

TEST(Instant, VariesWithinItsBands)
{
    const InstantParameters low = InstantParameters::varied(allRandom(0.0f).data());
    EXPECT_EQ(low.exponent[0], float(1.513512f * 0.7));
    EXPECT_EQ(low.lowFraction, 0.01f);
    EXPECT_EQ(low.contrast, 0.8f);
    EXPECT_EQ(InstantParameters::varied(allRandom(0.5f).data()).lowFraction, 2.0f * 0.01f);
}
