// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/image/looks/LookProperties.h"

#include "image/looks/Look1974.h"

using namespace lumora;

namespace {

void levels1974(Picture& picture)
{
    reference::fillHistogram(picture, 0.0f, 0.005f, 20.0f, 250.0f, true, true);
}

} // namespace

TEST(Look1974, MatchesItsTwin)
{
    expectLookMatchesTwin(Filter::look1974, reference::look1974);
}

TEST(Look1974, WashesBlackInBrownAndClipsWhite)
{
    const ByteColour black = {10, 0, 0}, white = {255, 255, 255};
    expectBeforeLevels(Filter::look1974, {0, 0, 0}, black, black, white, levels1974);
    expectBeforeLevels(Filter::look1974, {255, 255, 255}, white, black, white, levels1974);
}

TEST(Look1974, VariesItsTint)
{
    const Look1974Parameters p = Look1974Parameters::varied(allRandom(0.0f).data());
    EXPECT_EQ(p.tint[0], 140);
    EXPECT_EQ(p.tint[1], 86);
    EXPECT_EQ(p.tint[2], 15);
    EXPECT_EQ(p.amount, float(0.8 * 0.43));
}
