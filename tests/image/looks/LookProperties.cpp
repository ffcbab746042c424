// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/image/looks/LookProperties.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string>

using namespace lumora;

namespace {

ByteColour colourAt(const CharImage& image, int i)
{
    return {image.data[4 * i], image.data[4 * i + 1], image.data[4 * i + 2]};
}

void setColour(Picture& picture, int i, ByteColour c)
{
    for (int k = 0; k < 3; k++)
        picture.at(i, 0)[k] = static_cast<unsigned char>(c[k]);
}

/// Under the variation as it is set. `seed` is of what a look draws for itself.
void expectLookMatchesTwinOn(
    const NamedPicture& sample, int filter, void (*twin)(Picture&), unsigned seed, const std::string& variation)
{
    Picture expected = sample.picture;
    std::srand(seed);
    twin(expected);
    const auto image = imageOf(sample.picture);
    std::srand(seed);
    testing::internal::CaptureStdout();
    image->applyFilter(filter);
    testing::internal::GetCapturedStdout();
    expectSame(*image, expected, sample.name + ", " + variation);
}

} // namespace

void expectLookMatchesTwin(int filter, void (*twin)(Picture&))
{
    for (const NamedPicture& sample : samplePictures()) {
        for (unsigned seed = 0; seed < 4; seed++) {
            CharImage::useRandom = seed > 0;
            std::srand(seed);
            CharImage::renewRandomNumbers();
            expectLookMatchesTwinOn(sample, filter, twin, seed + 100, "seed " + std::to_string(seed));
        }
        CharImage::useRandom = 1;
        for (const float value : {0.0f, 0.1f, 0.999999f}) {
            std::fill(std::begin(CharImage::random), std::end(CharImage::random), value);
            expectLookMatchesTwinOn(sample, filter, twin, 104, "random numbers " + std::to_string(value));
        }
        if (testing::Test::HasFatalFailure())
            return;
    }
}

Picture sampledPicture(ByteColour dark, ByteColour bright)
{
    Picture picture(400, 1);
    for (int i = 0; i < 400; i += 10)
        setColour(picture, i, i / 10 % 2 ? bright : dark);
    return picture;
}

void expectBeforeLevels(int filter, ByteColour colour, ByteColour expected, ByteColour blackBecomes,
    ByteColour whiteBecomes, const std::function<void(Picture&)>& levels)
{
    CharImage::useRandom = 0;
    Picture picture = sampledPicture({0, 0, 0}, {255, 255, 255});
    setColour(picture, 1, colour);
    const auto image = imageOf(picture);
    image->applyFilter(filter);

    Picture stretched = sampledPicture(blackBecomes, whiteBecomes);
    setColour(stretched, 1, expected);
    levels(stretched);
    EXPECT_EQ(colourAt(*image, 1), (ByteColour{stretched.at(1, 0)[0], stretched.at(1, 0)[1], stretched.at(1, 0)[2]}));
}

ByteColour afterLevels(int filter, ByteColour colour, const std::function<void(CharImage&)>& levels)
{
    CharImage::useRandom = 0;
    const auto place = [](int v) { return v / 9 * 10 + v % 9 + 1; }; // never a sampled pixel
    for (int dark = 0; dark < 100; dark++)
        for (int bright = 255; bright > 150; bright--) {
            const Picture picture = sampledPicture({dark, dark, dark}, {bright, bright, bright});
            Picture ramp = picture;
            for (int v = 0; v < 256; v++)
                setColour(ramp, place(v), {v, v, v});
            const auto levelled = imageOf(ramp);
            levels(*levelled);
            ByteColour before = {-1, -1, -1};
            for (int k = 0; k < 3; k++)
                for (int v = 0; v < 256 && before[k] < 0; v++)
                    if (levelled->data[4 * place(v)] == colour[k])
                        before[k] = v;
            if (before[0] < 0 || before[1] < 0 || before[2] < 0)
                continue;
            Picture asked = picture;
            setColour(asked, 1, before);
            const auto image = imageOf(asked);
            image->applyFilter(filter);
            return colourAt(*image, 1);
        }
    ADD_FAILURE() << "no levels give " << colour[0] << " " << colour[1] << " " << colour[2];
    return {};
}

ByteColour underLook(int filter, ByteColour colour)
{
    CharImage::useRandom = 0;
    const auto image = imageOf(flatPicture(1, 1, colour[0], colour[1], colour[2]));
    image->applyFilter(filter);
    return colourAt(*image, 0);
}

std::array<float, 100> allRandom(float value)
{
    std::array<float, 100> random;
    random.fill(value);
    return random;
}
