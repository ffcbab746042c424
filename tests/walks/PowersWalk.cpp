// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/numbers/Plane.h"
#include "image/numbers/Power.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>

using namespace lumora;

TEST(PowersWalk, RaiseGivesWhatTheLibraryGives)
{
    // All floats from 2^-6 to 1, under the exponents of the looks. 1.5, 3 and 5 take 2^-6 to a power of 2 with a whole
    // exponent: all other floats have the same digits as these, and so have their powers.
    for (const float exponent : {1.2f, 1.5f, 3.0f, 5.0f}) {
        std::uint32_t bits = std::bit_cast<std::uint32_t>(0x1p-6f);
        while (bits <= std::bit_cast<std::uint32_t>(1.0f)) {
            Plane bases, powers;
            for (float& base : bases.at)
                base = std::bit_cast<float>(bits++);
            powers = bases;
            raise(powers.at, blockPixels, exponent);
            for (int i = 0; i < blockPixels; i++)
                ASSERT_EQ(powers.at[i], std::pow(bases.at[i], exponent)) << bases.at[i] << " to " << exponent;
            for (int i = 0; exponent == 1.5f && i < blockPixels; i++)
                ASSERT_EQ(sesquiPower(bases.at[i]), powers.at[i]) << bases.at[i];
        }
    }
}
