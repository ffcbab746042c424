// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/passes/DelayedRows.h"
#include "tests/reference/Picture.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace lumora;

TEST(DelayedRows, ReplaceTheFormerOnesWhenOthersWereBegun)
{
    constexpr int width = blockPixels + 7, height = 12, delay = 3;
    const Picture before = randomPicture(width, height, 5);
    const auto image = imageOf(before);
    DelayedRows rows(*image, delay);
    const auto expectRow = [&](int y, bool isNew) {
        for (int x = 0; x < width; x++) {
            const unsigned char* pixel = image->data + (y * width + x) * 4;
            for (int k = 0; k < 3; k++)
                ASSERT_EQ(pixel[k], isNew ? 10 + y : before.at(x, y)[k]) << x << ", " << y;
            ASSERT_EQ(pixel[3], before.at(x, y)[3]) << x << ", " << y;
        }
    };
    for (int y = height - 1; y >= 0; y--) {
        std::fill_n(rows.begin(y), 2 * blockPixels * 4, static_cast<unsigned char>(10 + y));
        for (int other = 0; other < height; other++)
            expectRow(other, other >= y + delay);
    }
    rows.finish();
    for (int y = 0; y < height; y++)
        expectRow(y, true);
}
