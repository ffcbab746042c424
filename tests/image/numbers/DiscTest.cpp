// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/numbers/Disc.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace lumora;

TEST(Disc, ExactDistancesAreRootsInDoubleRounded)
{
    // Those of 4096 pixels and less are found in single precision.
    for (int down = 0; down <= 65535; down = down * 5 / 4 + 1)
        for (int first = 0; first <= 65528; first = first < 6000 ? first + 8 : first * 5 / 4) {
            int across[8], downs[8];
            for (int i = 0; i < 8; i++) {
                across[i] = first + i;
                downs[i] = down;
            }
            float distances[8];
            exactDistances(distances, across, downs, 8);
            for (int i = 0; i < 8; i++)
                ASSERT_EQ(distances[i], float(std::sqrt(double(across[i]) * across[i] + double(down) * down)))
                    << across[i] << ", " << down;
        }
}
