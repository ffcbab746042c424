// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/GrowString.h"
#include "image/CharImage.h"
#include "tests/TurkishLocale.h"
#include "tests/reference/Picture.h"

#include <gtest/gtest.h>

using namespace lumora;

TEST(Locale, DoesNotChangeThePrintedLines)
{
    const auto image = imageOf(randomPicture(9, 7, 4));
    unsigned char map[9] = {};
    CharImage::useRandom = 0;
    const TurkishLocale turkish;
    ASSERT_TRUE(turkish.isSet());
    testing::internal::CaptureStdout();
    image->applyCrossProcessFilter();
    CharImage::smoothCharMap(map, 3, 3, 3, 1.0f, 0.0f);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
        "powers 2.839540 2.758001 0.683486\n3 gauss kernel values\n   val 0.250000\n   val 0.500000\n   val "
        "0.250000\n");
}

TEST(Locale, DoesNotChangeNumbersAndLettersOfStrings)
{
    const TurkishLocale turkish;
    ASSERT_TRUE(turkish.isSet());
    EXPECT_EQ(GrowString("12.5 mm").toNumber(), 12.5);
    EXPECT_EQ(GrowString("12,5").toNumber(), 12.0);
    GrowString s;
    s = 0.25f;
    double number = 0;
    EXPECT_TRUE(s.toNumber(&number));
    EXPECT_EQ(number, 0.25);
    EXPECT_TRUE(GrowString("TITLE").compareNoCase("title"));
}
