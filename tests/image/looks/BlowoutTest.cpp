// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/image/looks/LookProperties.h"

using namespace lumora;

namespace {

void blowoutLevels(CharImage& image)
{
    image.fillHistogram(0.01f, 0.1f, 20.0f, 255.0f, false, true);
}

} // namespace

TEST(Blowout, MatchesItsTwin)
{
    expectLookMatchesTwin(Filter::blowout, reference::blowout);
}

TEST(Blowout, BrightensByLightness)
{
    EXPECT_EQ(afterLevels(Filter::blowout, {128, 128, 128}, blowoutLevels), (ByteColour{192, 192, 192}));
    EXPECT_EQ(afterLevels(Filter::blowout, {255, 0, 0}, blowoutLevels), (ByteColour{255, 0, 0}));
    EXPECT_EQ(afterLevels(Filter::blowout, {20, 20, 20}, blowoutLevels), (ByteColour{21, 21, 21}));
    EXPECT_EQ(afterLevels(Filter::blowout, {0, 0, 0}, blowoutLevels), (ByteColour{0, 0, 0}));
    EXPECT_EQ(afterLevels(Filter::blowout, {255, 255, 255}, blowoutLevels), (ByteColour{255, 255, 255}));
}
