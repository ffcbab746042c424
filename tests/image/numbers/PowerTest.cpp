// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/numbers/Power.h"
#include "image/numbers/Plane.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

using namespace lumora;

namespace {

/// Holds raise() to std::pow on floats from `first` on, `step` floats apart, up to `last`.
void expectPowers(float exponent, float first, float last, std::uint32_t step)
{
    std::uint32_t bits = std::bit_cast<std::uint32_t>(first);
    while (bits < std::bit_cast<std::uint32_t>(last)) {
        Plane values;
        for (float& value : values.at) {
            value = std::bit_cast<float>(bits);
            bits += step;
        }
        const Plane bases = values;
        raise(values.at, blockPixels, exponent);
        if (exponent == 1.5f) {
            for (int i = 0; i < blockPixels; i++)
                ASSERT_EQ(sesquiPower(bases.at[i]), values.at[i]) << bases.at[i];
        }
        for (int i = 0; i < blockPixels; i++)
            ASSERT_EQ(std::bit_cast<std::uint32_t>(values.at[i]),
                std::bit_cast<std::uint32_t>(std::pow(bases.at[i], exponent)))
                << bases.at[i] << " to the power of " << exponent;
    }
}

} // namespace

TEST(Power, IsThatOfTheLibrary)
{
    // The exponents of the looks, densely where their bases are.
    for (float exponent : {1.2f, 1.5f, 3.0f, 5.0f})
        expectPowers(exponent, 0x1p-9f, 4.0f, 13);
    for (float exponent : {0.3f, 0.77f, 1.1f, 2.0f, 4.3f, 7.9f, -1.5f})
        expectPowers(exponent, 0x1p-12f, 300.0f, 211);
    for (float exponent : {1.5f, 11.0f, -20.0f, 0.0f})
        expectPowers(exponent, 1e-38f, 1e38f, 100003);
}

TEST(Power, LeavesOddBasesToTheLibrary)
{
    const float infinity = std::numeric_limits<float>::infinity();
    for (float exponent : {1.5f, 2.0f, -3.0f, 0.0f, 5.0f}) {
        Plane values = {};
        const float odd[] = {0.0f, -0.0f, -1.0f, -2.5f, infinity, -infinity, 1e-40f, 3e38f, 1.0f};
        std::copy(std::begin(odd), std::end(odd), values.at);
        raise(values.at, blockPixels, exponent);
        for (int i = 0; i < int(std::size(odd)); i++) {
            const float expected = std::pow(odd[i], exponent);
            EXPECT_EQ(std::isnan(values.at[i]), std::isnan(expected)) << odd[i];
            if (!std::isnan(expected)) {
                EXPECT_EQ(values.at[i], expected) << odd[i];
            }
        }
    }
    Plane values = {{std::numeric_limits<float>::quiet_NaN()}};
    raise(values.at, blockPixels, 1.5f);
    EXPECT_TRUE(std::isnan(values.at[0]));
}

TEST(Power, RaisesAsManyAsItIsToldTo)
{
    for (const float exponent : {1.5f, 3.0f, 5.0f, 1.2f}) {
        Plane values;
        std::fill_n(values.at, blockPixels, 0.7f);
        raise(values.at, 40, exponent);
        for (int i = 0; i < blockPixels; i++)
            EXPECT_EQ(values.at[i], i < 40 ? std::pow(0.7f, exponent) : 0.7f) << i;
    }
}

TEST(Power, CurvesABlockAsItCurvesOneValue)
{
    for (float exponent : {0.8f, 1.0f, 2.5f, 5.0f}) {
        Plane values;
        for (int i = 0; i < blockPixels; i++)
            values.at[i] = float(i) / 200.0f;
        const Plane before = values;
        applySCurve(values.at, blockPixels, exponent);
        for (int i = 0; i < blockPixels; i++)
            if (before.at[i] <= 1.0f) {
                EXPECT_EQ(values.at[i], sCurve(before.at[i], exponent)) << before.at[i];
            }
    }
}
