#include "image/toolkit/Levels.h"

#include "image/toolkit/PixelPass.h"

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

} // namespace

Levels levelsOf(const CharImage& image, float lowFraction, float highFraction, float lowLevel, float highLevel,
    bool clampToLowLevel, bool clampToHighLevel)
{
    GrowArray<int> histogram;
    int minLum;
    image.getHistogram(&histogram, &minLum);
    const float total = float(sumOf(histogram));
    const int lowIndex = darkCutOff(histogram, total, lowFraction);
    const int highIndex = brightCutOff(histogram, total, highFraction);
    Levels levels;
    // The darkest sample counts on top of the dark cut-off, which darkens pictures without black: on purpose.
    levels.offset = float(minLum + lowIndex);
    levels.scale = (highLevel - lowLevel) / float(highIndex - lowIndex);
    levels.lowLevel = lowLevel;
    levels.floor = clampToLowLevel ? lowLevel : 0.0f;
    levels.ceiling = clampToHighLevel ? highLevel : 255.0f;
    return levels;
}

void CharImage::getHistogram(GrowArray<int>* hist, int* minLum) const
{
    int counts[256] = {};
    int lowest = 255, highest = -1;
    const std::size_t count = pixelCount();
    for (std::size_t i = 0; i + 11 < count; i += 10) {
        const unsigned char* pixel = data + i * bytesPerPixel;
        const int lum = int(luminance(pixelAt(pixel)));
        counts[lum]++;
        lowest = lum < lowest ? lum : lowest;
        highest = lum > highest ? lum : highest;
    }
    for (int k = 0; k <= highest; k++)
        hist->add(counts[k]);
    *minLum = highest < 0 ? 0 : lowest;
}

void CharImage::fillHistogram(
    float lowFraction, float highFraction, float lowLevel, float highLevel, bool clampToLowLevel, bool clampToHighLevel)
{
    const Levels levels =
        levelsOf(*this, lowFraction, highFraction, lowLevel, highLevel, clampToLowLevel, clampToHighLevel);
    forEachPixel(*this, [=](Rgb c) { return eachChannel(c, levels); });
}
