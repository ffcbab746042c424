// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/image/looks/LookProperties.h"

using namespace lumora;

namespace {

void infraredLevels(Picture& picture)
{
    reference::fillHistogram(picture, 0.01f, 0.01f, 0.0f, 255.0f, true, true);
    reference::makeBlurry(picture, 4, 3.0f);
}

ByteColour greyOf(int level)
{
    return {level, level, level};
}

} // namespace

TEST(Infrared, MatchesItsTwin)
{
    expectLookMatchesTwin(Filter::infrared, reference::infrared);
}

TEST(Infrared, GivesTheReferenceColoursTheirGreys)
{
    const ByteColour colours[] = {
        {0, 0, 0}, {0, 255, 0}, {228, 152, 76}, {150, 150, 255}, {255, 255, 255}, {128, 128, 128}};
    const int greys[] = {7, 138, 239, 0, 5, 84};
    for (int i = 0; i < 6; i++) {
        // A picture of that colour but for its sampled pixels, black and the warm reference, which span the levels.
        Picture picture = sampledPicture({0, 0, 0}, {228, 152, 76}), before = sampledPicture(greyOf(7), greyOf(239));
        for (int x = 0; x < 400; x++)
            if (x % 10 != 0)
                for (int k = 0; k < 3; k++) {
                    picture.at(x, 0)[k] = static_cast<unsigned char>(colours[i][k]);
                    before.at(x, 0)[k] = static_cast<unsigned char>(greys[i]);
                }
        infraredLevels(before);
        const auto image = imageOf(picture);
        image->applyFilter(Filter::infrared);
        expectSame(*image, before, "colour " + std::to_string(i));
    }
}

TEST(Infrared, IsNeutral)
{
    const auto image = imageOf(randomPicture(50, 40, 8));
    image->applyFilter(Filter::infrared);
    for (int i = 0; i < 2000; i++) {
        ASSERT_EQ(image->data[4 * i], image->data[4 * i + 1]);
        ASSERT_EQ(image->data[4 * i], image->data[4 * i + 2]);
    }
}

TEST(Infrared, BlursASinglePixelByTheLeastKernel)
{
    Picture twin = flatPicture(1, 1, 0, 255, 0);
    const auto image = imageOf(twin);
    reference::infrared(twin);
    image->applyFilter(Filter::infrared);
    expectSame(*image, twin, "1x1");
}

TEST(Infrared, BlursByAHundredthOfTheLongerSide)
{
    for (const auto& [width, height] : {std::array{1300, 40}, std::array{30, 2650}}) {
        Picture twin = photoLikePicture(width, height);
        const auto image = imageOf(twin);
        reference::infrared(twin);
        image->applyFilter(Filter::infrared);
        expectSame(*image, twin, std::to_string(width) + " x " + std::to_string(height));
    }
}

TEST(Infrared, MatchesItsTwinInAMillionColours)
{
    Picture twin = randomPicture(1000, 1000, 1);
    const auto image = imageOf(twin);
    reference::infrared(twin);
    image->applyFilter(Filter::infrared);
    expectSame(*image, twin, "a million colours");
}
