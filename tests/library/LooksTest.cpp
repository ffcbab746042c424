// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "library/lumora.h"
#include "tests/library/Block.h"
#include "tests/reference/Toolkit.h"

#include <climits>
#include <cstdlib>

using namespace lumora;

namespace {

const std::size_t gaps[] = {0, 1, 64}; // bytes between rows

std::vector<NamedPicture> pictures()
{
    return {{"pixel", randomPicture(1, 1, 1)}, {"column", randomPicture(1, 23, 2)}, {"row", randomPicture(700, 1, 3)},
        {"random", randomPicture(41, 30, 4)}, {"photo", photoLikePicture(160, 120)}};
}

Picture pictureOf(const CharImage& image)
{
    Picture picture(image.width, image.height);
    std::copy_n(image.data, picture.pixels.size(), picture.pixels.data());
    return picture;
}

/// What the engine makes of a picture for those who begin with srand() as the window does.
Picture underLook(const Picture& picture, int look, unsigned random)
{
    const auto image = imageOf(picture);
    CharImage::prints = false;
    std::srand(random);
    CharImage::useRandom = random != 0;
    if (random != 0)
        CharImage::renewRandomNumbers();
    image->applyFilter(look);
    return pictureOf(*image);
}

int lookOf(const std::string& name)
{
    for (int look = 0; look < lumora_look_count(); look++)
        if (name == lumora_look_name(look))
            return look;
    return -1;
}

} // namespace

TEST(LibraryLooks, AreTheEnginesInItsOrder)
{
    const GrowArray<int> looks = CharImage::getLooks();
    ASSERT_EQ(lumora_look_count(), looks.numThings);
    for (int look = 0; look < looks.numThings; look++)
        EXPECT_STREQ(lumora_look_name(look), CharImage::getFilterName(looks.theArray[look]));
    for (const int none : {-1, looks.numThings, INT_MIN, INT_MAX})
        EXPECT_EQ(lumora_look_name(none), nullptr);
}

TEST(LibraryLooks, GiveTheEnginesBytes)
{
    const GrowArray<int> looks = CharImage::getLooks();
    for (int look = 0; look < looks.numThings; look++)
        for (const auto& [name, picture] : pictures())
            for (const unsigned random : {0u, 1u, 20251u, UINT_MAX}) {
                const Picture expected = underLook(picture, looks.theArray[look], random);
                for (const std::size_t gap : gaps) {
                    const std::string what = std::string(lumora_look_name(look)) + " on " + name + ", random "
                        + std::to_string(random) + ", gap " + std::to_string(gap);
                    Block block(picture, gap);
                    ASSERT_EQ(
                        lumora_apply(look, block.data(), block.width, block.height, block.stride, random), LUMORA_OK);
                    block.expectHolds(expected, what);
                }
            }
}

TEST(LibraryLooks, LeaveTheSpareByte)
{
    const Picture picture = randomPicture(41, 30, 9);
    for (int look = 0; look < lumora_look_count(); look++) {
        Block block(picture);
        ASSERT_EQ(lumora_apply(look, block.data(), 41, 30, block.stride, 3), LUMORA_OK);
        for (std::size_t i = 3; i < block.bytes.size(); i += 4)
            ASSERT_EQ(block.bytes[i], picture.pixels[i]) << lumora_look_name(look) << ", byte " << i;
    }
}

TEST(LibraryLooks, TakeTheLongestSide)
{
    const Picture picture = randomPicture(65535, 2, 6);
    Block block(picture);
    ASSERT_EQ(lumora_apply(lookOf("Mono"), block.data(), 65535, 2, block.stride, 0), LUMORA_OK);
    block.expectHolds(underLook(picture, CharImage::getFilterFromName("Mono"), 0), "65535 pixels");
}

TEST(LibraryLooks, LeaveTheProgramsRandomNumbers)
{
    const auto drawn = [](int look) {
        Block block(randomPicture(20, 10, 7));
        std::srand(11);
        std::vector<int> numbers = {std::rand(), std::rand()};
        lumora_apply(look, block.data(), 20, 10, block.stride, 5);
        for (int i = 0; i < 40; i++)
            numbers.push_back(std::rand());
        return numbers;
    };
    const int none = -1;
    for (const char* look : {"Lightleak", "Lolo"})
        EXPECT_EQ(drawn(lookOf(look)), drawn(none)) << look;
}

TEST(LibraryLooks, PrintNothing)
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    for (int look = 0; look < lumora_look_count(); look++) {
        Block block(randomPicture(20, 10, 7));
        EXPECT_EQ(lumora_apply(look, block.data(), 20, 10, block.stride, 0), LUMORA_OK);
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(LibraryMix, GivesTheTwinsBytes)
{
    for (const auto& [name, before] : pictures()) {
        const Picture after = underLook(before, CharImage::getFilterFromName("Helga"), 0);
        for (const int strength : {0, 1, 37, 50, 99, 100})
            for (const std::size_t gap : gaps)
                for (const std::size_t formerGap : gaps) {
                    Picture expected = after;
                    reference::mixIn(expected, before, strength);
                    Block block(after, gap), former(before, formerGap);
                    ASSERT_EQ(lumora_mix(strength, block.data(), block.width, block.height, block.stride, former.data(),
                                  former.stride),
                        LUMORA_OK);
                    block.expectHolds(expected, name + " at " + std::to_string(strength));
                    former.expectHolds(before, name + ", the former picture");
                }
    }
}
