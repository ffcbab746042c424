// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/passes/Levels.h"

#include "image/passes/EachBlock.h"

#include <cstring>

namespace lumora {

namespace {

int sumOf(const GrowArray<int>& histogram)
{
    int total = 0;
    for (int k = 0; k < histogram.numThings; k++)
        total += histogram.theArray[k];
    return total;
}

/// The bin before the one at which `fraction` of the samples, counted from the dark end, is reached.
int darkCutOff(const GrowArray<int>& histogram, float total, float fraction)
{
    int sum = 0;
    for (int k = 0; k < histogram.numThings; k++) {
        sum += histogram.theArray[k];
        if (sum != 0 && float(sum) / total >= fraction)
            return k == 0 ? 0 : k - 1;
    }
    return 0;
}

/// The bin at which `fraction` of the samples, counted from the bright end, is reached: not the one before, on purpose.
int brightCutOff(const GrowArray<int>& histogram, float total, float fraction)
{
    int sum = 0;
    for (int k = histogram.numThings - 1; k >= 0; k--) {
        sum += histogram.theArray[k];
        if (sum != 0 && float(sum) / total >= fraction)
            return k;
    }
    return 0;
}

constexpr std::size_t sampleStep = 10; ///< every tenth pixel is sampled
constexpr std::size_t neverSampled = 11; ///< but none of the last ones

/// Counts the luminances of the pixels that stand `step` apart, up to and not including the place `end`.
void countLuminances(
    const unsigned char* pixels, std::size_t end, std::size_t step, GrowArray<int>* histogram, int* minLum)
{
    const std::size_t ahead = 64 * step; // asked for early, as there is little else to do while the memory answers
    int counts[256] = {};
    for (std::size_t i = 0; i < end; i += step) {
        if (end - i > ahead)
            __builtin_prefetch(pixels + (i + ahead) * 4);
        const unsigned char* pixel = pixels + i * 4;
        counts[(30 * pixel[0] + 59 * pixel[1] + 11 * pixel[2]) / 100]++; // its luminance, cut to a whole number
    }
    int lowest = 0, levels = 256;
    while (levels > 0 && counts[levels - 1] == 0)
        levels--;
    while (lowest < levels && counts[lowest] == 0)
        lowest++;
    for (int k = 0; k < levels; k++)
        histogram->add(counts[k]);
    *minLum = lowest;
}

std::size_t sampledEnd(const CharImage& image)
{
    return image.pixelCount() > neverSampled ? image.pixelCount() - neverSampled : 0;
}

} // namespace

Levels levelsOf(const GrowArray<int>& histogram, int minLum, const Stretch& stretch)
{
    const float total = float(sumOf(histogram));
    const int lowIndex = darkCutOff(histogram, total, stretch.lowFraction);
    const int highIndex = brightCutOff(histogram, total, stretch.highFraction);
    Levels levels;
    // The darkest sample counts on top of the dark cut-off, which darkens pictures without black: on purpose.
    levels.offset = float(minLum + lowIndex);
    levels.scale = (stretch.highLevel - stretch.lowLevel) / float(highIndex - lowIndex);
    levels.lowLevel = stretch.lowLevel;
    levels.floor = stretch.clampToLowLevel ? stretch.lowLevel : 0.0f;
    levels.ceiling = stretch.clampToHighLevel ? stretch.highLevel : 255.0f;
    return levels;
}

Levels levelsOf(const CharImage& image, const Stretch& stretch)
{
    GrowArray<int> histogram;
    int minLum;
    image.getHistogram(&histogram, &minLum);
    return levelsOf(histogram, minLum, stretch);
}

CharImage sampledPixels(const CharImage& image)
{
    const std::size_t end = sampledEnd(image), count = (end + sampleStep - 1) / sampleStep;
    if (count == 0)
        return {};
    auto* pixels = new unsigned char[count * 4];
    for (std::size_t i = 0; i < count; i++)
        std::memcpy(pixels + i * 4, image.data + i * sampleStep * 4, 4);
    return CharImage(pixels, int(count), 1);
}

void getHistogramOfSamples(const CharImage& samples, GrowArray<int>* histogram, int* minLum)
{
    countLuminances(samples.data, samples.pixelCount(), 1, histogram, minLum);
}

void CharImage::getHistogram(GrowArray<int>* hist, int* minLum) const
{
    countLuminances(data, sampledEnd(*this), sampleStep, hist, minLum);
}

void CharImage::fillHistogram(
    float lowFraction, float highFraction, float lowLevel, float highLevel, bool clampToLowLevel, bool clampToHighLevel)
{
    const Levels levels =
        levelsOf(*this, {lowFraction, highFraction, lowLevel, highLevel, clampToLowLevel, clampToHighLevel});
    withByteOf(levels, [this](auto byteOf) {
        forEachBlock(*this, [=](Block& block) {
            block.fillPlanes();
            block.storeBytes([&](int i) { return eachChannel(block.colour(i), byteOf); });
        });
    });
}

} // namespace lumora
