// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "library/lumora.h"
#include "tests/library/Block.h"

#include <climits>
#include <cmath>
#include <cstring>
#include <iterator>

using namespace lumora;

namespace {

/// The engine's number of a crop or a border by its name; null for none.
int filterNamed(const char* name)
{
    return CharImage::getFilterFromName(name ? name : "Original");
}

int filterOf(int border)
{
    return filterNamed(lumora_border_name(border));
}

int cropOf(const char* name)
{
    int crop = 0;
    while (std::strcmp(lumora_crop_name(crop), name) != 0)
        crop++;
    return crop;
}

int borderOf(const char* name)
{
    int border = 0;
    while (std::strcmp(lumora_border_name(border), name) != 0)
        border++;
    return border;
}

void expectPart(int crop, int width, int height, const lumora_rect& expected)
{
    lumora_rect part = {};
    ASSERT_EQ(lumora_crop(crop, width, height, &part), LUMORA_OK);
    EXPECT_TRUE(
        part.x == expected.x && part.y == expected.y && part.width == expected.width && part.height == expected.height)
        << crop << " of " << width << " x " << height << ": " << part.width << " x " << part.height << " at " << part.x
        << ", " << part.y;
}

} // namespace

TEST(LibraryFraming, KeepsItsNumbers)
{
    const char* const crops[] = {"Square", "Cinema", "6x4", "4x3", "7x6"};
    const char* const borders[] = {"Thin", "Medium", "Thick", "Rounded", "Instant", "Cinema", "Fisheye"};
    ASSERT_EQ(lumora_crop_count(), int(std::size(crops)));
    ASSERT_EQ(lumora_border_count(), int(std::size(borders)));
    for (int crop = 0; crop < lumora_crop_count(); crop++)
        EXPECT_STREQ(lumora_crop_name(crop), crops[crop]);
    for (int border = 0; border < lumora_border_count(); border++)
        EXPECT_STREQ(lumora_border_name(border), borders[border]);
    for (const int none : {-1, 7, INT_MAX, INT_MIN}) {
        EXPECT_EQ(lumora_crop_name(none), nullptr);
        EXPECT_EQ(lumora_border_name(none), nullptr);
    }
}

TEST(LibraryFraming, KnowsWhatBelongsToALook)
{
    const struct {
        const char *look, *crop, *border;
    } all[] = {{"Colorcross", nullptr, nullptr}, {"Helga", "Square", nullptr}, {"Lolo", "Square", "Thick"},
        {"Magazine", "6x4", "Thin"}, {"Instant", "Square", "Instant"}, {"Mono", nullptr, "Medium"},
        {"1962", "7x6", nullptr}, {"1974", "7x6", "Rounded"}, {"Cinema", "Cinema", "Cinema"},
        {"Infrared", nullptr, nullptr}, {"Fisheye", "Square", "Fisheye"}, {"Lightleak", nullptr, nullptr},
        {"Delicious", nullptr, nullptr}, {"Arctic", nullptr, nullptr}, {"Blowout", nullptr, nullptr}};
    ASSERT_LE(std::size(all), std::size_t(lumora_look_count()));
    for (int look = 0; look < int(std::size(all)); look++) {
        EXPECT_STREQ(lumora_look_name(look), all[look].look);
        EXPECT_STREQ(lumora_crop_name(lumora_look_crop(look)), all[look].crop) << all[look].look;
        EXPECT_STREQ(lumora_border_name(lumora_look_border(look)), all[look].border) << all[look].look;
    }
    for (const int none : {-1, lumora_look_count(), INT_MAX, INT_MIN}) {
        EXPECT_EQ(lumora_look_crop(none), LUMORA_NONE);
        EXPECT_EQ(lumora_look_border(none), LUMORA_NONE);
    }
}

TEST(LibraryFraming, HasTheCropAndTheBorderOfEveryLook)
{
    for (int look = 0; look < lumora_look_count(); look++) {
        const char* const name = lumora_look_name(look);
        const int filter = CharImage::getFilterFromName(name);
        for (const float shape : {0.5f, 2.0f})
            EXPECT_EQ(CharImage::getFilterAspect(filter, shape),
                CharImage::getFilterAspect(filterNamed(lumora_crop_name(lumora_look_crop(look))), shape))
                << name;
        const Picture picture = randomPicture(90, 60, 5);
        const auto drawn = imageOf(picture), expected = imageOf(picture);
        drawn->applyFilterBorder(filterOf(lumora_look_border(look)), 90);
        expected->applyFilterBorder(filter, 90);
        EXPECT_TRUE(std::equal(drawn->data, drawn->data + drawn->pixelCount() * 4, expected->data)) << name;
    }
}

