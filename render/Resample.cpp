#include "render/Resample.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace {

/// The source pixels that make one output row or column: `count` from `first` on, with weights that sum up to 1.
struct Taps {
    int first, count;
    std::size_t weights; ///< index of the first weight
};

/// One side of a drawing: the taps of the output pixels `begin` .. `begin` + taps.size() - 1.
struct Side {
    int begin = 0;
    std::vector<Taps> taps;
    std::vector<float> weights;

    void add(int first, std::initializer_list<double> values)
    {
        taps.push_back({first, int(values.size()), weights.size()});
        weights.insert(weights.end(), values.begin(), values.end());
    }

    /// The source pixels from `from` to `to`, those at the ends by the part that is covered.
    void addArea(double from, double to)
    {
        const int first = int(from), last = std::max(int(std::ceil(to)), first + 1);
        taps.push_back({first, last - first, weights.size()});
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
            const double position = std::clamp(centre - 0.5, 0.0, last), fraction = position - std::floor(position);
            if (fraction > 0.0)
                side.add(int(position), {1.0 - fraction, fraction});
            else
                side.add(int(position), {1.0});
        }
    }
    return side;
}

bool isWhole(double value)
{
    return value == std::floor(value);
}

void copyRows(const QImage& source, int x, int y, unsigned char* out, int outWidth, int outHeight)
{
    const int left = std::max(x, 0), right = std::min(x + source.width(), outWidth);
    if (left >= right)
        return;
    for (int row = std::max(y, 0); row < std::min(y + source.height(), outHeight); row++)
        std::memcpy(out + (std::size_t(row) * outWidth + left) * 4,
            source.constScanLine(row - y) + std::size_t(left - x) * 4, std::size_t(right - left) * 4);
}

/// The weighted sum of the source rows that make one output row, from the byte `first` of a row on.
void sumDown(const QImage& source, const Side& rows, std::size_t index, std::size_t first, std::vector<float>& sums)
{
    const Taps& row = rows.taps[index];
    const float* weights = rows.weights.data() + row.weights;
    const unsigned char* top = source.constScanLine(row.first) + first;
    for (std::size_t k = 0; k < sums.size(); k++)
        sums[k] = weights[0] * top[k];
    for (int tap = 1; tap < row.count; tap++) {
        const unsigned char* bytes = source.constScanLine(row.first + tap) + first;
        const float weight = weights[tap];
        for (std::size_t k = 0; k < sums.size(); k++)
            sums[k] += weight * bytes[k];
    }
}

/// Four floats that are added and multiplied by one instruction.
using Pixel = float __attribute__((vector_size(16)));

Pixel pixelAt(const float* floats)
{
    Pixel pixel;
    std::memcpy(&pixel, floats, sizeof pixel);
    return pixel;
}

/// The colours of one output row, four floats a pixel and a half above their value, so that truncation rounds them. The
/// spare one is above 255 and becomes that.
void sumAcross(const Side& columns, const float* sums, float* colours)
{
    for (const Taps& column : columns.taps) {
        const float* sum = sums + std::size_t(column.first) * 4;
        const float* weight = columns.weights.data() + column.weights;
        Pixel colour = {0.5f, 0.5f, 0.5f, 255.0f};
        colour += weight[0] * pixelAt(sum);
        for (int tap = 1; tap < column.count; tap++)
            colour += weight[tap] * pixelAt(sum + 4 * tap);
        std::memcpy(colours, &colour, sizeof colour);
        colours += 4;
    }
}

void toBytes(const float* colours, std::size_t count, unsigned char* bytes)
{
    for (std::size_t k = 0; k < count; k++)
        bytes[k] = static_cast<unsigned char>(int(colours[k] < 255.0f ? colours[k] : 255.0f));
}

} // namespace

void drawScaled(
    const QImage& source, const PlacedRect& rect, bool nearest, unsigned char* out, int outWidth, int outHeight)
{
    const bool outside = rect.x >= outWidth || rect.y >= outHeight || rect.x + rect.width <= 0.0
        || rect.y + rect.height <= 0.0 || rect.width <= 0.0 || rect.height <= 0.0;
    if (source.isNull() || outside)
        return;
    if (rect.width == source.width() && rect.height == source.height() && isWhole(rect.x) && isWhole(rect.y)) {
        copyRows(source, int(rect.x), int(rect.y), out, outWidth, outHeight);
        return;
    }
    const Side columns = planSide(source.width(), rect.x, rect.width, outWidth, nearest);
    const Side rows = planSide(source.height(), rect.y, rect.height, outHeight, nearest);

    // Down first, over the source columns in use, then across: each output row is made from one row of sums.
    const std::size_t firstByte = std::size_t(columns.taps.front().first) * 4;
    const std::size_t endByte = std::size_t(columns.taps.back().first + columns.taps.back().count) * 4;
    std::vector<float> sums(endByte - firstByte), colours(columns.taps.size() * 4);
    for (std::size_t i = 0; i < rows.taps.size(); i++) {
        sumDown(source, rows, i, firstByte, sums);
        sumAcross(columns, sums.data() - firstByte, colours.data());
        toBytes(colours.data(), colours.size(), out + ((rows.begin + i) * outWidth + columns.begin) * 4);
    }
}
