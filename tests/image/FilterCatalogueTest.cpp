#include "image/CharImage.h"
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

#include <gtest/gtest.h>
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

TEST(FilterCatalogue, ListsTheFifteenLooks)
{
    const GrowArray<int> looks = CharImage::getLooks();
    const std::vector<int> expected = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 17, 18, 19, 20};
    EXPECT_EQ(std::vector<int>(looks.theArray, looks.theArray + looks.numThings), expected);
}

TEST(FilterCatalogue, FallsBackOnUnknownNamesAndNumbers)
{
    EXPECT_EQ(CharImage::getFilterFromName("Cinema"), 8);
    EXPECT_EQ(CharImage::getFilterFromName("cinema"), 14);
    EXPECT_EQ(CharImage::getFilterFromName("Filter"), 15);
    EXPECT_EQ(CharImage::getFilterFromName(""), 14);
    for (int filter : {15, 30, -1, 1000})
        EXPECT_STREQ(CharImage::getFilterName(filter), "Filter");
}

TEST(FilterCatalogue, OnlyPrintsForNumbersWithoutAnEffect)
{
    const Picture picture = randomPicture(9, 7, 4);
    for (int filter : {14, 15, 21, 22, 23, 24, 25, 26, 27, 28, 29, -5, 99}) {
        const auto image = imageOf(picture);
        testing::internal::CaptureStdout();
        image->applyFilter(filter);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "applying original filter\n") << filter;
        expectSame(*image, picture, std::to_string(filter));
    }
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
    for (int filter : {11, 12, 13}) {
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
    fill(filters, {5, 11, 2, 13, 5});
    CharImage::setCustomFilterA(filters);
    ASSERT_EQ(CharImage::customFilterFiltersA.numThings, 3);
    EXPECT_EQ(CharImage::customFilterFiltersA.maxThings, 4);
    const int kept[] = {5, 2, 5};
    for (int i = 0; i < 3; i++)
        EXPECT_EQ(CharImage::customFilterFiltersA.theArray[i], kept[i]);

    Picture picture = randomPicture(40, 30, 6);
    const auto image = imageOf(picture);
    image->applyFilter(11);
    reference::mono(picture);
    reference::lolo(picture);
    reference::mono(picture);
    expectSame(*image, picture, "Mono, Lolo, Mono");
}

TEST_F(CustomLists, ApplyNumbersWithoutAnEffectToo)
{
    GrowArray<int> filters;
    fill(filters, {14, 22, 99});
    CharImage::setCustomFilterC(filters);
    const Picture picture = randomPicture(9, 7, 4);
    const auto image = imageOf(picture);
    testing::internal::CaptureStdout();
    image->applyFilter(13);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
        "applying original filter\napplying original filter\napplying original filter\n");
    expectSame(*image, picture, "nothing but lines");
}

TEST_F(CustomLists, StandEachForItself)
{
    GrowArray<int> filters;
    fill(filters, {12, 3});
    CharImage::setCustomFilterB(filters);
    fill(filters, {8});
    CharImage::setCustomFilterC(filters);
    EXPECT_EQ(CharImage::customFilterFiltersA.numThings, 0);
    EXPECT_EQ(CharImage::customFilterFiltersB.theArray[0], 3);
    EXPECT_EQ(CharImage::customFilterFiltersB.numThings, 1);
    EXPECT_EQ(CharImage::customFilterFiltersC.theArray[0], 8);
    CharImage::useRandom = 0;
    for (int filter : {12, 13}) {
        Picture expected = randomPicture(40, 30, 6);
        const auto image = imageOf(expected);
        image->applyFilter(filter);
        filter == 12 ? reference::magazine(expected) : reference::cinema(expected);
        expectSame(*image, expected, std::to_string(filter));
    }
    fill(filters, {4});
    CharImage::setCustomFilterB(filters); // replaces
    EXPECT_EQ(CharImage::customFilterFiltersB.numThings, 1);
    EXPECT_EQ(CharImage::customFilterFiltersB.maxThings, 2);
    EXPECT_EQ(CharImage::customFilterFiltersB.theArray[0], 4);
    EXPECT_EQ(CharImage::customFilters(14), nullptr);
}

TEST(TestPattern, MatchesItsTwin)
{
    for (const NamedPicture& sample : samplePictures()) {
        Picture expected = sample.picture;
        reference::testPattern(expected);
        const auto image = imageOf(sample.picture);
        testing::internal::CaptureStdout();
        image->applyFilter(16);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
        expectSame(*image, expected, sample.name);
    }
}

TEST(TestPattern, StartsAColumnAtTheBottom)
{
    const auto image = imageOf(flatPicture(1, 6, 9, 9, 9));
    image->applyFilter(16);
    for (int y = 0; y < 6; y++)
        EXPECT_EQ(image->data[4 * y], y == 5 ? 0 : 255);
}

TEST(TestPattern, PutsOneDotInEachColumn)
{
    // Heights of 0, 1.41, 2 and 2.58 of 4 pixels.
    const int rows[] = {3, 2, 1, 1};
    const auto image = imageOf(randomPicture(4, 4, 5));
    image->applyFilter(16);
    for (int y = 0; y < 4; y++)
        for (int x = 0; x < 4; x++)
            for (int k = 0; k < 3; k++)
                EXPECT_EQ(image->data[4 * (4 * y + x) + k], rows[x] == y ? 0 : 255);
}
