// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace lumora {
class CharImage;
}

/// A picture of the tests: width x height x 4 bytes, rows top first.
struct Picture {
    int width = 0, height = 0;
    std::vector<unsigned char> pixels;

    Picture(int columns, int rows);
    unsigned char* at(int x, int y) { return &pixels[(std::size_t(y) * width + x) * 4]; }
    const unsigned char* at(int x, int y) const { return &pixels[(std::size_t(y) * width + x) * 4]; }
};

/// Every byte at random between the bounds, byte 3 too.
Picture randomPicture(int width, int height, unsigned seed, int lowest = 0, int highest = 255);
Picture flatPicture(int width, int height, int red, int green, int blue);
/// Slopes, rings, a bright sun and a little noise: a picture with tones and edges as a photo has them.
Picture photoLikePicture(int width, int height);

struct NamedPicture {
    std::string name;
    Picture picture;
};

/// The pictures that every operation is held to: random ones of awkward sizes, flat, dark-only and bright-only ones,
/// and a photo-like one.
const std::vector<NamedPicture>& samplePictures();

/// An image of the engine with a copy of the picture's pixels.
std::unique_ptr<lumora::CharImage> imageOf(const Picture& picture);

/// Fails the running test with the first differing byte when image and picture differ; `spareToo` compares byte 3 as
/// well.
void expectSame(const lumora::CharImage& image, const Picture& picture, const std::string& what, bool spareToo = true);
