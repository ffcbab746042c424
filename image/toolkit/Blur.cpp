// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/toolkit/Blur.h"

#include "image/CharImage.h"
#include "image/numbers/Arithmetic.h"
#include "image/toolkit/BlurKernel.h"
#include "image/toolkit/BlurRows.h"
#include "image/toolkit/Kernel.h"

#include <algorithm>
#include <vector>

namespace lumora {

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

/// The blur as it is defined, for weights that whole numbers do not cover.
void blurInFloats(CharImage& image, const GrowArray<float>& weights)
{
    CharImage pass(image);
    const std::size_t pixel = std::size_t(image.bytesPerPixel), row = pixel * image.width;
    blurLines(image.data, pass.data, weights, image.width, pixel, image.height, row);
    blurLines(pass.data, image.data, weights, image.height, row, image.width, pixel);
}

/// The rows that are blurred across and wait to be blurred down, all channels of a row side by side. The oldest makes
/// way for the newest.
class WaitingRows {
public:
    const int height;
    const std::size_t length; ///< bytes of a row

    WaitingRows(const CharImage& image, int channels, int radius)
        : height(image.height)
        , length(std::size_t(image.width) * channels)
        , m_kept(std::size_t(std::min(2 * radius + 2, height)))
        , m_bytes(m_kept * length)
    {
    }

    unsigned char* operator[](int y) { return &m_bytes[std::size_t(y) % m_kept * length]; }
    /// The rows beyond the first and the last are these again.
    const unsigned char* clamped(int y) { return (*this)[std::clamp(y, 0, height - 1)]; }

private:
    const std::size_t m_kept;
    std::vector<unsigned char> m_bytes;
};

/// The blur of any weights: every tap of every pixel is weighed.
class WeightedBlur {
public:
    WeightedBlur(const BlurKernel& kernel, const WaitingRows& waiting)
        : m_kernel(kernel)
        , m_rows(kernel.taps.size())
        , m_result(waiting.length)
    {
    }

    void across(unsigned char* padded, int width, unsigned char* to)
    {
        for (std::size_t t = 0; t < m_rows.size(); t++)
            m_rows[t] = padded + m_kernel.radius + m_kernel.taps[t].offset;
        weighRows(m_kernel.taps, m_rows.data(), std::size_t(width), to);
    }

    const unsigned char* down(WaitingRows& waiting, int y)
    {
        for (std::size_t t = 0; t < m_rows.size(); t++)
            m_rows[t] = waiting.clamped(y + m_kernel.taps[t].offset);
        weighRows(m_kernel.taps, m_rows.data(), m_result.size(), m_result.data());
        return m_result.data();
    }

private:
    const BlurKernel& m_kernel;
    std::vector<const unsigned char*> m_rows;
    std::vector<unsigned char> m_result;
};

/// The blur of equal weights: a byte's share is the same at every tap, and sums of shares move along.
class BoxBlur {
public:
    BoxBlur(const BlurKernel& kernel, const WaitingRows& waiting)
        : m_radius(kernel.radius)
        , m_multiplier(kernel.taps[0].multiplier)
        , m_sums(waiting.length)
    {
    }

    /// Leaves the shares of the second pass.
    void across(unsigned char* padded, int width, unsigned char* to)
    {
        takeShares(padded, std::size_t(width) + 2 * std::size_t(m_radius), m_multiplier);
        sumWindows(padded, std::size_t(width), 2 * m_radius + 1, to);
        takeShares(to, std::size_t(width), m_multiplier);
    }

    const unsigned char* down(WaitingRows& waiting, int y)
    {
        // The first row, too, is made from the sums of the row before it: those stand above the picture.
        for (int offset = -m_radius; y == 0 && offset <= m_radius; offset++)
            addRow(m_sums.data(), waiting.clamped(offset - 1), m_sums.size());
        replaceRow(m_sums.data(), waiting.clamped(y - 1 - m_radius), waiting.clamped(y + m_radius), m_sums.size());
        return m_sums.data();
    }

private:
    const int m_radius;
    const std::uint16_t m_multiplier;
    std::vector<unsigned char> m_sums;
};

/// Both passes in one walk down the image: a row is blurred across as soon as a row above needs it, and overwritten in
/// place once all that it goes into is at hand. `makeRow(y)` is called before a row is read.
template <class Blur>
void blurRows(CharImage& image, const BlurKernel& kernel, int channels, const std::function<void(int)>& makeRow)
{
    const int width = image.width, height = image.height, radius = kernel.radius;
    WaitingRows waiting(image, channels, radius);
    std::vector<unsigned char> padded(std::size_t(width) + 2 * std::size_t(radius));
    Blur blur(kernel, waiting);
    const auto pixels = [&](int y) { return image.data + std::size_t(y) * width * 4; };
    int ready = 0;
    for (int y = 0; y < height; y++) {
        for (; ready < std::min(y + radius + 1, height); ready++) {
            makeRow(ready);
            for (int channel = 0; channel < channels; channel++) {
                takeChannel(pixels(ready), channel, width, radius, padded.data());
                blur.across(padded.data(), width, waiting[ready] + std::size_t(channel) * width);
            }
        }
        const unsigned char* red = blur.down(waiting, y);
        const std::size_t toNext = channels == 1 ? 0 : std::size_t(width);
        storeChannels(red, red + toNext, red + 2 * toNext, width, pixels(y));
    }
}

/// `makeRow(y)` is called for each row, from the top, before it is read.
void blurChannels(CharImage& image, int channels, int size, float exponent, const std::function<void(int)>& makeRow)
{
    GrowArray<float> weights;
    fillKernel(weights, size, exponent, true);
    const BlurKernel kernel(weights);
    if (kernel.whole)
        return kernel.box ? blurRows<BoxBlur>(image, kernel, channels, makeRow)
                          : blurRows<WeightedBlur>(image, kernel, channels, makeRow);
    for (int y = 0; y < image.height; y++)
        makeRow(y);
    blurInFloats(image, weights);
}

} // namespace

void CharImage::makeBlurry(int size, float exponent)
{
    // A neutral picture is blurred once for all its channels.
    if (pixelCount() > 0)
        blurChannels(*this, isNeutral(*this) ? 1 : 3, size, exponent, [](int) {});
}

void blurNeutralRows(CharImage& image, int size, float exponent, const std::function<void(int y)>& makeRow)
{
    if (image.pixelCount() > 0)
        blurChannels(image, 1, size, exponent, makeRow);
}

} // namespace lumora
