// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

#include <gtest/gtest.h>

using namespace lumora;

TEST(Strength, MatchesItsTwinForEveryPairOfBytes)
{
    Picture before(256, 256), after(256, 256);
    for (int y = 0; y < 256; y++)
        for (int x = 0; x < 256; x++)
            for (int k = 0; k < 4; k++) {
                before.at(x, y)[k] = static_cast<unsigned char>(x);
                after.at(x, y)[k] = static_cast<unsigned char>(k % 2 == 0 ? y : 255 - y);
            }
    const auto former = imageOf(before);
    for (int strength = 0; strength <= 100; strength++) {
        Picture expected = after;
        reference::mixIn(expected, before, strength);
        const auto image = imageOf(after);
        image->mixIn(*former, strength);
        expectSame(*image, expected, std::to_string(strength));
    }
}

TEST(Strength, MatchesItsTwinAfterALook)
{
    for (const auto& [name, before] : samplePictures()) {
        Picture after = before;
        reference::mono(after);
        const auto image = imageOf(after), former = imageOf(before);
        reference::mixIn(after, before, 37);
        image->mixIn(*former, 37);
        expectSame(*image, after, name);
    }
}

TEST(Strength, LeavesTheLookAt100AndTheFormerColoursAt0)
{
    const Picture before = randomPicture(37, 11, 1), after = randomPicture(37, 11, 2);
    const auto former = imageOf(before);
    for (const int strength : {100, 101, 1000}) {
        const auto image = imageOf(after);
        image->mixIn(*former, strength);
        expectSame(*image, after, std::to_string(strength));
    }
    for (const int strength : {0, -1, -1000}) {
        const auto image = imageOf(after);
        image->mixIn(*former, strength);
        expectSame(*image, before, std::to_string(strength), false);
    }
}

TEST(Strength, RoundsHalfUp)
{
    const auto former = imageOf(Picture(1, 1)), image = imageOf(Picture(1, 1));
    for (int channel = 0; channel < 3; channel++)
        image->data[channel] = 5;
    image->mixIn(*former, 50); // 2.5
    EXPECT_EQ(image->data[0], 3);
}

TEST(Strength, GrowsWithEveryPerCentAndNeverLeavesItsEnds)
{
    const Picture before = randomPicture(50, 20, 3), after = randomPicture(50, 20, 4);
    const auto former = imageOf(before);
    Picture last = before;
    for (int strength = 0; strength <= 100; strength++) {
        const auto image = imageOf(after);
        image->mixIn(*former, strength);
        for (std::size_t i = 0; i < after.pixels.size(); i++) {
            if (i % 4 == 3)
                continue;
            const int from = before.pixels[i], to = after.pixels[i], now = image->data[i], then = last.pixels[i];
            ASSERT_TRUE(from <= to ? then <= now && now <= to : then >= now && now >= to) << strength;
            last.pixels[i] = image->data[i];
        }
    }
}

TEST(Strength, LeavesPicturesWithoutPixelsAlone)
{
    CharImage image, before;
    image.mixIn(before, 50);
    EXPECT_EQ(image.pixelCount(), 0u);
}
