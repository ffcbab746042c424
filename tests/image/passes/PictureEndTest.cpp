// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

using namespace lumora;

// Looks work in blocks of 256 pixels; the last one of a picture or of a row may lack a single pixel.

TEST(Looks, LeaveAloneWhatStandsBehindThePicture)
{
    constexpr unsigned char spare = 93;
    constexpr int spareBytes = 4 * 256;
    const GrowArray<int> looks = CharImage::getLooks();
    const int sizes[][2] = {{255, 1}, {255, 3}, {5, 51}, {51, 5}, {511, 1}, {1, 255}, {15, 17}, {767, 1}, {257, 255}};
    for (const auto& [width, height] : sizes)
        for (int i = 0; i < looks.numThings; i++) {
            const int bytes = width * height * 4;
            CharImage image(new unsigned char[bytes + spareBytes], width, height);
            for (int k = 0; k < bytes; k++)
                image.data[k] = static_cast<unsigned char>(k * 37 % 256);
            std::fill(image.data + bytes, image.data + bytes + spareBytes, spare);
            testing::internal::CaptureStdout();
            image.applyFilter(looks.theArray[i]);
            testing::internal::GetCapturedStdout();
            EXPECT_EQ(std::count(image.data + bytes, image.data + bytes + spareBytes, spare), spareBytes)
                << CharImage::getFilterName(looks.theArray[i]) << ", " << width << " x " << height;
        }
}
