// SPDX-License-Identifier: GPL-3.0-or-later
// The engine on any pixels, sizes, filters and parameters:
// build/asan/fuzz/EngineFuzz -max_total_time=600 FOLDER build/asan/fuzz/seeds/EngineFuzz

#include "fuzz/Input.h"
#include "image/CharImage.h"
#include "image/FilterNumber.h"
#include "image/framing/BestFit.h"

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>

using namespace lumora;

namespace {

/// A filter number of the catalogue, or one before or after them.
int anyNumber(Input& input)
{
    return input.below(Filter::end + 2) - 1;
}

void work(CharImage& image, Input& input)
{
    unsigned char colour[4];
    const int half = (image.width < image.height ? image.width : image.height) / 2;
    const auto side = [&] { return input.below(half + 1); }; // margins lie inside the canvas
    switch (input.below(10)) {
    case 0:
        image.fillHistogram(
            input.number(1), input.number(1), input.number(255), input.number(255), input.below(2), input.below(2));
        break;
    case 1:
        image.makeBlurry(input.below(40), input.number(4));
        break;
    case 2:
        image.vignette(
            input.number(60), input.number(60), input.number(4), input.number(1), input.below(2), input.below(2));
        break;
    case 3:
        image.addNoise(input.below(30), input.below(9), 1 + input.below(255));
        break;
    case 4: {
        const std::unique_ptr<unsigned char[]> map(new unsigned char[image.pixelCount()]);
        image.fillEdgeDetectMap(map.get());
        CharImage::smoothCharMap(
            map.get(), image.width, image.height, input.below(30), input.number(4), input.number(50));
        break;
    }
    case 5: {
        const int maxSide = 1 + input.below(80);
        const int border = anyNumber(input);
        float left, right, top, bottom;
        CharImage::getBorderReqsForFilter(border, &left, &right, &top, &bottom);
        const auto margin = [maxSide](float fraction) { return int(float(maxSide) * fraction); };
        image.addBorder(margin(left), margin(right), margin(top), margin(bottom), 255, 255, 255);
        image.applyFilterBorder(border, maxSide);
        break;
    }
    case 6:
        input.take(colour, sizeof colour);
        image.fillBorder(side(), side(), side(), side(), colour);
        break;
    case 7:
        input.take(colour, sizeof colour);
        image.fillRoundedBorder(side(), side(), side(), side(), 1 + side(), colour);
        break;
    case 8: {
        const CharImage before(image);
        image.applyFilter(anyNumber(input));
        image.mixIn(before, input.below(120) - 10);
        break;
    }
    default:
        image.applyFilter(anyNumber(input));
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    return std::freopen("/dev/null", "w", stdout) ? 0 : 1;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    const int width = 1 + input.below(70), height = 1 + input.below(50);
    CharImage::useRandom = input.below(2);
    for (float& v : CharImage::random)
        v = float(input.below(1000)) / 1000.0f;
    CharImage image(new unsigned char[std::size_t(width) * height * 4], width, height);
    input.take(image.data, image.pixelCount() * 4);
    for (int step = 0; step < 3; step++)
        work(image, input);

    float w, h;
    findBestFit(input.number(3000), input.number(3000), input.number(3000), input.number(3000), &w, &h);
    return 0;
}
