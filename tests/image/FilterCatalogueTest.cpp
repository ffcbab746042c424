// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "image/FilterNumber.h"
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <iterator>
#include <vector>

using namespace lumora;

namespace {

const char* const names[] = {"Colorcross", "Helga", "Lolo", "Magazine", "Instant", "Mono", "1962", "1974", "Cinema",
    "Infrared", "Fisheye", "Custom A", "Custom B", "Custom C", "Original", "Filter", "Test", "Lightleak", "Delicious",
    "Arctic", "Blowout", "Square", "Widescreen", "6x4", "7x6", "4x3", "Thin", "Medium", "Thick", "Rounded"};

void fill(GrowArray<int>& list, std::initializer_list<int> filters)
{
    list.clear();
    for (int filter : filters)
        list.add(filter);
}

class CustomLists : public testing::Test {
protected:
    void TearDown() override
    {
        const GrowArray<int> none;
        CharImage::setCustomFilterA(none);
        CharImage::setCustomFilterB(none);
        CharImage::setCustomFilterC(none);
    }
};

} // namespace

TEST(FilterCatalogue, KnowsEveryNameBothWays)
{
    EXPECT_EQ(CharImage::getFilterCount(), 15);
    for (int i = 0; i < 30; i++) {
        EXPECT_STREQ(CharImage::getFilterName(i), names[i]);
        EXPECT_EQ(CharImage::getFilterFromName(names[i]), i);
    }
}

TEST(FilterCatalogue, NamesEveryNumberOnce)
{
    for (int filter = 0; filter < Filter::end; filter++) {
        EXPECT_STRNE(CharImage::getFilterName(filter), "");
        EXPECT_EQ(CharImage::getFilterFromName(CharImage::getFilterName(filter)), filter);
    }
}

TEST(FilterCatalogue, ListsTheLooksInTheirOrder)
{
    const int first[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 17, 18, 19, 20}; // numbers that are stored stay the same
    const GrowArray<int> looks = CharImage::getLooks();
    ASSERT_GE(looks.numThings, int(std::size(first)));
    for (int i = 0; i < looks.numThings; i++) {
        if (i < int(std::size(first)))
            EXPECT_EQ(looks.theArray[i], first[i]);
        else
            EXPECT_GT(looks.theArray[i], Filter::rounded);
    }
}

TEST(FilterCatalogue, HoldsEveryLookToItsTwin)
{
    const GrowArray<int> looks = CharImage::getLooks();
    for (int i = 0; i < looks.numThings; i++) {
        const int look = looks.theArray[i];
        const reference::LookTwin twin = reference::twinOf(look);
        ASSERT_NE(twin, nullptr) << CharImage::getFilterName(look);
        Picture expected = randomPicture(40, 30, 6);
        const auto image = imageOf(expected);
        CharImage::useRandom = 0;
        std::srand(1);
        twin(expected);
        std::srand(1);
        image->applyFilter(look);
        expectSame(*image, expected, CharImage::getFilterName(look));
    }
}

TEST(FilterCatalogue, FallsBackOnUnknownNamesAndNumbers)
{
    EXPECT_EQ(CharImage::getFilterFromName("Cinema"), Filter::cinema);
    EXPECT_EQ(CharImage::getFilterFromName("cinema"), Filter::original);
    EXPECT_EQ(CharImage::getFilterFromName("Filter"), Filter::unnamed);
    EXPECT_EQ(CharImage::getFilterFromName(""), Filter::original);
    for (int filter : std::initializer_list<int>{Filter::unnamed, Filter::end, -1, 1000})
        EXPECT_STREQ(CharImage::getFilterName(filter), "Filter");
}

TEST(FilterCatalogue, OnlyPrintsForNumbersWithoutAnEffect)
{
    const Picture picture = randomPicture(9, 7, 4);
    for (int filter : std::initializer_list<int>{Filter::original, Filter::unnamed, Filter::square, Filter::widescreen,
             Filter::crop6x4, Filter::crop7x6, Filter::crop4x3, Filter::thin, Filter::medium, Filter::thick,
             Filter::rounded, -5, 99}) {
        const auto image = imageOf(picture);
        testing::internal::CaptureStdout();
        image->applyFilter(filter);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "applying original filter\n") << filter;
        expectSame(*image, picture, std::to_string(filter));
    }
}

