#include "image/CharImage.h"
#include "image/toolkit/Kernel.h"
#include "image/toolkit/PixelPass.h"

#include <algorithm>
#include <cstdio>
#include <limits>
#include <vector>

namespace {

/// One value per column of a row, worked on in whole blocks: what stands beyond the last column is never used. The
/// row's first and last values repeat over a margin before and after it.
class WideRow {
public:
    WideRow(int width, int margin)
        : m_width(std::size_t(width))
        , m_margin(std::size_t(margin))
        , m_values(2 * m_margin + (m_width + blockPixels - 1) / blockPixels * blockPixels)
    {
    }

    /// From the first column on; the margin stands before it.
    float* columns() { return m_values.data() + m_margin; }
    const float* columns() const { return m_values.data() + m_margin; }

    void repeatEnds()
    {
        std::fill_n(columns() - m_margin, m_margin, columns()[0]);
        std::fill_n(columns() + m_width, m_margin, columns()[m_width - 1]);
    }

private:
    std::size_t m_width, m_margin;
    std::vector<float> m_values;
};

/// The rows of a picture that a pass down it needs at a time, each in the place of one that it no longer needs.
class RollingRows {
public:
    RollingRows(int count, int width, int height, int margin)
        : m_lastRow(height - 1)
        , m_rows(std::size_t(std::min(count, height)), WideRow(width, margin))
    {
    }

    /// The edge rows repeat beyond the picture.
    WideRow& operator[](long long y)
    {
        return m_rows[std::size_t(std::clamp<long long>(y, 0, m_lastRow)) % m_rows.size()];
    }

private:
    int m_lastRow;
    std::vector<WideRow> m_rows;
};

void fillLuminances(const CharImage& image, int y, WideRow& row)
{
    const unsigned char* pixels = image.data + std::size_t(y) * image.width * 4;
    Block block;
    for (int x = 0; x < image.width; x += blockPixels) {
        block.read(pixels + std::size_t(x) * 4, std::min(blockPixels, image.width - x));
        block.fillPlanes();
        Plane luminances;
        for (int i = 0; i < blockPixels; i++)
            luminances.at[i] = luminance(block.colour(i));
        std::memcpy(row.columns() + x, luminances.at, sizeof luminances.at);
    }
    row.repeatEnds();
}

/// The Sobel strengths of a block, from the luminances around it: each row starts with the column before the block.
Plane sobelStrengths(const float* above, const float* beside, const float* below)
{
    Plane strengths;
    for (int i = 0; i < blockPixels; i++) {
        const float a = above[i], b = above[i + 1], c = above[i + 2];
        const float d = beside[i], f = beside[i + 2];
        const float g = below[i], h = below[i + 1], k = below[i + 2];
        const float across = c - a - 2.0f * d + 2.0f * f - g + k;
        const float down = -a - 2.0f * b - c + g + 2.0f * h + k;
        strengths.at[i] = std::sqrt(down * down + across * across);
    }
    return strengths;
}

void storeClamped(const Plane& values, unsigned char* to, int count)
{
    unsigned char bytes[blockPixels];
    for (int i = 0; i < blockPixels; i++)
        bytes[i] = static_cast<unsigned char>(truncateAndClamp(values.at[i]));
    std::memcpy(to, bytes, std::size_t(count));
}

/// Takes weighted sums of values that lie apart: of neighbours in a row, or of a column's values in several rows.
class Smoothing {
public:
    Smoothing(const GrowArray<float>& kernel, float threshold)
        : weights(kernel)
        , m_limit(threshold > 0.0f ? threshold : std::numeric_limits<float>::infinity())
        , m_sources(std::size_t(kernel.numThings))
    {
    }

    int radius() const { return (weights.numThings - 1) / 2; }

    /// Weight `j` belongs to the values from `values` on.
    void setSource(int j, const float* values) { m_sources[std::size_t(j)] = values; }

    /// The new bytes, as floats, of the block whose first value stands `x` after the sources' starts.
    Plane smoothed(std::size_t x) const
    {
        // Several weights in one go spare the sums ways to memory and back. A kernel has an odd number of weights,
        // three at least.
        Plane sum;
        const float w0 = weights.theArray[0], w1 = weights.theArray[1], w2 = weights.theArray[2];
        const float *const v0 = m_sources[0] + x, *const v1 = m_sources[1] + x, *const v2 = m_sources[2] + x;
        for (int i = 0; i < blockPixels; i++)
            sum.at[i] = v0[i] * w0 + v1[i] * w1 + v2[i] * w2;
        for (int j = 3; j < weights.numThings; j += 2) {
            const float w = weights.theArray[j], next = weights.theArray[j + 1];
            const float *const v = m_sources[std::size_t(j)] + x, *const after = m_sources[std::size_t(j) + 1] + x;
            for (int i = 0; i < blockPixels; i++)
                sum.at[i] = sum.at[i] + v[i] * w + after[i] * next;
        }
        return settled(sum, m_sources[std::size_t(radius())] + x);
    }

private:
    const GrowArray<float>& weights;
    float m_limit;
    std::vector<const float*> m_sources;

    /// Sums become bytes; a value that would change too much stays as it was.
    Plane settled(const Plane& sum, const float* values) const
    {
        Plane bytes;
        for (int i = 0; i < blockPixels; i++) {
            const float value = values[i], change = float(truncateToInt(sum.at[i] - value));
            const float smooth = float(truncateToInt(sum.at[i]) & 255);
            const bool keeps = (change > m_limit) | (change < -m_limit);
            bytes.at[i] = keeps ? value : smooth;
        }
        return bytes;
    }
};

} // namespace

void CharImage::fillEdgeDetectMap(unsigned char* map) const
{
    if (pixelCount() == 0)
        return;
    RollingRows rows(3, width, height, 1);
    fillLuminances(*this, 0, rows[0]);
    for (int y = 0; y < height; y++) {
        if (y + 1 < height)
            fillLuminances(*this, y + 1, rows[y + 1]);
        const float* const above = rows[y - 1LL].columns() - 1;
        const float* const beside = rows[y].columns() - 1;
        const float* const below = rows[y + 1LL].columns() - 1;
        for (int x = 0; x < width; x += blockPixels)
            storeClamped(sobelStrengths(above + x, beside + x, below + x), map + std::size_t(y) * width + x,
                std::min(blockPixels, width - x));
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
    Smoothing smoothing(weights, threshold);
    const int radius = smoothing.radius();
    WideRow row(width, radius);
    RollingRows rows(weights.numThings, width, height, 0);
    // A row is smoothed along as soon as the pass downwards needs it, always ahead of the row that is written.
    int next = 0;
    for (int y = 0; y < height; y++) {
        for (; next < height && next - y <= radius; next++) {
            std::copy_n(map + std::size_t(next) * width, width, row.columns());
            row.repeatEnds();
            for (int j = 0; j < weights.numThings; j++)
                smoothing.setSource(j, row.columns() + radius - j);
            for (int x = 0; x < width; x += blockPixels) {
                const Plane along = smoothing.smoothed(std::size_t(x));
                std::memcpy(rows[next].columns() + x, along.at, sizeof along.at);
            }
        }
        for (int j = 0; j < weights.numThings; j++)
            smoothing.setSource(j, rows[(long long)y + radius - j].columns());
        for (int x = 0; x < width; x += blockPixels)
            storeClamped(
                smoothing.smoothed(std::size_t(x)), map + std::size_t(y) * width + x, std::min(blockPixels, width - x));
    }
}
