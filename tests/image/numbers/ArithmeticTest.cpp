// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/numbers/Arithmetic.h"

#include "image/passes/ToneTable.h"

#include <gtest/gtest.h>
#include <limits>

using namespace lumora;

TEST(Arithmetic, TruncatesAsTheProcessorDoes)
{
    const float infinity = std::numeric_limits<float>::infinity(), nan = std::numeric_limits<float>::quiet_NaN();
    for (float odd : {nan, infinity, -infinity, 2147483648.0f, -3e9f, 1e20f}) {
        EXPECT_EQ(truncateToInt(odd), INT_MIN);
        EXPECT_EQ(truncateAndClamp(odd), 0);
        EXPECT_EQ(truncateAndWrap(odd), 0);
    }
    EXPECT_EQ(truncateToInt(-1.9f), -1);
    EXPECT_EQ(truncateToInt(-2147483648.0f), INT_MIN);
    EXPECT_EQ(truncateAndClamp(-0.9f), 0);
    EXPECT_EQ(truncateAndClamp(254.99f), 254);
    EXPECT_EQ(truncateAndClamp(255.99f), 255);
    EXPECT_EQ(truncateAndClamp(2e9f), 255);
    EXPECT_EQ(truncateAndWrap(256.5f), 0);
    EXPECT_EQ(truncateAndWrap(-1.5f), 255);
    EXPECT_EQ(truncateAndWrap(300.0f), 44);
}

TEST(Arithmetic, GivesOneLuminancePerWholeTone)
{
    for (int r = 0; r < 256; r++)
        for (int g = 0; g < 256; g++)
            for (int b = 0; b < 256; b++)
                ASSERT_EQ(
                    luminance(Rgb{float(r), float(g), float(b)}), ToneTable::luminanceOf(30 * r + 59 * g + 11 * b))
                    << r << " " << g << " " << b;
}

TEST(Arithmetic, GivesTheSameLuminanceOfBytes)
{
    for (int r = 0; r < 256; r++)
        for (int g = 0; g < 256; g++)
            for (int b = 0; b < 256; b++) {
                const Rgb c = {float(r), float(g), float(b)};
                ASSERT_EQ(byteLuminance(c), luminance(c)) << r << ' ' << g << ' ' << b;
            }
}

TEST(Arithmetic, CurvesThroughTheMiddle)
{
    for (float exponent : {0.5f, 1.0f, 2.8f}) {
        EXPECT_EQ(sCurve(0.0f, exponent), 0.0f);
        EXPECT_EQ(sCurve(0.5f, exponent), 0.5f);
        EXPECT_EQ(sCurve(1.0f, exponent), 1.0f);
    }
    EXPECT_EQ(sCurve(0.25f, 2.0f), 0.125f);
    EXPECT_EQ(sCurve(0.75f, 2.0f), 0.875f);
}
