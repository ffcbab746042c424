// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/GrowString.h"

#include <gtest/gtest.h>
#include <string>

/// The characters of a string; fails the running test unless exactly one zero byte ends them.
inline std::string textOf(const lumora::GrowString& s)
{
    const std::string text = s.cString();
    EXPECT_EQ(s.numThings, int(text.size()) + 1);
    EXPECT_LE(s.numThings, s.maxThings);
    EXPECT_EQ(s.length(), int(text.size()));
    return text;
}
