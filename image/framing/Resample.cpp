#include "image/framing/Resample.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace {

/// The source pixels that make one output row or column: `count` from `first` on.
struct Taps {
    int first, count;
};

/// One side of a drawing: the taps of the output pixels `begin` .. `begin` + taps.size() - 1, and one after the other
/// the weights of all of them, which sum up to 1 for each output pixel.
struct Side {
    int begin = 0;
    std::vector<Taps> taps;
    std::vector<float> weights;

    void add(int first, std::initializer_list<double> values)
    {
        taps.push_back({first, int(values.size())});
        weights.insert(weights.end(), values.begin(), values.end());
    }

    /// The source pixels from `from` to `to`, those at the ends by the part that is covered.
    void addArea(double from, double to)
    {
        const int first = int(from), last = std::max(int(std::ceil(to)), first + 1);
        taps.push_back({first, last - first});
        for (int pixel = first; pixel < last; pixel++)
            weights.push_back(float((std::min(to, pixel + 1.0) - std::max(from, double(pixel))) / (to - from)));
    }
};

Side planSide(int sourceSize, double start, double size, int outSize, bool nearest)
{
    Side side;
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

unsigned char rounded(float channel)
{
    const int value = int(channel + 0.5f); // many weights may sum up to a little more than 1
    return static_cast<unsigned char>(value < 255 ? value : 255);
}

/// The channels of a pixel, worked on by one instruction.
using Pixel = float __attribute__((vector_size(16)));

Pixel pixelAt(const float* floats)
{
    Pixel pixel;
    std::memcpy(&pixel, floats, sizeof pixel);
    return pixel;
}

/// One row of the output's width from one of the source's, as floats.
class Across {
public:
    explicit Across(const Side& side)
        : m_side(side)
    {
        for (const Taps& column : side.taps)
            m_inPairs &= column.count == 2;
    }
    /// Bytes of a source row before the first and up to the last one in use, and the channels of an output row.
    std::size_t firstByte() const { return std::size_t(m_side.taps.front().first) * 4; }
    std::size_t endByte() const { return std::size_t(m_side.taps.back().first + m_side.taps.back().count) * 4; }
    std::size_t channels() const { return m_side.taps.size() * 4; }

    void sum(const std::vector<float>& row, std::vector<float>& line) const
    {
        m_inPairs ? sumTaps<2>(row, line) : sumTaps<0>(row, line);
    }

private:
    /// `count` is the number of taps of every column, 0 where they differ.
    template <int count> void sumTaps(const std::vector<float>& row, std::vector<float>& line) const
    {
        const int firstColumn = m_side.taps.front().first;
        const float* weights = m_side.weights.data();
        float* out = line.data();
        for (const Taps& column : m_side.taps) {
            const float* pixels = row.data() + std::size_t(column.first - firstColumn) * 4;
            const int taps = count > 0 ? count : column.count;
            Pixel colour = weights[0] * pixelAt(pixels);
            for (int tap = 1; tap < taps; tap++)
                colour += weights[tap] * pixelAt(pixels + 4 * tap);
            std::memcpy(out, &colour, sizeof colour);
            weights += taps;
            out += 4;
        }
    }

    const Side& m_side;
    bool m_inPairs = true;
};

/// The source's rows brought to the output's width. The last two are kept: rows that grow in number are made of the
/// same pair several times.
class Lines {
public:
    Lines(const PixelRows& source, const Across& across)
        : m_source(source)
        , m_across(across)
        , m_row(across.endByte() - across.firstByte())
    {
        for (Kept& kept : m_kept)
            kept.line.resize(across.channels());
    }

    const float* at(int y)
    {
        Kept& kept = m_kept[y % 2];
        if (kept.y != y) {
            const unsigned char* bytes = m_source.row(y) + m_across.firstByte();
            for (std::size_t k = 0; k < m_row.size(); k++)
                m_row[k] = bytes[k];
            m_across.sum(m_row, kept.line);
            kept.y = y;
        }
        return kept.line.data();
    }

private:
    struct Kept {
        int y = -1;
        std::vector<float> line;
    };
    const PixelRows& m_source;
    const Across& m_across;
    std::vector<float> m_row;
    Kept m_kept[2];
};

void drawPair(const float* upper, const float* lower, float upperWeight, float lowerWeight, std::size_t channels,
    unsigned char* out)
{
    for (std::size_t k = 0; k < channels; k++)
        out[k] = rounded(upperWeight * upper[k] + lowerWeight * lower[k]);
}

/// The weighted sum of the source rows that make one output row, from the byte `first` of a row on.
void sumDown(
    const PixelRows& source, const Taps& row, const float* weights, std::size_t first, std::vector<float>& sums)
{
    const unsigned char* top = source.row(row.first) + first;
    for (std::size_t k = 0; k < sums.size(); k++)
        sums[k] = weights[0] * top[k];
    for (int tap = 1; tap < row.count; tap++) {
        const unsigned char* bytes = source.row(row.first + tap) + first;
        const float weight = weights[tap];
        for (std::size_t k = 0; k < sums.size(); k++)
            sums[k] += weight * bytes[k];
    }
}

} // namespace

void drawScaled(
    const PixelRows& source, const PlacedRect& rect, bool nearest, unsigned char* out, int outWidth, int outHeight)
{
    const bool outside = rect.x >= outWidth || rect.y >= outHeight || rect.x + rect.width <= 0.0
        || rect.y + rect.height <= 0.0 || rect.width <= 0.0 || rect.height <= 0.0;
    if (outside)
        return;
    if (rect.width == source.width && rect.height == source.height && isWhole(rect.x) && isWhole(rect.y)) {
        copyRows(source, int(rect.x), int(rect.y), out, outWidth, outHeight);
        return;
    }
    const Side columns = planSide(source.width, rect.x, rect.width, outWidth, nearest);
    const Side rows = planSide(source.height, rect.y, rect.height, outHeight, nearest);

    const Across across(columns);
    const auto forEachRow = [&](auto draw) {
        const float* weights = rows.weights.data();
        unsigned char* outRow = out + (std::size_t(rows.begin) * outWidth + columns.begin) * 4;
        for (const Taps& row : rows.taps) {
            draw(row, weights, outRow);
            weights += row.count;
            outRow += std::size_t(outWidth) * 4;
        }
    };
    if (rect.height >= source.height) {
        Lines lines(source, across);
        forEachRow([&](const Taps& row, const float* weights, unsigned char* outRow) {
            const int last = row.count - 1; // 0 or 1
            drawPair(lines.at(row.first), lines.at(row.first + last), weights[0], last * weights[last],
                across.channels(), outRow);
        });
        return;
    }
    // Fewer rows: down first, so that there is less to bring to the output's width.
    std::vector<float> sums(across.endByte() - across.firstByte()), line(across.channels());
    forEachRow([&](const Taps& row, const float* weights, unsigned char* outRow) {
        sumDown(source, row, weights, across.firstByte(), sums);
        across.sum(sums, line);
        std::transform(line.begin(), line.end(), outRow, rounded);
    });
}
