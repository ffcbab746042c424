// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/toolkit/MapRows.h"
#include "tests/reference/Toolkit.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace lumora;

namespace {

using Map = std::vector<unsigned char>;

Plane blockOf(const Map& map, int width, int x, int y)
{
    Plane values = {};
    for (int i = 0; i < blockPixels && x + i < width; i++)
        values.at[i] = float(map[std::size_t(y) * width + x + i]);
    return values;
}

void expectBlock(const Plane& values, const Map& map, int width, int x, int y)
{
    for (int i = 0; i < blockPixels && x + i < width; i++)
        ASSERT_EQ(values.at[i], float(map[std::size_t(y) * width + x + i])) << "column " << x + i << ", row " << y;
}

} // namespace

TEST(MapRows, ComeInOrderAndAsSoonAsTheyCan)
{
    const std::pair<int, std::string> orders[] = {{0, ""}, {1, "g0t0"}, {2, "g0g1t0t1"}, {5, "g0g1g2t0g3t1g4t2t3t4"}};
    for (const auto& [height, expected] : orders) {
        std::string order;
        const auto note = [&](char what) { return [&order, what](int y) { order += what + std::to_string(y); }; };
        forEachDelayedRow(height, 2, note('g'), note('t'));
        EXPECT_EQ(order, expected);
    }
}

TEST(MapRows, MeasureEdgesOneRowLater)
{
    const int width = 300, height = 9;
    const Picture picture = randomPicture(width, height, 8);
    const Map expected = reference::edgeMap(picture);
    EdgeRows edges(width, height);
    const auto give = [&](int y) {
        for (int x = 0; x < width; x += blockPixels) {
            Plane luminances = {};
            for (int i = 0; i < blockPixels && x + i < width; i++) {
                const unsigned char* pixel = picture.at(x + i, y);
                luminances.at[i] = luminance(Rgb{float(pixel[0]), float(pixel[1]), float(pixel[2])});
            }
            edges.setBlock(x, luminances);
        }
        edges.endRow();
    };
    forEachDelayedRow(height, edges.delay, give, [&](int y) {
        for (int x = 0; x < width; x += blockPixels)
            expectBlock(edges.block(x, y), expected, width, x, y);
    });
}

TEST(MapRows, AreSmoothedAsSoonAsTheyCanAndLater)
{
    const int width = 300;
    for (const int height : {1, 3, 8, 40})
        for (const int lag : {0, 1, 5}) {
            const Picture picture = randomPicture(width, height, 9);
            Map map;
            for (std::size_t i = 0; i < picture.pixels.size(); i += 4)
                map.push_back(picture.pixels[i]);
            Map expected = map;
            reference::smoothMap(expected, width, height, 10, 1.0f, 60.0f);
            testing::internal::CaptureStdout();
            SmoothedRows rows(width, height, 10, 1.0f, 60.0f, lag);
            EXPECT_EQ(testing::internal::GetCapturedStdout().find("9 gauss kernel values\n   val 0.040000\n"), 0u);
            EXPECT_EQ(rows.delay(), 4);
            const auto give = [&](int y) {
                for (int x = 0; x < width; x += blockPixels)
                    rows.setBlock(x, blockOf(map, width, x, y));
                rows.endRow();
            };
            forEachDelayedRow(height, rows.delay() + lag, give, [&](int y) {
                for (int x = 0; x < width; x += blockPixels)
                    expectBlock(rows.block(x, y), expected, width, x, y);
            });
        }
}
