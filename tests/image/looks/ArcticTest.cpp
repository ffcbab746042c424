// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/image/looks/LookProperties.h"

using namespace lumora;

namespace {

void arcticLevels(Picture& picture)
{
    reference::fillHistogram(picture, 0.001f, 0.01f, 0.0f, 255.0f, true, false);
}

// White may lose one in the saturation step, which adds two rounded products.
constexpr ByteColour white = {254, 254, 254};

} // namespace

TEST(Arctic, MatchesItsTwin)
{
    expectLookMatchesTwin(Filter::arctic, reference::arctic);
}

TEST(Arctic, KeepsBlackAndWhite)
{
    expectBeforeLevels(Filter::arctic, {0, 0, 0}, {0, 0, 0}, {0, 0, 0}, white, arcticLevels);
    expectBeforeLevels(Filter::arctic, {255, 255, 255}, white, {0, 0, 0}, white, arcticLevels);
}

TEST(Arctic, GivesThePivotItsColdCastAlone)
{
    expectBeforeLevels(Filter::arctic, {135, 135, 135}, {92, 92, 118}, {0, 0, 0}, white, arcticLevels);
}

TEST(Arctic, DarkensAMidGreyIntoBlue)
{
    // k = 1 - (35/135)^1.1 = 0.773; r1 = g1 = 68.80, b1 = 86.22; saturated: 53.0 and 67.8.
    expectBeforeLevels(Filter::arctic, {100, 100, 100}, {53, 53, 67}, {0, 0, 0}, white, arcticLevels);
}

TEST(Arctic, MatchesItsTwinInAMillionColours)
{
    CharImage::useRandom = 0;
    Picture twin = randomPicture(1000, 1000, 3);
    const auto image = imageOf(twin);
    reference::arctic(twin);
    image->applyFilter(Filter::arctic);
    expectSame(*image, twin, "a million colours");
}
