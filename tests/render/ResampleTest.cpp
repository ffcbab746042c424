// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/Resample.h"
#include "tests/reference/Picture.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <utility>

namespace {

/// How much the source pixel `from` counts in the output pixel `to` of one side, taken from the definition: the overlap
/// with its area where the side shrinks, the distance of the centres where it grows.
double share(int from, int to, int sourceSize, double start, double size)
{
    const double scale = sourceSize / size;
    if (scale > 1.0) {
        const double begin = std::max((to - start) * scale, 0.0);
        const double end = std::min((to + 1 - start) * scale, double(sourceSize));
        return std::max(0.0, std::min(end, from + 1.0) - std::max(begin, double(from))) / (end - begin);
    }
    const double position = std::clamp((to + 0.5 - start) * scale - 0.5, 0.0, sourceSize - 1.0);
    return std::max(0.0, 1.0 - std::fabs(position - from));
}

double literal(const Picture& source, const PlacedRect& rect, int x, int y, int channel)
{
    double sum = 0.0;
    for (int j = 0; j < source.height; j++)
        for (int i = 0; i < source.width; i++)
            sum += share(i, x, source.width, rect.x, rect.width) * share(j, y, source.height, rect.y, rect.height)
                * source.at(i, j)[channel];
    return sum;
}

Picture drawn(const Picture& source, const PlacedRect& rect, bool nearest, int width, int height)
{
    Picture out = flatPicture(width, height, 1, 2, 3);
    const PixelRows rows{source.pixels.data(), std::size_t(source.width) * 4, source.width, source.height};
    drawScaled(rows, rect, nearest, out.pixels.data(), width, height);
    return out;
}

/// Holds every pixel of the drawing to the definition. A sum is good to a 256th of a step for each of its taps, of
/// which there are `taps` in both directions together at most, unless they are so many that more bits are taken.
void expectWeighed(const Picture& source, const PlacedRect& rect, int width, int height, int taps)
{
    const Picture out = drawn(source, rect, false, width, height);
    for (int y = 0; y < height; y++)
        for (int x = 0; x < width; x++)
            for (int k = 0; k < 4; k++)
                ASSERT_NEAR(out.at(x, y)[k], literal(source, rect, x, y, k), 0.501 + taps / 256.0)
                    << source.width << " x " << source.height << " into " << rect.width << " x " << rect.height
                    << " at " << x << ", " << y;
}

} // namespace

TEST(Resample, WeighsThePixelsOfEachSide)
{
    const std::pair<int, int> sizes[] = {{1, 1}, {2, 1}, {1, 9}, {2, 2}, {13, 7}, {8, 30}, {40, 21}};
    const PlacedRect rects[] = {{0, 0, 20, 16}, {-5, 0, 30, 16}, {0, -7, 20, 31}, {-0.5, -0.5, 21, 17},
        {-90, -2, 200, 20}, {0, -150, 20, 316}, {0, 0, 20, 99}};
    for (const auto& [width, height] : sizes)
        for (const PlacedRect& rect : rects)
            expectWeighed(randomPicture(width, height, 7), rect, 20, 16, 6);
}

TEST(Resample, WeighsManyPixelsWell)
{
    expectWeighed(randomPicture(60, 45, 7), {0, 0, 4, 3}, 4, 3, 32);
    expectWeighed(randomPicture(70, 3, 7), {0, 0, 4, 3}, 4, 3, 0);
    expectWeighed(randomPicture(3, 900, 7), {0, 0, 4, 7}, 4, 7, 0);
}

TEST(Resample, LeavesTheRestAlone)
{
    const Picture source = randomPicture(9, 5, 3, 100, 255);
    for (const bool nearest : {false, true}) {
        const Picture out = drawn(source, {3.5, 2.0, 12.0, 6.5}, nearest, 20, 12);
        for (int y = 0; y < 12; y++)
            for (int x = 0; x < 20; x++) {
                const bool touched = x >= 3 && x < 16 && y >= 2 && y < 9;
                EXPECT_EQ(out.at(x, y)[0] >= 100, touched) << x << ", " << y;
            }
        EXPECT_EQ(drawn(source, {20.0, 0.0, 5.0, 5.0}, nearest, 20, 12).pixels, flatPicture(20, 12, 1, 2, 3).pixels);
    }
}

TEST(Resample, RowsByThemselvesAreThoseOfTheWhole)
{
    constexpr int width = 12, height = 20;
    const PlacedRect rects[] = {{0, 0, 12, 20}, {-5, -3, 30, 41}, {0, 3.5, 12, 9.5}, {-0.5, -0.3, 13, 21},
        {1, 2, 10, 14}, {0, 0, 12, 4}, {0, 30, 12, 4}};
    for (const auto& [sourceWidth, sourceHeight] : {std::pair(10, 14), std::pair(3, 900), std::pair(7, 5)}) {
        const Picture source = randomPicture(sourceWidth, sourceHeight, 7);
        const PixelRows rows{source.pixels.data(), std::size_t(source.width) * 4, source.width, source.height};
        for (const PlacedRect& rect : rects)
            for (const bool nearest : {false, true}) {
                const Picture whole = drawn(source, rect, nearest, width, height);
                Picture strips = flatPicture(width, height, 1, 2, 3);
                for (int y = 0; y < height; y += 3)
                    drawScaledRows(rows, rect, nearest, strips.pixels.data() + std::size_t(y) * width * 4, width,
                        height, y, std::min(3, height - y));
                EXPECT_EQ(strips.pixels, whole.pixels) << rect.y << ", " << rect.height << ", " << sourceHeight;
            }
    }
}

TEST(Resample, OneColourStaysThatColour)
{
    for (const int width : {3, 5, 40, 60000}) {
        const Picture out = drawn(flatPicture(width, 3, 255, 0, 254), {0, 0, 3.3, 2.2}, false, 3, 2);
        for (int x = 0; x < 3; x++) {
            EXPECT_EQ(out.at(x, 1)[0], 255);
            EXPECT_EQ(out.at(x, 1)[1], 0);
            EXPECT_EQ(out.at(x, 1)[2], 254);
        }
    }
}
