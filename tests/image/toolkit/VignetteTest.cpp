#include "image/CharImage.h"
#include "tests/reference/Toolkit.h"

#include <gtest/gtest.h>

TEST(Vignette, LeavesThePixelAtTheInnerRadius)
{
    const Picture picture = randomPicture(41, 41, 4);
    const auto image = imageOf(picture);
    image->vignette(10, 20, 2.0f, 1.0f, true, true);
    for (const int x : {10, 15, 20, 30}) // up to 10 pixels from the centre at (20, 20)
        for (int k = 0; k < 3; k++)
            EXPECT_EQ(image->data[4 * (20 * 41 + x) + k], picture.at(x, 20)[k]);
    EXPECT_EQ(image->data[4 * 20 * 41], 0); // the outer radius is black
}

TEST(Vignette, OnlySoftensWithoutStrength)
{
    const Picture picture = randomPicture(300, 11, 4);
    Picture soft = picture;
    reference::makeBlurry(soft, 1, 0.0f);
    const auto image = imageOf(picture);
    image->vignette(0, 50, 1.0f, 0.0f, false, true);
    for (int k = 0; k < 3; k++) {
        EXPECT_EQ(image->data[4 * (5 * 300 + 150 + 9) + k], picture.at(159, 5)[k]); // t below 0.2
        EXPECT_EQ(image->data[4 * 5 * 300 + k], soft.at(0, 5)[k]); // t far above 1.2
    }
}

TEST(Vignette, SoftensSmallPicturesByTheLeastBox)
{
    Picture picture = flatPicture(199, 3, 0, 0, 0);
    picture.at(10, 1)[0] = 90;
    const auto image = imageOf(picture);
    image->vignette(0, 10, 1.0f, 0.0f, false, true);
    EXPECT_EQ(image->data[4 * (199 + 9)], 10);
    EXPECT_EQ(image->data[4 * (199 + 12)], 0);
}

TEST(Vignette, MatchesItsTwin)
{
    const struct {
        float inner, outer, exponent, strength;
    } rings[] = {{0, 10, 1.2f, 0.2f}, {5, 9, 3.0f, 1.0f}, {40, 300, 1.2f, 0.6f}, {-3, 40, 0.5f, 1.4f},
        {20, 20, 2.0f, 1.0f}, {30, 10, 2.0f, 0.8f}, {0, 500, 5.0f, -0.5f}};
    for (const NamedPicture& sample : samplePictures())
        for (const auto& ring : rings)
            for (int flags = 0; flags < 4; flags++) {
                Picture expected = sample.picture;
                reference::vignette(
                    expected, ring.inner, ring.outer, ring.exponent, ring.strength, flags & 1, flags & 2);
                const auto image = imageOf(sample.picture);
                image->vignette(ring.inner, ring.outer, ring.exponent, ring.strength, flags & 1, flags & 2);
                expectSame(*image, expected,
                    sample.name + ", ring " + std::to_string(ring.inner) + ", flags " + std::to_string(flags));
            }
}
