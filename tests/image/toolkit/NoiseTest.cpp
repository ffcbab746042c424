// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "tests/reference/Toolkit.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <set>

using namespace lumora;

namespace {

struct Speck {
    int x, y, offset;
};

/// What the next speck of an image draws, with `rand()` put back to `seed`.
Speck speckOf(unsigned seed, int width, int height, int amplitude)
{
    std::srand(seed);
    const int x = std::rand() % width, y = std::rand() % height, n = std::rand() % amplitude;
    std::srand(seed);
    return {x, y, int(n - amplitude * 0.5)};
}

} // namespace

TEST(Noise, WrapsRound)
{
    // Amplitude 40 draws offsets of -20 .. 19; every one of them is met.
    std::set<int> met;
    for (unsigned seed = 0; met.size() < 40 && seed < 5000; seed++) {
        const int offset = speckOf(seed, 1, 1, 40).offset;
        met.insert(offset);
        const auto image = imageOf(flatPicture(1, 1, 250, 5, 128));
        image->addNoise(1, 1, 40);
        EXPECT_EQ(image->data[0], (250 + offset) % 256); // 10 more than 250 is 4
        EXPECT_EQ(image->data[1], (256 + 5 + offset) % 256);
        EXPECT_EQ(image->data[2], 128 + offset);
    }
    EXPECT_EQ(met.size(), 40u);
    EXPECT_TRUE(met.contains(10));
}

TEST(Noise, IsLopsidedForAnOddAmplitude)
{
    std::set<int> offsets;
    for (unsigned seed = 0; seed < 60; seed++) {
        std::srand(seed);
        const auto image = imageOf(flatPicture(1, 1, 100, 100, 100));
        image->addNoise(1, 1, 5);
        offsets.insert(image->data[0] - 100);
    }
    EXPECT_EQ(offsets, (std::set<int>{-2, -1, 0, 1}));
}

TEST(Noise, ChangesOnePixelPerSpeckOfSizeOne)
{
    for (unsigned seed = 0; seed < 20; seed++) {
        Picture expected = flatPicture(20, 15, 100, 101, 102);
        const auto image = imageOf(expected);
        const Speck speck = speckOf(seed, 20, 15, 100);
        image->addNoise(1, 1, 100);
        for (int k = 0; k < 3; k++)
            expected.at(speck.x, speck.y)[k] = static_cast<unsigned char>(100 + k + speck.offset);
        expectSame(*image, expected, "seed " + std::to_string(seed));
    }
}

TEST(Noise, DrawsButPaintsNothingWithoutASize)
{
    std::srand(3);
    for (int i = 0; i < 6; i++)
        std::rand();
    const int next = std::rand();
    std::srand(3);
    const Picture picture = randomPicture(8, 8, 1);
    const auto image = imageOf(picture);
    image->addNoise(2, 0, 10);
    expectSame(*image, picture, "size 0");
    EXPECT_EQ(std::rand(), next);
    std::srand(3);
    const int first = std::rand();
    std::srand(3);
    image->addNoise(0, 5, 10);
    image->addNoise(-2, 5, 10);
    expectSame(*image, picture, "no specks");
    EXPECT_EQ(std::rand(), first);
}

TEST(Noise, MatchesItsTwin)
{
    for (const NamedPicture& sample : samplePictures())
        for (int size : {-3, 1, 2, 5, 40}) {
            Picture expected = sample.picture;
            std::srand(unsigned(size));
            reference::addNoise(expected, 50, size, 90);
            const auto image = imageOf(sample.picture);
            std::srand(unsigned(size));
            image->addNoise(50, size, 90);
            expectSame(*image, expected, sample.name + ", size " + std::to_string(size));
        }
}
