// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image/CharImage.h"
#include "image/FilterNumber.h"
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

#include <array>
#include <functional>
#include <gtest/gtest.h>

using ByteColour = std::array<int, 3>;

/// Holds a look to its literal twin on every sample picture, fixed, varied by several seeds, and with random
/// numbers that are all the same: the least, the most, and exponents that are too alike.
void expectLookMatchesTwin(int filter, void (*twin)(Picture&));

/// A line of 400 pixels of which only every tenth is sampled by the levels: half of those are `dark`, half `bright`.
/// All the others are free for what a test asks about.
Picture sampledPicture(ByteColour dark, ByteColour bright);

/// What a look makes of `colour` in a picture whose sampled pixels are black and white, when the look ends with a
/// levels step: `expected` is the colour before that step, `blackBecomes` and `whiteBecomes` those of the sampled ones,
/// and `levels` the step.
void expectBeforeLevels(int filter, ByteColour colour, ByteColour expected, ByteColour blackBecomes,
    ByteColour whiteBecomes, const std::function<void(Picture&)>& levels);

/// What a look that begins with the levels step makes of a pixel that is `colour` after it. `levels` is the step on the
/// engine; the sampled greys are chosen so that `colour` can come out of it.
ByteColour afterLevels(int filter, ByteColour colour, const std::function<void(lumora::CharImage&)>& levels);

/// The picture's one pixel under a look without a levels step.
ByteColour underLook(int filter, ByteColour colour);

/// 100 random values that are all `value`, for varied().
std::array<float, 100> allRandom(float value);
