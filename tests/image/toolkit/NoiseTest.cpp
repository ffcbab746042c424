#include "image/CharImage.h"
#include "tests/reference/Toolkit.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <set>

TEST(Noise, WrapsRound)
{
    // Amplitude 40 reaches offsets of -20 .. 19: at 250 some speck wraps to dark.
    std::srand(1);
    const auto image = imageOf(flatPicture(30, 30, 250, 250, 250));
    image->addNoise(200, 1, 40);
    bool wrapped = false;
    for (int i = 0; i < 900; i++)
        wrapped |= image->data[4 * i] < 14;
    EXPECT_TRUE(wrapped);
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
        std::srand(seed);
        const Picture picture = flatPicture(20, 20, 100, 100, 100);
        const auto image = imageOf(picture);
        image->addNoise(1, 1, 100);
        int changed = 0;
        for (int i = 0; i < 400; i++)
            changed += image->data[4 * i] != 100;
        EXPECT_LE(changed, 1);
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
    image->addNoise(0, 5, 10);
    expectSame(*image, picture, "count 0");
}

TEST(Noise, MatchesItsTwin)
{
    for (const NamedPicture& sample : samplePictures())
        for (int size : {1, 2, 5, 40}) {
            Picture expected = sample.picture;
            std::srand(unsigned(size));
            reference::addNoise(expected, 50, size, 90);
            const auto image = imageOf(sample.picture);
            std::srand(unsigned(size));
            image->addNoise(50, size, 90);
            expectSame(*image, expected, sample.name + ", size " + std::to_string(size));
        }
}
