// SPDX-License-Identifier: GPL-3.0-or-later
// Prints a hash of what every look and every border makes of some pictures, fixed and varied. Two machines, compilers
// or libraries agree when they print the same; whatever the looks print themselves stands between the hashes.

#include "image/CharImage.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

using namespace lumora;

namespace {

constexpr int numbers = 256; ///< of the catalogue and beyond: those that stand for nothing change no picture
constexpr unsigned seeds = 4; ///< of random numbers, beside the fixed settings

struct Photo {
    const char* name;
    int width, height;
    std::vector<unsigned char> pixels;
};

template <class ByteOf> Photo photo(const char* name, int width, int height, ByteOf byteOf)
{
    Photo made{name, width, height, {}};
    for (int y = 0; y < height; y++)
        for (int x = 0; x < width; x++)
            for (int k = 0; k < 4; k++)
                made.pixels.push_back(static_cast<unsigned char>(byteOf(x, y, k)));
    return made;
}

/// In whole numbers alone, so that every machine makes the same. One is wider than a block of the engine.
std::vector<Photo> photos()
{
    std::mt19937 random(1);
    const auto anything = [&](int, int, int) { return random() >> 24; };
    const auto slope = [&](int x, int y, int k) {
        return std::clamp(20 + x * (3 - k) / 2 + y * (k + 1) - (x * y >> 6) + int(random() >> 28), 0, 255);
    };
    const auto neutral = [](int x, int y, int k) { return k == 3 ? x : (x + 2 * y) & 255; };
    const auto dark = [&](int, int, int) { return random() >> 28; };
    return {photo("pixel", 1, 1, anything), photo("few", 7, 5, anything),
        photo("flat", 40, 30, [](int, int, int k) { return 60 + 50 * k; }), photo("dark", 61, 83, dark),
        photo("neutral", 64, 96, neutral), photo("random", 300, 70, anything), photo("slope", 150, 201, slope)};
}

CharImage imageOf(const Photo& photo)
{
    auto* data = new unsigned char[photo.pixels.size()];
    std::copy(photo.pixels.begin(), photo.pixels.end(), data);
    return CharImage(data, photo.width, photo.height);
}

/// Fowler, Noll and Vo's 1a.
std::uint64_t hashOf(const CharImage& image)
{
    std::uint64_t hash = 0xcbf29ce484222325u;
    for (std::size_t i = 0; i < image.pixelCount() * 4; i++)
        hash = (hash ^ image.data[i]) * 0x100000001b3u;
    return hash;
}

void say(const char* operation, int number, const Photo& photo, unsigned seed, const CharImage& image)
{
    std::printf("%s %d (%s), photo %s, seed %u: %016llx\n", operation, number, CharImage::getFilterName(number),
        photo.name, seed, static_cast<unsigned long long>(hashOf(image)));
}

void sayLooks(const Photo& photo, unsigned seed)
{
    const GrowArray<int> looks = CharImage::getLooks();
    for (int i = 0; i < looks.numThings; i++) {
        const int look = looks.theArray[i];
        CharImage image = imageOf(photo);
        std::srand(look + 1); // grain draws from it
        image.applyFilter(look);
        say("look", look, photo, seed, image);
    }
}

void sayBorders(const Photo& photo)
{
    for (int border = 0; border < numbers; border++) {
        CharImage image = imageOf(photo);
        image.applyFilterBorder(border, std::max(photo.width, photo.height));
        if (hashOf(image) != hashOf(imageOf(photo)))
            say("border", border, photo, 0, image);
    }
}

} // namespace

int main()
{
    for (const Photo& photo : photos()) {
        for (unsigned seed = 0; seed <= seeds; seed++) {
            CharImage::useRandom = seed == 0 ? 0 : 1;
            std::srand(seed);
            CharImage::renewRandomNumbers();
            sayLooks(photo, seed);
        }
        CharImage::useRandom = 0;
        sayBorders(photo);
    }
}
