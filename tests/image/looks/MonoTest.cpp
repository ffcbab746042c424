// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/image/looks/LookProperties.h"

#include "image/looks/Mono.h"

using namespace lumora;

namespace {

void monoLevels(Picture& picture)
{
    reference::fillHistogram(picture, 0.01f, 0.01f, 0.0f, 255.0f, true, true);
}

} // namespace

TEST(Mono, MatchesItsTwin)
{
    expectLookMatchesTwin(Filter::mono, reference::mono);
}

TEST(Mono, WeakensBlue)
{
    const ByteColour black = {0, 0, 0}, white = {241, 241, 241};
    expectBeforeLevels(Filter::mono, {0, 0, 255}, {14, 14, 14}, black, white, monoLevels);
    expectBeforeLevels(Filter::mono, {255, 0, 0}, {76, 76, 76}, black, white, monoLevels);
    expectBeforeLevels(Filter::mono, {0, 255, 0}, {150, 150, 150}, black, white, monoLevels);
}

TEST(Mono, HoldsItsVariedGainsBetween50And255)
{
    EXPECT_EQ(MonoParameters::varied(allRandom(0.1f).data()).gain[0], 50.0f);
    EXPECT_EQ(MonoParameters::varied(allRandom(0.99f).data()).gain[2], 255.0f);
    EXPECT_EQ(MonoParameters::varied(allRandom(0.5f).data()).gain[1], 135.0f);
}

TEST(Mono, IsNeutral)
{
    CharImage::useRandom = 1;
    const auto image = imageOf(randomPicture(40, 40, 5));
    image->applyFilter(Filter::mono);
    for (int i = 0; i < 1600; i++) {
        ASSERT_EQ(image->data[4 * i], image->data[4 * i + 1]);
        ASSERT_EQ(image->data[4 * i], image->data[4 * i + 2]);
    }
}
