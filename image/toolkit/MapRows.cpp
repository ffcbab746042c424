// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/toolkit/MapRows.h"

#include "core/SixPlaces.h"
#include "image/CharImage.h"
#include "image/toolkit/Kernel.h"

#include <cstdio>
#include <limits>

namespace lumora {

namespace {

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
        strengths.at[i] = float(truncateAndClamp(std::sqrt(down * down + across * across)));
    }
    return strengths;
}

GrowArray<float> printedKernel(int size, float exponent)
{
    GrowArray<float> weights;
    fillKernel(weights, size, exponent, false);
    if (!CharImage::prints)
        return weights;
    std::printf("%i gauss kernel values\n", weights.numThings);
    for (int i = 0; i < weights.numThings; i++)
        std::printf("   val %s\n", sixPlaces(weights.theArray[i]).c_str());
    return weights;
}

/// A sum as a byte, truncated and wrapped; a value that would change too much stays as it was.
inline float settled(float sum, float value, float keptChange)
{
    const float settling = std::fabs(sum - value) >= keptChange ? value : sum;
    return float(int(settling) & 255);
}

/// The smoothed values of a block, whose values begin `x` after the start of each source. For a fixed number of taps,
/// so that sums need not be stored between them.
template <int taps> void smooth(float* to, const float* const* sources, const float* weights, float keptChange, int x)
{
    const float* values[taps];
    float weight[taps];
    for (int j = 0; j < taps; j++) {
        values[j] = sources[j] + x;
        weight[j] = weights[j];
    }
    Plane smoothed;
    for (int i = 0; i < blockPixels; i++) {
        float sum = values[0][i] * weight[0];
        for (int j = 1; j < taps; j++)
            sum += values[j][i] * weight[j];
        smoothed.at[i] = settled(sum, values[taps / 2][i], keptChange);
    }
    std::memcpy(to, smoothed.at, sizeof smoothed.at);
}

/// The same for any number of weights.
void smooth(float* to, const std::vector<const float*>& sources, const float* weights, float keptChange, int x)
{
    if (sources.size() == 3)
        return smooth<3>(to, sources.data(), weights, keptChange, x);
    if (sources.size() == 9)
        return smooth<9>(to, sources.data(), weights, keptChange, x);
    Plane sums = {};
    for (std::size_t j = 0; j < sources.size(); j++)
        for (int i = 0; i < blockPixels; i++)
            sums.at[i] += sources[j][x + i] * weights[j];
    const float* const values = sources[sources.size() / 2] + x;
    for (int i = 0; i < blockPixels; i++)
        to[i] = settled(sums.at[i], values[i], keptChange);
}

} // namespace

Plane EdgeRows::block(int x, int y)
{
    return sobelStrengths(m_luminances[y - 1LL].columns() + x - 1, m_luminances[y].columns() + x - 1,
        m_luminances[y + 1LL].columns() + x - 1);
}

SmoothedRows::SmoothedRows(int width, int height, int size, float exponent, float threshold, int lag)
    : m_weights(printedKernel(size, exponent))
    , m_keptChange(threshold > 0.0f ? std::floor(threshold) + 1.0f : std::numeric_limits<float>::infinity())
    , m_row(width, delay())
    , m_smoothedAlong(m_weights.numThings + lag, width, height, 0)
    , m_sources(std::size_t(m_weights.numThings))
    , m_width(width)
{
    // Weights that grow beyond floats leave no number in any sum: it counts as 0, and as a change beyond measure.
    if (!std::isfinite(m_weights.theArray[delay()])) {
        std::fill_n(m_weights.theArray, m_weights.numThings, 0.0f);
        m_keptChange = threshold > 0.0f && threshold < 2147483648.0f ? 0.0f : m_keptChange;
    }
}

void SmoothedRows::endRow()
{
    m_row.repeatEnds();
    for (int j = 0; j < m_weights.numThings; j++)
        m_sources[std::size_t(j)] = m_row.columns() + delay() - j;
    for (int x = 0; x < m_width; x += blockPixels)
        smooth(m_smoothedAlong[m_rows].columns() + x, m_sources, m_weights.theArray, m_keptChange, x);
    m_rows++;
}

Plane SmoothedRows::block(int x, int y)
{
    for (int j = 0; j < m_weights.numThings; j++)
        m_sources[std::size_t(j)] = m_smoothedAlong[(long long)y + delay() - j].columns();
    Plane values;
    smooth(values.at, m_sources, m_weights.theArray, m_keptChange, x);
    return values;
}

} // namespace lumora
