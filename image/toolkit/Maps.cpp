#include "image/CharImage.h"
#include "image/toolkit/Kernel.h"
#include "image/toolkit/PixelPass.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

constexpr float horizontalSobel[3][3] = {{-1, 0, 1}, {-2, 0, 2}, {-1, 0, 1}};
constexpr float verticalSobel[3][3] = {{-1, -2, -1}, {0, 0, 0}, {1, 2, 1}};

/// One pass of the smoothing along lines of `length` values that stand `step` apart.
void smoothLines(const unsigned char* from, unsigned char* to, const GrowArray<float>& weights, float threshold,
    int length, std::size_t step, int lines, std::size_t lineStep)
{
    const int radius = (weights.numThings - 1) / 2;
    for (int line = 0; line < lines; line++)
        for (int i = 0; i < length; i++) {
            float sum = 0.0f;
            for (int j = 0; j < weights.numThings; j++) {
                const int source = std::clamp(i + radius - j, 0, length - 1);
                sum += from[line * lineStep + source * step] * weights.theArray[j];
            }
            const unsigned char value = from[line * lineStep + i * step];
            const bool keeps =
                threshold > 0.0f && std::abs(static_cast<long long>(truncateToInt(sum - value))) > threshold;
            to[line * lineStep + i * step] = keeps ? value : truncateAndWrap(sum);
        }
}

} // namespace

void CharImage::fillEdgeDetectMap(unsigned char* map) const
{
    for (int y = 0; y < height; y++)
        for (int x = 0; x < width; x++) {
            float gx = 0.0f, gy = 0.0f;
            for (int v = 0; v < 3; v++)
                for (int u = 0; u < 3; u++) {
                    const int column = std::clamp(x + u - 1, 0, width - 1), row = std::clamp(y + v - 1, 0, height - 1);
                    const float lum = luminance(pixelAt(data + (std::size_t(row) * width + column) * bytesPerPixel));
                    gx += lum * horizontalSobel[v][u];
                    gy += lum * verticalSobel[v][u];
                }
            map[std::size_t(y) * width + x] = truncateAndClamp(std::sqrt(gy * gy + gx * gx));
        }
}

void CharImage::smoothCharMap(unsigned char* map, int width, int height, int size, float exponent, float threshold)
{
    GrowArray<float> weights;
    fillKernel(weights, size, exponent, false);
    std::printf("%i gauss kernel values\n", weights.numThings);
    for (int i = 0; i < weights.numThings; i++)
        std::printf("   val %f\n", weights.theArray[i]);

    if (width < 1 || height < 1)
        return;
    const std::size_t row = std::size_t(width), count = row * height;
    const auto scratch = std::make_unique<unsigned char[]>(count);
    smoothLines(map, scratch.get(), weights, threshold, width, 1, height, row);
    smoothLines(scratch.get(), map, weights, threshold, height, row, width, 1);
}
