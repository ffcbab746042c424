// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/image/looks/LookProperties.h"

#include "image/looks/Lolo.h"

using namespace lumora;

namespace {

void loloLevels(CharImage& image)
{
    image.fillHistogram(0.005f, 0.01f, 30.0f, 255.0f, true, true);
}

} // namespace

TEST(Lolo, MatchesItsTwin)
{
    expectLookMatchesTwin(Filter::lolo, reference::lolo);
}

TEST(Lolo, WarmsGrey)
{
    EXPECT_EQ(afterLevels(Filter::lolo, {128, 128, 128}, loloLevels), (ByteColour{130, 129, 124}));
}

TEST(Lolo, KeepsTheDarkestBlack)
{
    // The levels hold the darkest at 30; contrast takes 30 to (30 - 128) x 1.5 + 128 = -19.
    EXPECT_EQ(afterLevels(Filter::lolo, {30, 30, 30}, loloLevels), (ByteColour{0, 0, 0}));
}

TEST(Lolo, HoldsItsVariedBrightLevelAt255)
{
    EXPECT_EQ(LoloParameters::varied(allRandom(0.0f).data()).brightLevel, 255.0f);
    EXPECT_EQ(LoloParameters::varied(allRandom(0.5f).data()).brightLevel, 240.0f);
    EXPECT_EQ(LoloParameters::varied(allRandom(0.0f).data()).darkLevel, 10.0f);
    EXPECT_NEAR(LoloParameters::varied(allRandom(0.0f).data()).saturation, 1.568f, 1e-5f);
    EXPECT_EQ(LoloParameters::fixed().saturation, 1.4f);
}
