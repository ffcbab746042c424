// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "image/FilterNumber.h"
#include "tests/reference/Framing.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdint>
#include <gtest/gtest.h>

using namespace lumora;

namespace {

const unsigned char* at(const CharImage& image, int x, int y)
{
    return image.data + (std::size_t(y) * image.width + x) * 4;
}

void expectColour(const CharImage& image, int x, int y, int level)
{
    for (int k = 0; k < 3; k++)
        EXPECT_EQ(at(image, x, y)[k], level) << "at " << x << ", " << y;
}

} // namespace

TEST(Border, AddsNothingButANewBlockWithoutMargins)
{
    const Picture picture = randomPicture(7, 5, 1);
    const auto image = imageOf(picture);
    const auto before = reinterpret_cast<std::uintptr_t>(image->data);
    image->addBorder(0, 0, 0, 0, 255, 255, 255);
    EXPECT_NE(reinterpret_cast<std::uintptr_t>(image->data), before);
    EXPECT_EQ(image->bytesPerPixel, 4);
    expectSame(*image, picture, "no margins", false);
}

TEST(Border, GrowsTheCanvas)
{
    const auto image = imageOf(flatPicture(4, 3, 9, 9, 9));
    image->addBorder(1, 2, 3, 4, 10.9f, 20.0f, 300.0f);
    EXPECT_EQ(image->width, 7);
    EXPECT_EQ(image->height, 10);
    EXPECT_EQ(at(*image, 0, 5)[0], 10);
    EXPECT_EQ(at(*image, 6, 0)[1], 20);
    EXPECT_EQ(at(*image, 3, 9)[2], 44);
    expectColour(*image, 1, 3, 9);
    expectColour(*image, 4, 5, 9);
}

TEST(Border, MakesAPictureWhereThereWasNone)
{
    CharImage image;
    image.addBorder(2, 3, 1, 2, 10, 20, 30);
    EXPECT_TRUE(image.width == 5 && image.height == 3 && image.bytesPerPixel == 4);
    for (int i = 0; i < 15; i++)
        EXPECT_TRUE(image.data[4 * i] == 10 && image.data[4 * i + 1] == 20 && image.data[4 * i + 2] == 30);
}

TEST(Border, CropsByNegativeMargins)
{
    const Picture picture = randomPicture(7, 6, 2);
    const auto image = imageOf(picture);
    image->addBorder(-2, -1, -3, 1, 9, 9, 9);
    ASSERT_TRUE(image->width == 4 && image->height == 4);
    for (int x = 0; x < 4; x++) {
        for (int y = 0; y < 3; y++)
            for (int k = 0; k < 3; k++)
                EXPECT_EQ(at(*image, x, y)[k], picture.at(x + 2, y + 3)[k]);
        expectColour(*image, x, 3, 9);
    }
}

TEST(Border, CropsAndGrowsLikeItsTwin)
{
    // Also crops of more than the picture has beside margins that make up for it: all of it is the margin's colour.
    const int margins[] = {INT_MIN, -13, -12, -1, 0, 2, 40};
    const Picture picture = randomPicture(12, 5, 3);
    for (int left : margins)
        for (int right : margins)
            for (int top : {-9, -5, -1, 0, 3})
                for (int bottom : {INT_MIN, -4, 1}) {
                    Picture expected = picture;
                    reference::addBorder(expected, left, right, top, bottom, 1, 2, 3);
                    const auto image = imageOf(picture);
                    image->addBorder(left, right, top, bottom, 1, 2, 3);
                    expectSame(*image, expected,
                        "margins " + std::to_string(left) + " " + std::to_string(right) + " " + std::to_string(top)
                            + " " + std::to_string(bottom),
                        false);
                }
}

TEST(Border, LeavesNoPixelsWhereMarginsCropAll)
{
    const std::array<int, 4> crops[] = {{-4, 0, 0, 0}, {0, -9, 0, 0}, {0, 0, -1, -2}, {0, 0, 0, INT_MIN},
        {-3, -3, -3, -3}, {INT_MIN, INT_MIN, INT_MIN, INT_MIN}};
    for (const auto& [left, right, top, bottom] : crops) {
        const auto image = imageOf(randomPicture(4, 3, 1));
        image->addBorder(left, right, top, bottom, 10, 20, 30);
        EXPECT_EQ(image->pixelCount(), 0u);
        EXPECT_TRUE(image->width >= 0 && image->height >= 0);
        image->applyFilterBorder(Filter::rounded, 100);
        image->addBorder(1 - image->width, 0, 1 - image->height, 0, 10, 20, 30);
        EXPECT_TRUE(image->width == 1 && image->height == 1 && at(*image, 0, 0)[1] == 20);
    }
}

