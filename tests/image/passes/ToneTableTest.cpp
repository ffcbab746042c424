// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/passes/ToneTable.h"

#include "image/passes/Inputs.h"

#include <gtest/gtest.h>

using namespace lumora;

TEST(ToneTable, KnowsItsLeastAndItsGreatestValue)
{
    const auto expectRange = [](const ToneTable& table, float low, float high) {
        EXPECT_EQ(table.range().low, low);
        EXPECT_EQ(table.range().high, high);
        EXPECT_EQ(table.range().error, 0.0);
    };
    expectRange(ToneTable([](float v) { return v; }), 0.0f, 255.0f);
    expectRange(ToneTable([](float v) { return 10.0f - v; }), -245.0f, 10.0f);
    expectRange(
        ToneTable([](float v) { return v == 100.0f ? 500.0f
                                    : v == 101.0f  ? -500.0f
                                                   : 7.0f; }), -500.0f, 500.0f);
}

TEST(ChannelRanges, HoldEveryByteOfTheirPart)
{
    ChannelCurve curve = {};
    for (int v = 0; v < 256; v++)
        curve.at[v] = v % 64 == 63 ? 1000.0f + float(v) : v % 64 == 0 ? -1000.0f - float(v) : 0.0f;
    const ChannelRanges bytes = ChannelRanges::ofBytes(), changed = ChannelRanges::of(curve);
    for (int v = 0; v < 256; v++) {
        const int part = v / (256 / rangesPerChannel);
        EXPECT_LE(bytes.at[part].low, v);
        EXPECT_GE(bytes.at[part].high, v);
        EXPECT_LE(changed.at[part].low, curve.at[v]);
        EXPECT_GE(changed.at[part].high, curve.at[v]);
    }
}
