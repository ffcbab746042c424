// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/image/looks/LookProperties.h"

#include "image/looks/Look1962.h"

using namespace lumora;

namespace {

void levels1962(CharImage& image)
{
    image.fillHistogram(0.1f, 0.1f, 15.0f, 245.0f, false, false);
}

} // namespace

TEST(Look1962, MatchesItsTwin)
{
    expectLookMatchesTwin(Filter::look1962, reference::look1962);
}

TEST(Look1962, LeavesThePivotAndSpreadsTheRest)
{
    // The weighted greys are 100.1, 200.1 and 25.1: blue counts one and a half times.
    EXPECT_EQ(afterLevels(Filter::look1962, {100, 100, 67}, levels1962), (ByteColour{100, 100, 100}));
    EXPECT_EQ(afterLevels(Filter::look1962, {200, 200, 134}, levels1962)[0], 233);
    EXPECT_EQ(afterLevels(Filter::look1962, {25, 25, 17}, levels1962)[0], 0);
}

TEST(Look1962, MakesSaturatedBlueDark)
{
    EXPECT_EQ(afterLevels(Filter::look1962, {0, 0, 255}, levels1962), (ByteColour{22, 22, 22}));
}

TEST(Look1962, ClampsAGreyBeyondWhite)
{
    EXPECT_EQ(afterLevels(Filter::look1962, {255, 255, 255}, levels1962), (ByteColour{255, 255, 255}));
}

TEST(Look1962, VariesWithinItsBands)
{
    const Look1962Parameters low = Look1962Parameters::varied(allRandom(0.0f).data());
    EXPECT_EQ(low.gain[2], 0.8f);
    EXPECT_EQ(low.darkFraction, float(0.2 * 0.1));
    EXPECT_EQ(low.darkLevel, 7.0f);
    EXPECT_EQ(low.contrast, float(0.8 * 1.33));
    EXPECT_EQ(low.pivot, 50.0f);
}