TEST(Border, RefusesSidesBeyondAnInt)
{
    const Picture picture = randomPicture(4, 3, 1);
    const auto image = imageOf(picture);
    EXPECT_THROW(image->addBorder(INT_MAX, 0, 0, 0, 1, 2, 3), std::bad_alloc);
    EXPECT_THROW(image->addBorder(0, 0, 0, INT_MAX, 1, 2, 3), std::bad_alloc);
    expectSame(*image, picture, "refused");
}

TEST(Border, DrawsCinemaBarsWithoutAnOutline)
{
    const auto image = imageOf(flatPicture(20, 400, 90, 90, 90));
    image->applyFilterBorder(Filter::cinema, 1000);
    expectColour(*image, 0, 124, 0);
    expectColour(*image, 0, 125, 90);
    expectColour(*image, 19, 274, 90);
    expectColour(*image, 19, 275, 0);
}

TEST(Border, OutlinesThinMargins)
{
    const auto image = imageOf(flatPicture(100, 80, 90, 90, 90));
    image->applyFilterBorder(Filter::thin, 100); // margins of one pixel, which the outline covers
    expectColour(*image, 0, 0, 200);
    expectColour(*image, 99, 40, 200);
    expectColour(*image, 50, 79, 200);
    expectColour(*image, 1, 1, 90);
    const auto wider = imageOf(flatPicture(100, 80, 90, 90, 90));
    wider->applyFilterBorder(Filter::thin, 300);
    expectColour(*wider, 0, 40, 200);
    expectColour(*wider, 1, 40, 255);
    expectColour(*wider, 3, 40, 255);
    expectColour(*wider, 4, 40, 90);
}

TEST(Border, FramesInstantInOffWhite)
{
    const auto image = imageOf(flatPicture(100, 130, 90, 90, 90));
    image->applyFilterBorder(Filter::instant, 100);
    expectColour(*image, 0, 0, 245);
    expectColour(*image, 50, 111, 245);
    expectColour(*image, 50, 110, 90);
}

TEST(Border, DrawsNothingForNumbersWithoutOne)
{
    const Picture picture = randomPicture(30, 20, 8);
    for (int border : std::initializer_list<int>{
             Filter::original, Filter::colorcross, Filter::customA, Filter::customB, Filter::customC, -1, 99}) {
        const auto image = imageOf(picture);
        image->applyFilterBorder(border, 30);
        expectSame(*image, picture, std::to_string(border));
    }
}

TEST(Border, FollowsTheLastEntryOfACustomList)
{
    const std::pair<int, void (*)(const GrowArray<int>&)> lists[] = {{Filter::customA, CharImage::setCustomFilterA},
        {Filter::customB, CharImage::setCustomFilterB}, {Filter::customC, CharImage::setCustomFilterC}};
    for (const auto& [number, setList] : lists) {
        GrowArray<int> list;
        list.add(Filter::mono);
        list.add(Filter::cinema);
        setList(list);
        const auto image = imageOf(flatPicture(20, 40, 90, 90, 90));
        image->applyFilterBorder(number, 40);
        expectColour(*image, 10, 4, 0);
        expectColour(*image, 0, 20, 90);
        list.clear();
        setList(list);
    }
}

TEST(Border, MasksEverythingOutsideTheFisheyesCircle)
{
    const auto image = imageOf(flatPicture(300, 200, 250, 250, 250));
    image->applyFilterBorder(Filter::fisheye, 300);
    EXPECT_EQ(image->width, 300);
    for (int y = 0; y < 200; y++)
        for (int x = 0; x < 300; x++) {
            const int dx = x - 150, dy = y - 100;
            if (dx * dx + dy * dy >= 100 * 100) {
                expectColour(*image, x, y, 0);
            }
        }
    EXPECT_GT(at(*image, 150, 100)[0], 240);
}

