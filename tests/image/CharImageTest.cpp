// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "tests/reference/Picture.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <utility>

using namespace lumora;

TEST(CharImage, IsEmptyByDefault)
{
    const CharImage image;
    EXPECT_EQ(image.width, 0);
    EXPECT_EQ(image.height, 0);
    EXPECT_EQ(image.bytesPerPixel, 0);
    EXPECT_EQ(image.data, nullptr);
    EXPECT_EQ(image.pixelCount(), 0u);
}

TEST(CharImage, HasNoPixelsWithoutBothSides)
{
    for (const auto& [width, height] : {std::pair(3, 0), std::pair(3, -2), std::pair(0, 3), std::pair(-3, -2)}) {
        CharImage image;
        image.width = width;
        image.height = height;
        EXPECT_EQ(image.pixelCount(), 0u);
    }
}

TEST(CharImage, AdoptsABlockAndRaisesItsSides)
{
    auto* block = new unsigned char[20];
    const CharImage flat(block, 0, 5);
    EXPECT_EQ(flat.width, 1);
    EXPECT_EQ(flat.height, 5);
    EXPECT_EQ(flat.bytesPerPixel, 4);
    EXPECT_EQ(flat.data, block);
    const CharImage single(new unsigned char[4], -3, -3);
    EXPECT_EQ(single.width, 1);
    EXPECT_EQ(single.height, 1);
    const CharImage narrow(new unsigned char[20], 5, 0);
    EXPECT_EQ(narrow.width, 5);
    EXPECT_EQ(narrow.height, 1);
}

TEST(CharImage, CopiesEveryByte)
{
    const Picture picture = randomPicture(5, 3, 1);
    const auto image = imageOf(picture);
    const CharImage copy(*image);
    EXPECT_NE(copy.data, image->data);
    expectSame(copy, picture, "copy");
}

TEST(CharImage, CopiesAnEmptyImageToAnEmptyBlock)
{
    const CharImage empty;
    const CharImage copy(empty);
    EXPECT_EQ(copy.width, 0);
    EXPECT_EQ(copy.height, 0);
    EXPECT_EQ(copy.bytesPerPixel, 0);
    EXPECT_NE(copy.data, nullptr);
}

TEST(CharImage, CopiesOnItsOwn)
{
    const Picture picture = randomPicture(6, 4, 3);
    const auto image = imageOf(picture);
    const CharImage copy(*image);
    std::fill_n(image->data, picture.pixels.size(), 0);
    expectSame(copy, picture, "a copy does not follow its original");
}

TEST(CharImage, ExportsOneAsFourthByte)
{
    const Picture picture = randomPicture(5, 3, 2);
    const auto image = imageOf(picture);
    unsigned char out[5 * 3 * 4];
    image->copyToRGBACharArray(out);
    for (int i = 0; i < 60; i++)
        EXPECT_EQ(out[i], i % 4 == 3 ? 1 : picture.pixels[i]);
    unsigned char untouched[4] = {9, 9, 9, 9};
    CharImage().copyToRGBACharArray(untouched);
    for (unsigned char byte : untouched)
        EXPECT_EQ(byte, 9);
}

TEST(CharImage, CopiesAndExportsPixelsOfAnySize)
{
    for (const int bytesPerPixel : {3, 5}) {
        CharImage image(new unsigned char[6 * 5], 3, 2);
        image.bytesPerPixel = bytesPerPixel;
        for (int i = 0; i < 6 * bytesPerPixel; i++)
            image.data[i] = static_cast<unsigned char>(10 + i);
        const CharImage copy(image);
        EXPECT_EQ(copy.bytesPerPixel, bytesPerPixel);
        EXPECT_TRUE(std::equal(copy.data, copy.data + 6 * bytesPerPixel, image.data));
        unsigned char out[6 * 4];
        copy.copyToRGBACharArray(out);
        for (int i = 0; i < 24; i++)
            EXPECT_EQ(out[i], i % 4 == 3 ? 1 : 10 + i / 4 * bytesPerPixel + i % 4);
    }
}

TEST(CharImage, DrawsItsRandomTableFromRand)
{
    std::srand(42);
    CharImage::renewRandomNumbers();
    float first[100];
    std::copy_n(CharImage::random, 100, first);
    std::srand(42);
    for (int i = 0; i < 100; i++) {
        const float expected = float(std::rand() % 1000000 * 1e-6);
        EXPECT_EQ(first[i], expected);
        EXPECT_GE(first[i], 0.0f);
        EXPECT_LE(first[i], 0.999999f);
    }
    std::srand(42);
    CharImage::renewRandomNumbers();
    EXPECT_TRUE(std::equal(first, first + 100, CharImage::random));
}

namespace {

// Read before anything can have refilled the table or switched the variation.
const bool tableStartsAtZero =
    std::all_of(std::begin(CharImage::random), std::end(CharImage::random), [](float v) { return v == 0.0f; });
const int variationAtStart = CharImage::useRandom;
const int entriesAtStart = CharImage::customFilterFiltersA.maxThings + CharImage::customFilterFiltersB.maxThings
    + CharImage::customFilterFiltersC.maxThings;

} // namespace

TEST(CharImage, StartsWithAnEmptyTableAndTheVariationOn)
{
    EXPECT_TRUE(tableStartsAtZero);
    EXPECT_EQ(variationAtStart, 1);
    EXPECT_EQ(entriesAtStart, 0);
}

TEST(CharImage, KeepsAScratchBlock)
{
    ASSERT_NE(CharImage::samplePixels, nullptr);
    std::fill_n(CharImage::samplePixels, 108, 1); // the sanitizer knows how long it is
    EXPECT_EQ(CharImage::samplePixels[107], 1);
}
