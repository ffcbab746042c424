// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/Resample.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <numeric>
#include <type_traits>
#include <vector>

namespace {

/// The source pixels that make one output row or column: `count` from `first` on.
struct Taps {
    int first, count;
};

/// One side of a drawing: the taps of the output pixels `begin` .. `begin` + taps.size() - 1, and one after the other
/// the weights of all of them, which sum up to 1 for each output pixel.
struct Side {
    int begin = 0, mostTaps = 1;
    bool grows = false;
    std::vector<Taps> taps;
    std::vector<double> weights;

    void add(int first, std::initializer_list<double> values)
    {
        weights.insert(weights.end(), values);
        addTaps(first, int(values.size()));
    }

    /// The source pixels from `from` to `to`, those at the ends by the part that is covered.
    void addArea(double from, double to)
    {
        const int first = int(from), last = std::max(int(std::ceil(to)), first + 1);
        for (int pixel = first; pixel < last; pixel++)
            weights.push_back((std::min(to, pixel + 1.0) - std::max(from, double(pixel))) / (to - from));
        addTaps(first, last - first);
    }

    /// Leaves the output pixels `from` .. `to` - 1, and counts them from `from`.
    void keepOnly(int from, int to)
    {
        const int size = int(taps.size()), skipped = std::clamp(from - begin, 0, size);
        const int end = std::clamp(to - begin, skipped, size);
        const auto weightsOf = [&](int first, int last) {
            return std::accumulate(taps.begin() + first, taps.begin() + last, std::ptrdiff_t(0),
                [](std::ptrdiff_t sum, const Taps& pixel) { return sum + pixel.count; });
        };
        const std::ptrdiff_t firstWeight = weightsOf(0, skipped), weightCount = weightsOf(skipped, end);
        weights.erase(weights.begin() + firstWeight + weightCount, weights.end());
        weights.erase(weights.begin(), weights.begin() + firstWeight);
        taps.erase(taps.begin() + end, taps.end());
        taps.erase(taps.begin(), taps.begin() + skipped);
        begin = std::max(begin - from, 0);
    }

private:
    void addTaps(int first, int count)
    {
        taps.push_back({first, count});
        mostTaps = std::max(mostTaps, count);
    }
};

Side planSide(int sourceSize, double start, double size, int outSize, bool nearest)
{
    Side side;
    side.grows = size >= sourceSize;
    const double scale = sourceSize / size, last = sourceSize - 1;
    side.begin = int(std::max(std::floor(start), 0.0));
    const int end = int(std::min(std::ceil(start + size), double(outSize)));
    for (int i = side.begin; i < end; i++) {
        const double centre = (i + 0.5 - start) * scale;
        if (nearest) {
            side.add(int(std::clamp(std::floor(centre), 0.0, last)), {1.0});
        } else if (scale > 1.0) {
            side.addArea(std::clamp((i - start) * scale, 0.0, last),
                std::clamp((i + 1 - start) * scale, 0.0, double(sourceSize)));
        } else {
            // Always a pair of pixels, the last ones beyond the last centre.
            const double position = std::clamp(centre - 0.5, 0.0, last);
            const double left = std::min(std::floor(position), last - 1);
            if (sourceSize > 1)
                side.add(int(left), {1.0 - (position - left), position - left});
            else
                side.add(0, {1.0});
        }
    }
    return side;
}

bool isWhole(double value)
{
    return value == std::floor(value);
}

void copyRows(const PixelRows& source, int x, int y, unsigned char* out, int outWidth, int outHeight)
{
    const int left = std::max(x, 0), right = std::min(x + source.width, outWidth);
    if (left >= right)
        return;
    for (int row = std::max(y, 0); row < std::min(y + source.height, outHeight); row++)
        std::memcpy(out + (std::size_t(row) * outWidth + left) * 4, source.row(row - y) + std::size_t(left - x) * 4,
            std::size_t(right - left) * 4);
}

// Channels and weights are fractions of a whole, in fixed point: `Value` is an unsigned integer of 16 or 32 bits, all
// of them behind the point. A product is cut off, so that a sum falls short by less than a last bit for each of its
// taps.

template <class Value> constexpr int bitsOf = std::numeric_limits<Value>::digits;

template <class Value> Value ofByte(unsigned char byte)
{
    return static_cast<Value>(Value(byte) << (bitsOf<Value> - 8));
}

template <class Value> Value weightOf(double share)
{
    constexpr double largest = std::numeric_limits<Value>::max();
    return static_cast<Value>(std::min(share * (largest + 1.0) + 0.5, largest));
}

template <class Value> Value times(Value value, Value weight)
{
    using Product = std::conditional_t<sizeof(Value) == 2, std::uint32_t, std::uint64_t>;
    return static_cast<Value>(Product(value) * weight >> bitsOf<Value>);
}

/// What is added before a sum is cut to a byte: half a step, and half of what may have been lost on the way.
template <class Value> Value roundingOf(const Side& columns, const Side& rows)
{
    return static_cast<Value>((Value(1) << (bitsOf<Value> - 9)) + (columns.mostTaps + rows.mostTaps) / 2);
}

template <class Value> unsigned char rounded(Value value, Value rounding)
{
    return static_cast<unsigned char>(static_cast<Value>(value + rounding) >> (bitsOf<Value> - 8));
}

/// One row of the output's width from one of the source's.
template <class Value> class Across {
public:
    explicit Across(const Side& side)
        : m_side(side)
        , m_pairs((side.mostTaps + 1) / 2)
    {
        // As many pairs of taps for every column, and each weight once for each channel.
        m_firstChannels.reserve(side.taps.size());
        m_weights.reserve(side.taps.size() * m_pairs * 8);
        const double* weights = side.weights.data();
        for (const Taps& column : side.taps) {
            m_firstChannels.push_back(column.first * 4 - int(firstByte()));
            for (int tap = 0; tap < 2 * m_pairs; tap++)
                m_weights.insert(m_weights.end(), 4, tap < column.count ? weightOf<Value>(weights[tap]) : Value(0));
            weights += column.count;
        }
    }
    /// Bytes of a source row before the first one in use, the channels in use, and those of an output row.
    std::size_t firstByte() const { return std::size_t(m_side.taps.front().first) * 4; }
    std::size_t sourceChannels() const
    {
        return std::size_t(m_side.taps.back().first + m_side.taps.back().count) * 4 - firstByte();
    }
    std::size_t channels() const { return m_side.taps.size() * 4; }

    /// Room for the channels in use of a source row, and for as many more as the last pairs may reach beyond them.
    std::vector<Value> sourceRow() const { return std::vector<Value>(sourceChannels() + std::size_t(m_pairs) * 8); }

    void sum(const std::vector<Value>& row, std::vector<Value>& line) const
    {
        m_pairs == 1 ? sumPairs<1>(row, line) : m_pairs == 2 ? sumPairs<2>(row, line) : sumPairs<0>(row, line);
    }

private:
    /// `fixedPairs` is the number of pairs, 0 for any.
    template <int fixedPairs> void sumPairs(const std::vector<Value>& row, std::vector<Value>& line) const
    {
        const int pairs = fixedPairs > 0 ? fixedPairs : m_pairs;
        const Value* weights = m_weights.data();
        Value* out = line.data();
        for (const int first : m_firstChannels) {
            const Value* pixels = row.data() + first;
            Value sums[8] = {};
            for (int pair = 0; pair < pairs; pair++) {
#pragma GCC unroll 1 // written out these would not become vector code
                for (int k = 0; k < 8; k++)
                    sums[k] = static_cast<Value>(sums[k] + times(pixels[k], weights[k]));
                pixels += 8;
                weights += 8;
            }
#pragma GCC unroll 1
            for (int k = 0; k < 4; k++)
                out[k] = static_cast<Value>(sums[k] + sums[k + 4]);
            out += 4;
        }
    }

    const Side& m_side;
    int m_pairs;
    std::vector<int> m_firstChannels; ///< of the columns' taps, among those in use
    std::vector<Value> m_weights;
};

/// The source's rows brought to the output's width. The last two are kept: rows that grow in number are made of the
/// same pair several times.
template <class Value> class Lines {
public:
    Lines(const PixelRows& source, const Across<Value>& across)
        : m_source(source)
        , m_across(across)
        , m_row(across.sourceRow())
    {
        for (Kept& kept : m_kept)
            kept.line.resize(across.channels());
    }

    const Value* at(int y)
    {
        Kept& kept = m_kept[y % 2];
        if (kept.y != y) {
            const unsigned char* bytes = m_source.row(y) + m_across.firstByte();
            std::transform(bytes, bytes + m_across.sourceChannels(), m_row.begin(), ofByte<Value>);
            m_across.sum(m_row, kept.line);
            kept.y = y;
        }
        return kept.line.data();
    }

private:
    struct Kept {
        int y = -1;
        std::vector<Value> line;
    };
    const PixelRows& m_source;
    const Across<Value>& m_across;
    std::vector<Value> m_row;
    Kept m_kept[2];
};

template <class Value>
void drawPair(const Value* upper, const Value* lower, Value upperWeight, Value lowerWeight, Value rounding,
    std::size_t channels, unsigned char* out)
{
    for (std::size_t k = 0; k < channels; k++) {
        const auto sum = static_cast<Value>(times(upper[k], upperWeight) + times(lower[k], lowerWeight));
        out[k] = rounded(sum, rounding);
    }
}

/// The weighted sum of the source rows that make one output row, from the byte `first` of a row on.
template <class Value>
void sumDown(const PixelRows& source, const Taps& row, const Value* weights, std::size_t first, std::size_t channels,
    Value* sums)
{
    constexpr std::size_t part = 4096; // whose sums stay in the first-level cache
    for (std::size_t begin = 0; begin < channels; begin += part) {
        const std::size_t end = std::min(begin + part, channels);
        const unsigned char* top = source.row(row.first) + first;
        for (std::size_t k = begin; k < end; k++)
            sums[k] = times(ofByte<Value>(top[k]), weights[0]);
        for (int tap = 1; tap < row.count; tap++) {
            const unsigned char* bytes = source.row(row.first + tap) + first;
            const Value weight = weights[tap];
            for (std::size_t k = begin; k < end; k++)
                sums[k] = static_cast<Value>(sums[k] + times(ofByte<Value>(bytes[k]), weight));
        }
    }
}

template <class Value>
void draw(const PixelRows& source, const Side& columns, const Side& rows, unsigned char* out, int outWidth)
{
    const Across<Value> across(columns);
    const Value rounding = roundingOf<Value>(columns, rows);
    std::vector<Value> rowWeights(rows.weights.size());
    std::transform(rows.weights.begin(), rows.weights.end(), rowWeights.begin(), weightOf<Value>);
    const auto forEachRow = [&](auto drawRow) {
        const Value* weights = rowWeights.data();
        unsigned char* outRow = out + (std::size_t(rows.begin) * outWidth + columns.begin) * 4;
        for (const Taps& row : rows.taps) {
            drawRow(row, weights, outRow);
            weights += row.count;
            outRow += std::size_t(outWidth) * 4;
        }
    };
    if (rows.grows) {
        Lines<Value> lines(source, across);
        forEachRow([&](const Taps& row, const Value* weights, unsigned char* outRow) {
            const int last = row.count - 1; // 0 or 1
            drawPair(lines.at(row.first), lines.at(row.first + last), weights[0],
                static_cast<Value>(last * weights[last]), rounding, across.channels(), outRow);
        });
        return;
    }
    // Fewer rows: down first, so that there is less to bring to the output's width.
    std::vector<Value> sums = across.sourceRow(), line(across.channels());
    forEachRow([&](const Taps& row, const Value* weights, unsigned char* outRow) {
        sumDown(source, row, weights, across.firstByte(), across.sourceChannels(), sums.data());
        across.sum(sums, line);
        std::transform(line.begin(), line.end(), outRow, [=](Value v) { return rounded(v, rounding); });
    });
}

} // namespace

