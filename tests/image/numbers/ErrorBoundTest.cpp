// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/numbers/ErrorBound.h"

#include <gtest/gtest.h>

using namespace lumora;

namespace {

void expectBound(ErrorBound v, double low, double high, double error)
{
    EXPECT_EQ(v.low, low);
    EXPECT_EQ(v.high, high);
    EXPECT_EQ(v.error, error);
}

} // namespace

TEST(ErrorBound, OfAChoiceHoldsForBothChoices)
{
    const ErrorBound one(-3.0, 2.0, 0.25), other(1.0, 7.0, 0.5);
    for (const auto& [yes, no] : {std::pair(one, other), std::pair(other, one)}) {
        expectBound(select(MayBe{0.0}, yes, no), -3.0, 7.0, 0.5);
        EXPECT_TRUE(std::isinf(select(MayBe{std::numeric_limits<double>::infinity()}, yes, no).error));
    }
    EXPECT_EQ((ErrorBound(1.0, 2.0) < 1.5f).error, 0.0);
    EXPECT_TRUE(std::isinf((ErrorBound(1.0, 2.0, 1e-9) < 1.5f).error));
}