TEST(Border, RoundsTheInnerCornersOnly)
{
    const Picture picture = flatPicture(200, 150, 40, 40, 40);
    const auto image = imageOf(picture);
    const unsigned char white[3] = {255, 255, 255};
    image->fillRoundedBorder(10, 20, 5, 15, 30, white);
    expectColour(*image, 10, 5, 255);
    expectColour(*image, 179, 134, 255);
    expectColour(*image, 39, 34, 40); // the circle's centre
    expectColour(*image, 40, 5, 40); // beyond the corner square
    expectColour(*image, 9, 5, 40);
}

TEST(Border, StaysInTheCornerSquaresOfANarrowPicture)
{
    const unsigned char white[3] = {255, 255, 255};
    const Picture picture = randomPicture(30, 100, 3);
    Picture expected = picture;
    const auto image = imageOf(picture);
    image->fillRoundedBorder(2, 2, 2, 2, 20, white);
    reference::fillRoundedBorder(expected, 2, 2, 2, 2, 20, white);
    expectSame(*image, expected, "narrow");
    for (int y = 0; y < 100; y++)
        for (int x = 0; x < 30; x++)
            if (x < 2 || x >= 28 || y < 2 || y >= 98 || (y >= 22 && y < 78)) {
                EXPECT_EQ(at(*image, x, y)[0], picture.at(x, y)[0]) << "outside the squares at " << x << ", " << y;
            }
    expectColour(*image, 2, 2, 255);
    expectColour(*image, 27, 97, 255);
}

TEST(Border, TakesMarginsAndRadiiOfAnySize)
{
    const unsigned char colour[3] = {250, 10, 77};
    const int sizes[] = {INT_MIN, INT_MIN + 8, 3, INT_MAX};
    const Picture picture = randomPicture(12, 9, 3);
    for (int left : sizes)
        for (int right : sizes)
            for (int top : sizes)
                for (int bottom : sizes) {
                    Picture expected = picture;
                    const auto image = imageOf(picture);
                    reference::fillBorder(expected, left, right, top, bottom, colour);
                    image->fillBorder(left, right, top, bottom, colour);
                    for (int radius : {INT_MIN, -1, 5, INT_MAX}) {
                        reference::fillRoundedBorder(expected, left, right, top, bottom, radius, colour);
                        image->fillRoundedBorder(left, right, top, bottom, radius, colour);
                    }
                    expectSame(*image, expected,
                        "margins " + std::to_string(left) + " " + std::to_string(right) + " " + std::to_string(top)
                            + " " + std::to_string(bottom));
                }
}

TEST(Border, MatchesItsTwin)
{
    const unsigned char colour[3] = {250, 10, 77};
    for (const NamedPicture& sample : samplePictures()) {
        Picture added = sample.picture;
        reference::addBorder(added, 3, 0, 5, 2, 12.7f, 300.0f, -1.0f);
        const auto grown = imageOf(sample.picture);
        grown->addBorder(3, 0, 5, 2, 12.7f, 300.0f, -1.0f);
        expectSame(*grown, added, sample.name + ", added", false);

        Picture filled = sample.picture;
        reference::fillBorder(filled, 2, 40, 1, 3, colour);
        const auto painted = imageOf(sample.picture);
        painted->fillBorder(2, 40, 1, 3, colour);
        expectSame(*painted, filled, sample.name + ", filled");

        for (int radius : {0, 1, 7, 60, 150}) {
            Picture rounded = sample.picture;
            reference::fillRoundedBorder(rounded, 3, 1, 2, 4, radius, colour);
            const auto image = imageOf(sample.picture);
            image->fillRoundedBorder(3, 1, 2, 4, radius, colour);
            expectSame(*image, rounded, sample.name + ", radius " + std::to_string(radius));
        }
        for (int border = 0; border < Filter::end; border++) {
            float margins[4];
            CharImage::getBorderReqsForFilter(border, &margins[0], &margins[1], &margins[2], &margins[3]);
            // A source three times as large makes thick margins and, from 1000 pixels on, harder corners.
            for (int times : {1, 3}) {
                const int maxSide = times * std::max(sample.picture.width, sample.picture.height);
                Picture expected = sample.picture;
                reference::applyFilterBorder(expected, border, maxSide, margins);
                const auto image = imageOf(sample.picture);
                image->applyFilterBorder(border, maxSide);
                expectSame(*image, expected, sample.name + ", border " + std::to_string(border));
            }
        }
    }
}
