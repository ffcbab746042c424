#include "image/framing/Resample.h"
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

} // namespace

TEST(Resample, WeighsThePixelsOfEachSide)
{
    const std::pair<int, int> sizes[] = {{1, 1}, {2, 1}, {1, 9}, {2, 2}, {13, 7}, {8, 30}, {40, 21}};
    const PlacedRect rects[] = {{0, 0, 20, 16}, {-5, 0, 30, 16}, {0, -7, 20, 31}, {-0.5, -0.5, 21, 17},
        {-90, -2, 200, 20}, {0, -150, 20, 316}, {0, 0, 20, 99}};
    for (const auto& [width, height] : sizes)
        for (const PlacedRect& rect : rects) {
            const Picture source = randomPicture(width, height, 7), out = drawn(source, rect, false, 20, 16);
            for (int y = 0; y < 16; y++)
                for (int x = 0; x < 20; x++)
                    for (int k = 0; k < 4; k++)
                        ASSERT_NEAR(out.at(x, y)[k], literal(source, rect, x, y, k), 0.501)
                            << width << " x " << height << " into " << rect.width << " x " << rect.height << " at " << x
                            << ", " << y;
        }
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

TEST(Resample, ManyPixelsOfWhiteStayWhite)
{
    const Picture out = drawn(flatPicture(60000, 3, 255, 255, 254), {0, 0, 3, 2}, false, 3, 2);
    for (int x = 0; x < 3; x++) {
        EXPECT_EQ(out.at(x, 1)[0], 255);
        EXPECT_EQ(out.at(x, 1)[2], 254);
    }
}
