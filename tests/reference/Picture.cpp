// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/reference/Picture.h"

#include "image/CharImage.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <random>

using namespace lumora;

Picture::Picture(int columns, int rows)
    : width(columns)
    , height(rows)
    , pixels(std::size_t(columns) * rows * 4)
{
}

Picture randomPicture(int width, int height, unsigned seed, int lowest, int highest)
{
    Picture picture(width, height);
    std::mt19937 generator(seed);
    for (unsigned char& byte : picture.pixels)
        byte = static_cast<unsigned char>(lowest + int(generator() % unsigned(highest - lowest + 1)));
    return picture;
}

Picture flatPicture(int width, int height, int red, int green, int blue)
{
    Picture picture(width, height);
    for (std::size_t i = 0; i < picture.pixels.size(); i += 4) {
        picture.pixels[i] = static_cast<unsigned char>(red);
        picture.pixels[i + 1] = static_cast<unsigned char>(green);
        picture.pixels[i + 2] = static_cast<unsigned char>(blue);
        picture.pixels[i + 3] = static_cast<unsigned char>(i / 4);
    }
    return picture;
}

Picture photoLikePicture(int width, int height)
{
    Picture picture(width, height);
    std::mt19937 generator(7);
    for (int y = 0; y < height; y++)
        for (int x = 0; x < width; x++) {
            const double u = double(x) / width, v = double(y) / height;
            const double ring = std::sin(40 * std::hypot(u - 0.7, v - 0.3));
            const bool ground = v > 0.55 + 0.1 * std::sin(9 * u);
            double c[3] = {90 + 120 * v, 140 + 60 * v, 235 - 40 * v};
            if (ground) {
                c[0] = 120 * u + 40 * ring;
                c[1] = 160 - 90 * v + 30 * ring;
                c[2] = 30 + 20 * ring;
            }
            if (std::hypot(u - 0.7, v - 0.3) < 0.08)
                c[0] = 255, c[1] = 250, c[2] = 180;
            for (int k = 0; k < 3; k++)
                picture.at(x, y)[k] =
                    static_cast<unsigned char>(std::clamp(c[k] + double(generator() % 13) - 6.0, 0.0, 255.0));
            picture.at(x, y)[3] = static_cast<unsigned char>(x ^ y);
        }
    return picture;
}

const std::vector<NamedPicture>& samplePictures()
{
    static const std::vector<NamedPicture> pictures = [] {
        std::vector<NamedPicture> all;
        const int sizes[][2] = {{1, 1}, {1, 2}, {2, 1}, {2, 2}, {1, 17}, {23, 1}, {11, 1}, {1, 11}, {12, 1}, {3, 4},
            {1, 12}, {16, 16}, {31, 17}, {17, 45}, {64, 48}, {257, 5}, {300, 211}};
        unsigned seed = 1;
        for (const auto& size : sizes)
            all.push_back({"random " + std::to_string(size[0]) + "x" + std::to_string(size[1]),
                randomPicture(size[0], size[1], seed++)});
        all.push_back({"dark only", randomPicture(37, 41, 90, 0, 40)});
        all.push_back({"bright only", randomPicture(41, 37, 91, 200, 255)});
        const int colours[][3] = {{0, 0, 0}, {255, 255, 255}, {128, 128, 128}, {255, 0, 0}, {0, 255, 0}, {0, 0, 255},
            {255, 255, 0}, {37, 150, 201}};
        for (const auto& c : colours)
            all.push_back({"flat " + std::to_string(c[0]) + " " + std::to_string(c[1]) + " " + std::to_string(c[2]),
                flatPicture(19, 13, c[0], c[1], c[2])});
        all.push_back({"photo-like", photoLikePicture(617, 411)});
        return all;
    }();
    return pictures;
}

std::unique_ptr<CharImage> imageOf(const Picture& picture)
{
    auto* block = new unsigned char[picture.pixels.size()];
    std::memcpy(block, picture.pixels.data(), picture.pixels.size());
    return std::make_unique<CharImage>(block, picture.width, picture.height);
}

void expectSame(const CharImage& image, const Picture& picture, const std::string& what, bool spareToo)
{
    ASSERT_EQ(image.width, picture.width) << what;
    ASSERT_EQ(image.height, picture.height) << what;
    for (std::size_t i = 0; i < picture.pixels.size(); i++) {
        if (!spareToo && i % 4 == 3)
            continue;
        ASSERT_EQ(int(image.data[i]), int(picture.pixels[i]))
            << what << ": channel " << i % 4 << " of the pixel at column " << i / 4 % picture.width << ", row "
            << i / 4 / picture.width;
    }
}