TEST(LibraryFraming, CropsRoundTheMiddle)
{
    expectPart(LUMORA_NONE, 3000, 2000, {0, 0, 3000, 2000});
    expectPart(cropOf("Square"), 3000, 2000, {500, 0, 2000, 2000});
    expectPart(cropOf("Square"), 2000, 3001, {0, 500, 2000, 2000});
    expectPart(cropOf("Cinema"), 200, 300, {0, 93, 200, 113}); // wide for portraits, too
    expectPart(cropOf("6x4"), 1000, 1000, {0, 166, 1000, 667});
    expectPart(cropOf("6x4"), 999, 1000, {166, 0, 667, 1000});
    expectPart(cropOf("4x3"), 400, 300, {0, 0, 400, 300});
    expectPart(cropOf("7x6"), 6, 7, {0, 0, 6, 7});
}

TEST(LibraryFraming, TakesTheLargestPartOfTheShape)
{
    const int sides[] = {1, 2, 3, 7, 100, 3999, 4096};
    for (int crop = 0; crop < lumora_crop_count(); crop++)
        for (const int width : sides)
            for (const int height : sides) {
                const float shape = CharImage::getFilterAspect(
                    CharImage::getFilterFromName(lumora_crop_name(crop)), float(width) / float(height));
                lumora_rect part;
                ASSERT_EQ(lumora_crop(crop, width, height, &part), LUMORA_OK);
                const std::string what =
                    std::string(lumora_crop_name(crop)) + ' ' + std::to_string(width) + 'x' + std::to_string(height);
                EXPECT_TRUE(part.width == width || part.height == height) << what;
                EXPECT_GE(part.width, 1) << what;
                EXPECT_GE(part.height, 1) << what;
                EXPECT_EQ(part.x, (width - part.width) / 2) << what;
                EXPECT_EQ(part.y, (height - part.height) / 2) << what;
                const bool isLower = part.height < height && part.height > 1;
                const bool isNarrower = part.width < width && part.width > 1;
                EXPECT_LE(isLower ? std::abs(part.height - double(width) / shape) : 0.0, 0.501) << what;
                EXPECT_LE(isNarrower ? std::abs(part.width - double(height) * shape) : 0.0, 0.501) << what;
            }
}

TEST(LibraryFraming, GivesTheEnginesMargins)
{
    for (int border = LUMORA_NONE; border < lumora_border_count(); border++)
        for (const int side : {1, 69, 70, 3000, 65535}) {
            float left, right, top, bottom;
            CharImage::getBorderReqsForFilter(filterOf(border), &left, &right, &top, &bottom);
            lumora_margins margins = {-1, -1, -1, -1};
            ASSERT_EQ(lumora_border(border, side, &margins), LUMORA_OK);
            EXPECT_EQ(margins.left, int(float(side) * left)) << border << ' ' << side;
            EXPECT_EQ(margins.right, int(float(side) * right)) << border << ' ' << side;
            EXPECT_EQ(margins.top, int(float(side) * top)) << border << ' ' << side;
            EXPECT_EQ(margins.bottom, int(float(side) * bottom)) << border << ' ' << side;
        }
    lumora_margins print;
    ASSERT_EQ(lumora_border(borderOf("Instant"), 3000, &print), LUMORA_OK);
    EXPECT_EQ(print.bottom, 599); // odd on purpose, as the engine has it
}

TEST(LibraryFraming, DrawsTheEnginesBorders)
{
    for (int border = LUMORA_NONE; border < lumora_border_count(); border++)
        for (const auto& [width, height, side] : {std::tuple(1, 1, 1), {90, 60, 90}, {80, 110, 100}, {9, 7, 65535}})
            for (const std::size_t gap : {0, 5}) {
                Picture expected = randomPicture(width, height, 5);
                Block block(expected, gap);
                const auto image = imageOf(expected);
                image->applyFilterBorder(filterOf(border), side);
                std::copy_n(image->data, expected.pixels.size(), expected.pixels.data());
                ASSERT_EQ(lumora_draw_border(border, side, block.data(), width, height, block.stride), LUMORA_OK);
                block.expectHolds(expected, "border " + std::to_string(border));
            }
}
