// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "image/FilterNumber.h"
#include "image/framing/BestFit.h"

#include <array>
#include <gtest/gtest.h>

using namespace lumora;

namespace {

std::array<float, 4> margins(int filter)
{
    std::array<float, 4> m = {9, 9, 9, 9};
    CharImage::getBorderReqsForFilter(filter, &m[0], &m[1], &m[2], &m[3]);
    return m;
}

std::array<float, 4> even(float fraction)
{
    return {fraction, fraction, fraction, fraction};
}

std::array<float, 2> fit(float width, float height, float boxWidth, float boxHeight)
{
    std::array<float, 2> out;
    findBestFit(width, height, boxWidth, boxHeight, &out[0], &out[1]);
    return out;
}

GrowArray<int> listOf(std::initializer_list<int> filters)
{
    GrowArray<int> list;
    for (int filter : filters)
        list.add(filter);
    return list;
}

} // namespace

TEST(CropAspect, TurnsWithThePicture)
{
    for (int filter : {Filter::look1962, Filter::look1974, Filter::crop7x6}) {
        EXPECT_EQ(CharImage::getFilterAspect(filter, 1.0f), 1.1666666f);
        EXPECT_EQ(CharImage::getFilterAspect(filter, 0.999f), 0.85714287f);
    }
    for (int filter : {Filter::magazine, Filter::crop6x4}) {
        EXPECT_EQ(CharImage::getFilterAspect(filter, 2.0f), 1.5f);
        EXPECT_EQ(CharImage::getFilterAspect(filter, 0.5f), 0.6666667f);
    }
    EXPECT_EQ(CharImage::getFilterAspect(Filter::crop4x3, 1.5f), 1.3333334f);
    EXPECT_EQ(CharImage::getFilterAspect(Filter::crop4x3, 0.5f), 0.75f);
}

TEST(CropAspect, KeepsSquaresAndWideStrips)
{
    for (float aspect : {0.5f, 2.0f}) {
        for (int filter : {Filter::square, Filter::helga, Filter::instant, Filter::lolo, Filter::fisheye})
            EXPECT_EQ(CharImage::getFilterAspect(filter, aspect), 1.0f);
        for (int filter : {Filter::cinema, Filter::widescreen})
            EXPECT_EQ(CharImage::getFilterAspect(filter, aspect), 1.7777778f);
        for (int filter : std::initializer_list<int>{Filter::original, Filter::colorcross, Filter::mono,
                 Filter::infrared, Filter::lightleak, Filter::delicious, Filter::arctic, Filter::blowout, Filter::thin,
                 Filter::unnamed, Filter::testPattern, -1, 99})
            EXPECT_EQ(CharImage::getFilterAspect(filter, aspect), -1.0f);
    }
}

TEST(CropAspect, FollowsTheLastEntryOfACustomList)
{
    const std::pair<int, void (*)(const GrowArray<int>&)> lists[] = {{Filter::customA, CharImage::setCustomFilterA},
        {Filter::customB, CharImage::setCustomFilterB}, {Filter::customC, CharImage::setCustomFilterC}};
    for (const auto& [number, setList] : lists) {
        EXPECT_EQ(CharImage::getFilterAspect(number, 1.5f), -1.0f);
        EXPECT_EQ(margins(number), even(0));
        setList(listOf({Filter::square, Filter::cinema}));
        EXPECT_EQ(CharImage::getFilterAspect(number, 0.5f), 1.7777778f);
        EXPECT_EQ(margins(number), (std::array<float, 4>{0, 0, 0.125f, 0.125f}));
        setList(listOf({Filter::cinema, Filter::crop4x3}));
        EXPECT_EQ(CharImage::getFilterAspect(number, 1.5f), 1.3333334f);
        EXPECT_EQ(margins(number), even(0));
        setList(listOf({}));
    }
}

TEST(BorderRequirements, StandInTheTable)
{
    for (int filter : {Filter::thin, Filter::magazine})
        EXPECT_EQ(margins(filter), even(0.014285714f));
    for (int filter : {Filter::medium, Filter::mono})
        EXPECT_EQ(margins(filter), even(0.025f));
    for (int filter : {Filter::thick, Filter::lolo})
        EXPECT_EQ(margins(filter), even(0.0625f));
    for (int filter : {Filter::rounded, Filter::look1974})
        EXPECT_EQ(margins(filter), even(0.022222223f));
    EXPECT_EQ(margins(Filter::instant), (std::array<float, 4>{0.04f, 0.04f, 0.04f, 0.19999999f}));
    EXPECT_EQ(double(margins(Filter::instant)[3]), 0.19999998807907104);
    EXPECT_EQ(int(3000 * margins(Filter::instant)[3]), 599);
    EXPECT_EQ(margins(Filter::cinema), (std::array<float, 4>{0, 0, 0.125f, 0.125f}));
    for (int filter :
        std::initializer_list<int>{Filter::colorcross, Filter::original, Filter::fisheye, Filter::square, -1, 99})
        EXPECT_EQ(margins(filter), even(0));
}

TEST(BestFit, TouchesTheTighterSide)
{
    EXPECT_EQ(fit(3000, 2000, 1000, 1000), (std::array<float, 2>{1000, 667}));
    EXPECT_EQ(fit(2000, 3000, 1000, 1000), (std::array<float, 2>{667, 1000}));
    EXPECT_EQ(fit(100, 100, 640, 480), (std::array<float, 2>{480, 480}));
    EXPECT_EQ(fit(4, 3, 400, 300), (std::array<float, 2>{400, 300}));
    EXPECT_EQ(fit(2, 1, 101, 200), (std::array<float, 2>{101, 51})); // half up
    EXPECT_EQ(fit(1, 2, 200, 101), (std::array<float, 2>{51, 101}));
    EXPECT_EQ(fit(3, 2, 100.5f, 200), (std::array<float, 2>{100.5f, 67})); // the touching side is not rounded
}

TEST(BestFit, TakesTheBoxsHeightWhereTheAspectsAreEqual)
{
    EXPECT_EQ(fit(4, 3, 1.5f, 1.125f), (std::array<float, 2>{2, 1.125f}));
}

TEST(BestFit, DividesAndMultipliesInSinglePrecision)
{
    EXPECT_EQ(fit(8, 5, 100, 100), (std::array<float, 2>{100, 63})); // 62.4999991 before it is a float
    EXPECT_EQ(fit(5, 6, 100, 15), (std::array<float, 2>{13, 15})); // 12.4999997
}
