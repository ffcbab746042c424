#include "image/CharImage.h"
#include "tests/reference/Toolkit.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

Picture blurred(const Picture& picture, int size, float exponent)
{
    const auto image = imageOf(picture);
    image->makeBlurry(size, exponent);
    Picture result = picture;
    std::copy_n(image->data, picture.pixels.size(), result.pixels.begin());
    return result;
}

} // namespace

TEST(Blur, RaisesSmallSizesToThree)
{
    const Picture picture = randomPicture(20, 15, 2);
    for (float exponent : {-1.0f, 0.0f, 2.0f}) {
        const Picture three = blurred(picture, 3, exponent);
        EXPECT_EQ(blurred(picture, 0, exponent).pixels, three.pixels);
        EXPECT_EQ(blurred(picture, 2, exponent).pixels, three.pixels);
    }
    // A box: three taps of a third, each truncated.
    Picture dot = flatPicture(5, 1, 0, 0, 0);
    dot.at(2, 0)[0] = 90;
    const Picture result = blurred(dot, 3, 0.0f);
    for (int x = 1; x < 4; x++)
        EXPECT_EQ(result.at(x, 0)[0], 30);
    EXPECT_EQ(result.at(0, 0)[0], 0);
}

TEST(Blur, WeighsFourPixelsInQuarters)
{
    Picture dot = flatPicture(5, 1, 0, 0, 0);
    dot.at(2, 0)[0] = 200;
    const Picture result = blurred(dot, 4, 1.0f);
    // Three vertical taps of one row: 25 + 50 + 25 per cent of 50, 100 and 50.
    EXPECT_EQ(result.at(1, 0)[0], 12 + 25 + 12);
    EXPECT_EQ(result.at(2, 0)[0], 100);
    EXPECT_EQ(result.at(3, 0)[0], 12 + 25 + 12);
}

TEST(Blur, DarkensSlightly)
{
    const Picture result = blurred(flatPicture(9, 9, 100, 100, 100), 7, 1.0f);
    EXPECT_LT(result.at(4, 4)[0], 100);
    EXPECT_GT(result.at(4, 4)[0], 80);
}

TEST(Blur, MatchesItsTwin)
{
    const struct {
        int size;
        float exponent;
    } kernels[] = {
        {0, 0.0f}, {3, 1.0f}, {4, 1.0f}, {5, 3.0f}, {7, 0.0f}, {7, 1.5f}, {10, 0.3f}, {30, 3.0f}, {60, 3.0f}};
    for (const NamedPicture& sample : samplePictures())
        for (const auto& kernel : kernels) {
            if (sample.picture.width > 500 && kernel.size != 7)
                continue; // the twin is slow
            Picture expected = sample.picture;
            reference::makeBlurry(expected, kernel.size, kernel.exponent);
            const auto image = imageOf(sample.picture);
            image->makeBlurry(kernel.size, kernel.exponent);
            expectSame(*image, expected, sample.name + ", size " + std::to_string(kernel.size));
        }
}
