#include "image/CharImage.h"
#include "image/toolkit/Arithmetic.h"
#include "image/toolkit/Kernel.h"

#include <algorithm>
#include <cstring>
#include <memory>

namespace {

/// One pass along lines of `length` pixels that stand `step` bytes apart; `lines` lines stand `lineStep` bytes apart.
void blurLines(const unsigned char* from, unsigned char* to, const GrowArray<float>& weights, int length,
    std::size_t step, int lines, std::size_t lineStep)
{
    const int radius = (weights.numThings - 1) / 2;
    for (int line = 0; line < lines; line++)
        for (int i = 0; i < length; i++) {
            const std::size_t place = line * lineStep + i * step;
            for (int channel = 0; channel < 3; channel++) {
                // The running sum is cut to a whole value after every tap: the slight darkening is part of the blur.
                unsigned char sum = 0;
                for (int t = 0; t < weights.numThings; t++) {
                    const int source = std::clamp(i + radius - t, 0, length - 1);
                    sum = truncateAndWrap(sum + from[line * lineStep + source * step + channel] * weights.theArray[t]);
                }
                to[place + channel] = sum;
            }
        }
}

} // namespace

void CharImage::makeBlurry(int size, float exponent)
{
    GrowArray<float> weights;
    fillKernel(weights, size, exponent, true);
    CharImage pass(*this);
    const std::size_t pixel = std::size_t(bytesPerPixel), row = pixel * width;
    blurLines(data, pass.data, weights, width, pixel, height, row);
    blurLines(pass.data, data, weights, height, row, width, pixel);
}