TEST(FilterCatalogue, PrintsNothingWherePrintingIsOff)
{
    const auto image = imageOf(randomPicture(40, 30, 6));
    testing::internal::CaptureStdout();
    CharImage::prints = false;
    for (int filter = -1; filter <= Filter::end; filter++)
        image->applyFilter(filter);
    CharImage::smoothCharMap(image->data, 40, 30, 3, 1.0f, 0.0f);
    CharImage::prints = true;
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(FilterCatalogue, AppliesEveryLookToPicturesWithoutPixels)
{
    const GrowArray<int> looks = CharImage::getLooks();
    for (int i = 0; i < looks.numThings; i++)
        for (const auto& [width, height] : {std::pair(0, 0), {0, 5}, {5, 0}}) {
            CharImage image;
            image.width = width;
            image.height = height;
            testing::internal::CaptureStdout();
            image.applyFilter(looks.theArray[i]);
            testing::internal::GetCapturedStdout();
            EXPECT_EQ(image.data, nullptr);
            EXPECT_TRUE(image.width == width && image.height == height);
        }
}

TEST_F(CustomLists, DoNothingWhenEmpty)
{
    const Picture picture = randomPicture(9, 7, 4);
    for (int filter : {Filter::customA, Filter::customB, Filter::customC}) {
        const auto image = imageOf(picture);
        testing::internal::CaptureStdout();
        image->applyFilter(filter);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
        expectSame(*image, picture, std::to_string(filter));
    }
}

TEST_F(CustomLists, LeaveOutListsAndApplyTheRestInOrder)
{
    CharImage::useRandom = 0;
    GrowArray<int> filters;
    fill(filters, {Filter::mono, Filter::customA, Filter::lolo, Filter::customC, Filter::mono});
    CharImage::setCustomFilterA(filters);
    ASSERT_EQ(CharImage::customFilterFiltersA.numThings, 3);
    EXPECT_EQ(CharImage::customFilterFiltersA.maxThings, 4);
    const int kept[] = {Filter::mono, Filter::lolo, Filter::mono};
    for (int i = 0; i < 3; i++)
        EXPECT_EQ(CharImage::customFilterFiltersA.theArray[i], kept[i]);

    Picture picture = randomPicture(40, 30, 6);
    const auto image = imageOf(picture);
    image->applyFilter(Filter::customA);
    reference::mono(picture);
    reference::lolo(picture);
    reference::mono(picture);
    expectSame(*image, picture, "Mono, Lolo, Mono");
}

TEST_F(CustomLists, ApplyNumbersWithoutAnEffectToo)
{
    GrowArray<int> filters;
    fill(filters, {Filter::original, Filter::widescreen, 99});
    CharImage::setCustomFilterC(filters);
    const Picture picture = randomPicture(9, 7, 4);
    const auto image = imageOf(picture);
    testing::internal::CaptureStdout();
    image->applyFilter(Filter::customC);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
        "applying original filter\napplying original filter\napplying original filter\n");
    expectSame(*image, picture, "nothing but lines");
}

TEST_F(CustomLists, StandEachForItself)
{
    GrowArray<int> filters;
    fill(filters, {Filter::customB, Filter::magazine});
    CharImage::setCustomFilterB(filters);
    fill(filters, {Filter::cinema});
    CharImage::setCustomFilterC(filters);
    EXPECT_EQ(CharImage::customFilterFiltersA.numThings, 0);
    EXPECT_EQ(CharImage::customFilterFiltersB.theArray[0], Filter::magazine);
    EXPECT_EQ(CharImage::customFilterFiltersB.numThings, 1);
    EXPECT_EQ(CharImage::customFilterFiltersC.theArray[0], Filter::cinema);
    CharImage::useRandom = 0;
    for (int filter : {Filter::customB, Filter::customC}) {
        Picture expected = randomPicture(40, 30, 6);
        const auto image = imageOf(expected);
        image->applyFilter(filter);
        filter == Filter::customB ? reference::magazine(expected) : reference::cinema(expected);
        expectSame(*image, expected, std::to_string(filter));
    }
    fill(filters, {Filter::instant});
    CharImage::setCustomFilterB(filters); // replaces
    EXPECT_EQ(CharImage::customFilterFiltersB.numThings, 1);
    EXPECT_EQ(CharImage::customFilterFiltersB.maxThings, 2);
    EXPECT_EQ(CharImage::customFilterFiltersB.theArray[0], Filter::instant);
    EXPECT_EQ(CharImage::customFilters(Filter::original), nullptr);
}

TEST(TestPattern, MatchesItsTwin)
{
    for (const NamedPicture& sample : samplePictures()) {
        Picture expected = sample.picture;
        reference::testPattern(expected);
        const auto image = imageOf(sample.picture);
        testing::internal::CaptureStdout();
        image->applyFilter(Filter::testPattern);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
        expectSame(*image, expected, sample.name);
    }
}

TEST(TestPattern, StartsAColumnAtTheBottom)
{
    const auto image = imageOf(flatPicture(1, 6, 9, 9, 9));
    image->applyFilter(Filter::testPattern);
    for (int y = 0; y < 6; y++)
        EXPECT_EQ(image->data[4 * y], y == 5 ? 0 : 255);
}

TEST(TestPattern, PutsOneDotInEachColumn)
{
    // Heights of 0, 1.41, 2 and 2.58 of 4 pixels.
    const int rows[] = {3, 2, 1, 1};
    const auto image = imageOf(randomPicture(4, 4, 5));
    image->applyFilter(Filter::testPattern);
    for (int y = 0; y < 4; y++)
        for (int x = 0; x < 4; x++)
            for (int k = 0; k < 3; k++)
                EXPECT_EQ(image->data[4 * (4 * y + x) + k], rows[x] == y ? 0 : 255);
}
