#include "image/toolkit/Levels.h"

#include "image/CharImage.h"
#include "image/toolkit/Arithmetic.h"

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

ByteCurve levelsCurve(const GrowArray<int>& histogram, int minLum, float lowFraction, float highFraction,
    float lowLevel, float highLevel, bool clampToLowLevel, bool clampToHighLevel)
{
    const float total = float(sumOf(histogram));
    const int lowIndex = darkCutOff(histogram, total, lowFraction);
    const int highIndex = brightCutOff(histogram, total, highFraction);
    // A flat image makes the scale infinite; what follows is then what the arithmetic gives.
    const float scale = (highLevel - lowLevel) / float(highIndex - lowIndex);
    const float floor = clampToLowLevel ? lowLevel : 0.0f;
    const float ceiling = clampToHighLevel ? highLevel : 255.0f;
    ByteCurve curve;
    for (int c = 0; c < 256; c++) {
        // The darkest sample is subtracted on top of the dark cut-off, which darkens pictures without black: on
        // purpose.
        const float x = scale * float(c - minLum - lowIndex) + lowLevel;
        curve.at[c] = truncateAndWrap(x < floor ? floor : x >= ceiling ? ceiling : x);
    }
    return curve;
}

void CharImage::getHistogram(GrowArray<int>* hist, int* minLum) const
{
    int counts[256] = {};
    int lowest = 255, highest = -1;
    const std::size_t count = pixelCount();
    for (std::size_t i = 0; i + 11 < count; i += 10) {
        const unsigned char* pixel = data + i * bytesPerPixel;
        const int lum = int(luminance({float(pixel[0]), float(pixel[1]), float(pixel[2])}));
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
    GrowArray<int> histogram;
    int minLum;
    getHistogram(&histogram, &minLum);
    const ByteCurve curve = levelsCurve(
        histogram, minLum, lowFraction, highFraction, lowLevel, highLevel, clampToLowLevel, clampToHighLevel);
    const std::size_t count = pixelCount();
    for (std::size_t i = 0; i < count; i++) {
        unsigned char* pixel = data + i * bytesPerPixel;
        pixel[0] = curve.at[pixel[0]];
        pixel[1] = curve.at[pixel[1]];
        pixel[2] = curve.at[pixel[2]];
    }
}
