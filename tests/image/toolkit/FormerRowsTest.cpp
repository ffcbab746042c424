#include "image/toolkit/FormerRows.h"
#include "tests/reference/Picture.h"

#include <gtest/gtest.h>

TEST(FormerRows, StayAsTheyWereForAsLongAsTheyAreKept)
{
    const Picture before = randomPicture(7, 12, 5);
    const auto image = imageOf(before);
    FormerRows rows(*image, 3);
    const auto expectAsBefore = [&](int y) { EXPECT_EQ(std::memcmp(rows.table()[y], before.at(0, y), 7 * 4), 0) << y; };
    for (int y = 11; y >= 0; y--) {
        rows.keep(y);
        std::memset(image->data + y * 7 * 4, 0, 7 * 4);
        for (int kept = y; kept < y + 3 && kept < 12; kept++)
            expectAsBefore(kept);
        for (int untouched = 0; untouched < y; untouched++)
            expectAsBefore(untouched);
    }
}

TEST(FormerRows, CanBeReadOnePixelAndOneRowTooFar)
{
    // For the address sanitizer: no value that is read here has a meaning.
    const auto image = imageOf(randomPicture(3, 2, 6));
    FormerRows rows(*image, 1);
    unsigned sum = 0;
    const auto readAll = [&] {
        for (int y = 0; y <= 2; y++)
            for (int byte = 0; byte < 4 * 4; byte++)
                sum += rows.table()[y][byte];
    };
    readAll();
    rows.keep(1);
    readAll();
    EXPECT_GT(sum, 0u);
}
