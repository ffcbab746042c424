// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/GrowArray.h"
#include "image/passes/Block.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <vector>

namespace lumora {

// Maps, of one value a pixel, row by row: each row is given once, from the top, and asked for a few rows later. So a
// look carries them along in its one walk over the picture and never holds a whole one. Values are whole numbers of
// 0 .. 255, as floats, in blocks; what stands beyond the last column of a row is never used.

/// Memory that begins a line of the cache, so that no vector lies in two.
template <class T> struct LineAllocator {
    using value_type = T;
    static constexpr std::align_val_t line{64};

    LineAllocator() = default;
    template <class U> LineAllocator(const LineAllocator<U>&) { }

    T* allocate(std::size_t count) { return static_cast<T*>(::operator new(count * sizeof(T), line)); }
    void deallocate(T* memory, std::size_t) { ::operator delete(memory, line); }
    bool operator==(const LineAllocator&) const = default;
};

/// One value per column of a row, in whole blocks. The row's first and last values repeat over a margin before and
/// after it.
class WideRow {
public:
    WideRow(int width, int margin)
        : m_width(std::size_t(std::max(width, 0)))
        , m_margin(std::size_t(margin + lineValues - 1) / lineValues * lineValues)
        , m_values(2 * m_margin + inWholeBlocks(int(m_width)))
    {
    }

    /// From the first column on, which begins a line of the cache; the margin stands before it.
    float* columns() { return m_values.data() + m_margin; }
    const float* columns() const { return m_values.data() + m_margin; }

    void setBlock(int x, const Plane& values) { std::copy_n(values.at, blockPixels, columns() + x); }

    void repeatEnds()
    {
        std::fill_n(columns() - m_margin, m_margin, columns()[0]);
        std::fill_n(columns() + m_width, m_margin, columns()[std::ptrdiff_t(m_width) - 1]);
    }

private:
    static constexpr int lineValues = 16;

    std::size_t m_width, m_margin; ///< the margin in whole lines
    std::vector<float, LineAllocator<float>> m_values;
};

/// The rows of a picture that a pass down it needs at a time, each in the place of one that it no longer needs.
class RollingRows {
public:
    RollingRows(int count, int width, int height, int margin)
        : m_lastRow(height - 1)
        , m_rows(std::size_t(std::clamp(height, 0, count)), WideRow(width, margin))
    {
    }

    /// The edge rows repeat beyond the picture.
    WideRow& operator[](long long y)
    {
        // Divisions of 32 bits take half as long as those of 64.
        return m_rows[std::uint32_t(std::clamp<long long>(y, 0, m_lastRow)) % std::uint32_t(m_rows.size())];
    }

private:
    int m_lastRow;
    std::vector<WideRow> m_rows;
};

/// The strength of the brightness edges.
class EdgeRows {
public:
    /// A row's edges can be had as soon as the next row is there, if there is a next one.
    static constexpr int delay = 1;

    EdgeRows(int width, int height)
        : m_luminances(3, width, height, 1)
    {
    }

    /// Gives the luminances of the block at column `x` of the next row.
    void setBlock(int x, const Plane& luminances) { m_luminances[m_rows].setBlock(x, luminances); }
    /// The next row has all its blocks.
    void endRow() { m_luminances[m_rows++].repeatEnds(); }

    /// The edges of the block at column `x` of row `y`.
    Plane block(int x, int y);

private:
    RollingRows m_luminances;
    int m_rows = 0;
};

/// A map smoothed as CharImage::smoothCharMap does it.
class SmoothedRows {
public:
    /// Prints the kernel to standard output. A row can still be had `lag` rows after its time.
    SmoothedRows(int width, int height, int size, float exponent, float threshold, int lag = 0);

    /// A row can be had as soon as so many rows after it are there, or all that there are.
    int delay() const { return m_weights.numThings / 2; }

    /// Gives the values of the block at column `x` of the next row.
    void setBlock(int x, const Plane& values) { m_row.setBlock(x, values); }
    /// The next row has all its blocks.
    void endRow();

    /// The smoothed values of the block at column `x` of row `y`.
    Plane block(int x, int y);

private:
    GrowArray<float> m_weights;
    float m_keptChange; ///< from which on a value stays as it was
    WideRow m_row;
    RollingRows m_smoothedAlong;
    std::vector<const float*> m_sources;
    int m_width, m_rows = 0;
};

/// Walks down a picture: `give(y)` for each row, and `take(y)` for each as soon as `delay` more rows are given, or all.
template <class Give, class Take> void forEachDelayedRow(int height, int delay, Give give, Take take)
{
    for (int y = 0; y < height + delay; y++) {
        if (y < height)
            give(y);
        if (y >= delay)
            take(y - delay);
    }
}

} // namespace lumora