// Made twice by GCC on Linux, with all that it calls: for every x86-64 processor, and for those with AVX2, where it
// takes a sixth less time. The program takes the one that the processor can run; the bytes are the same.
#if defined(__x86_64__) && defined(__linux__) && !defined(__clang__)
__attribute__((target_clones("avx2", "default"), flatten))
#endif
void drawScaledRows(const PixelRows& source, const PlacedRect& rect, bool nearest, unsigned char* out, int outWidth,
    int outHeight, int firstRow, int rowCount)
{
    const bool outside = rect.x >= outWidth || rect.y >= outHeight || rect.x + rect.width <= 0.0
        || rect.y + rect.height <= 0.0 || rect.width <= 0.0 || rect.height <= 0.0;
    if (outside)
        return;
    if (rect.width == source.width && rect.height == source.height && isWhole(rect.x) && isWhole(rect.y)) {
        copyRows(source, int(rect.x), int(rect.y) - firstRow, out, outWidth, rowCount);
        return;
    }
    const Side columns = planSide(source.width, rect.x, rect.width, outWidth, nearest);
    Side rows = planSide(source.height, rect.y, rect.height, outHeight, nearest);
    rows.keepOnly(firstRow, firstRow + rowCount);
    // The sums of so many taps are good to an eighth of a step in 16 bits.
    constexpr int manyTaps = 17;
    if (columns.mostTaps < manyTaps && rows.mostTaps < manyTaps)
        draw<std::uint16_t>(source, columns, rows, out, outWidth);
    else
        draw<std::uint32_t>(source, columns, rows, out, outWidth);
}

void drawScaled(
    const PixelRows& source, const PlacedRect& rect, bool nearest, unsigned char* out, int outWidth, int outHeight)
{
    drawScaledRows(source, rect, nearest, out, outWidth, outHeight, 0, outHeight);
}
