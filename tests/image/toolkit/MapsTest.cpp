// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "tests/reference/Toolkit.h"

#include <gtest/gtest.h>
#include <vector>

using namespace lumora;

namespace {

using Map = std::vector<unsigned char>;

std::string smooth(Map& map, int width, int height, int size, float exponent, float threshold)
{
    testing::internal::CaptureStdout();
    CharImage::smoothCharMap(map.data(), width, height, size, exponent, threshold);
    return testing::internal::GetCapturedStdout();
}

std::string kernelLines(const std::vector<const char*>& values)
{
    std::string lines = std::to_string(values.size()) + " gauss kernel values\n";
    for (const char* value : values)
        lines += std::string("   val ") + value + "\n";
    return lines;
}

Map edges(const Picture& picture)
{
    Map map(std::size_t(picture.width) * picture.height, 77);
    imageOf(picture)->fillEdgeDetectMap(map.data());
    return map;
}

} // namespace

TEST(Maps, KeepAUniformMap)
{
    for (int v : {0, 1, 100, 255})
        for (int size : {3, 10, 25}) {
            Map map(20 * 10, static_cast<unsigned char>(v));
            smooth(map, 20, 10, size, 1.0f, 0.0f);
            for (unsigned char value : map) {
                EXPECT_LE(value, v);
                EXPECT_GE(value, v - 2); // one may go in each of the two passes
            }
        }
}

TEST(Maps, KeepAUniformMapWhereTheWeightsAreExact)
{
    for (int v = 0; v < 256; v++) {
        Map map(3 * 2, static_cast<unsigned char>(v));
        smooth(map, 3, 2, 3, 1.0f, 0.0f); // quarters
        EXPECT_EQ(map, Map(3 * 2, static_cast<unsigned char>(v)));
    }
}

TEST(Maps, SmoothATinyMap)
{
    // Quarters, the edges repeated: 0 and 160 become 40 and 120 in the horizontal pass; the vertical pass of two rows
    // of 40 and 120 over two of 0 takes three quarters and one quarter.
    Map map = {0, 160, 0, 0};
    smooth(map, 2, 2, 3, 1.0f, 0.0f);
    EXPECT_EQ(map, (Map{30, 90, 10, 30}));
}

TEST(Maps, PrintTheirKernels)
{
    Map map(4, 0);
    EXPECT_EQ(smooth(map, 2, 2, 3, 1.0f, 0), kernelLines({"0.250000", "0.500000", "0.250000"}));
    EXPECT_EQ(smooth(map, 2, 2, 10, 1.0f, 0),
        kernelLines({"0.040000", "0.080000", "0.120000", "0.160000", "0.200000", "0.160000", "0.120000", "0.080000",
            "0.040000"}));
    EXPECT_EQ(smooth(map, 2, 2, 5, 0.0f, 0), kernelLines({"0.200000", "0.200000", "0.200000", "0.200000", "0.200000"}));
    EXPECT_EQ(
        smooth(map, 2, 2, 5, -2.0f, 0), kernelLines({"0.200000", "0.200000", "0.200000", "0.200000", "0.200000"}));
    // Size 3 and less: 0.667^2, 1.333^2, 0.667^2, normalised.
    for (int size : {0, 1, 2, 3})
        EXPECT_EQ(smooth(map, 2, 2, size, 2.0f, 0), kernelLines({"0.166667", "0.666667", "0.166667"}));
}

TEST(Maps, PrintTheKernelOfAnEmptyMap)
{
    for (const int side : {0, -3}) {
        Map map(1, 9);
        EXPECT_EQ(smooth(map, side, 4, 3, 1.0f, 0), kernelLines({"0.250000", "0.500000", "0.250000"}));
        EXPECT_EQ(smooth(map, 4, side, 3, 1.0f, 0), kernelLines({"0.250000", "0.500000", "0.250000"}));
        EXPECT_EQ(map[0], 9);
    }
}

TEST(Maps, KeepEdgesAboveTheThreshold)
{
    Map spike(9, 0);
    spike[4] = 200;
    Map kept = spike, smoothed = spike;
    smooth(kept, 9, 1, 3, 1.0f, 10.0f);
    EXPECT_EQ(kept[4], 200);
    smooth(smoothed, 9, 1, 3, 1.0f, 0.0f);
    EXPECT_EQ(smoothed[4], 100);
    // A change of exactly the threshold does not exceed it.
    Map atIt(5, 0), aboveIt(5, 0);
    atIt[2] = 20;
    aboveIt[2] = 22;
    smooth(atIt, 5, 1, 3, 1.0f, 10.0f);
    smooth(aboveIt, 5, 1, 3, 1.0f, 10.0f);
    EXPECT_EQ(atIt, (Map{0, 5, 10, 5, 0}));
    EXPECT_EQ(aboveIt, (Map{0, 5, 22, 5, 0}));
}

TEST(Maps, MatchTheirTwinsAtTheEndsOfBlocks)
{
    const struct {
        int width, height;
    } sides[] = {{1, 1}, {1, 30}, {255, 3}, {256, 2}, {257, 12}, {513, 1}};
    for (const auto& side : sides) {
        const Picture picture = photoLikePicture(side.width, side.height);
        const Map expected = reference::edgeMap(picture);
        ASSERT_EQ(edges(picture), expected) << side.width;
        for (int size : {3, 10, 11, 300}) {
            Map fast = expected, slow = expected;
            smooth(fast, side.width, side.height, size, 1.0f, 12.5f);
            reference::smoothMap(slow, side.width, side.height, size, 1.0f, 12.5f);
            ASSERT_EQ(fast, slow) << side.width << ", size " << size;
        }
    }
}

TEST(Maps, SmoothToNothingWithoutFiniteWeights)
{
    // The middle weight overflows: its share of the infinite sum is no number, which is stored as 0.
    Map map = {10, 200, 30};
    smooth(map, 3, 1, 3, 400.0f, 0.0f);
    EXPECT_EQ(map, Map(3, 0));
}

TEST(Maps, MeasureATinyPicture)
{
    // Repeated edges: every pixel of 0, 10 over 20, 30 has a horizontal slope of 40 and a vertical one of 80.
    Picture picture = flatPicture(2, 2, 0, 0, 0);
    for (int i = 0; i < 4; i++)
        for (int k = 0; k < 3; k++)
            picture.at(i % 2, i / 2)[k] = static_cast<unsigned char>(10 * i);
    EXPECT_EQ(edges(picture), Map(4, 89));
    EXPECT_EQ(edges(flatPicture(1, 1, 7, 8, 9)), Map(1, 0));
}

TEST(Maps, FindNoEdgesInOneColour)
{
    for (unsigned char value : edges(flatPicture(13, 7, 200, 10, 90)))
        EXPECT_EQ(value, 0);
}

TEST(Maps, ClampAHardEdge)
{
    Picture picture = flatPicture(10, 5, 0, 0, 0);
    for (int y = 0; y < 5; y++)
        for (int x = 5; x < 10; x++)
            for (int k = 0; k < 3; k++)
                picture.at(x, y)[k] = 255;
    const Map map = edges(picture);
    for (int y = 0; y < 5; y++)
        for (int x = 0; x < 10; x++)
            EXPECT_EQ(map[y * 10 + x], x == 4 || x == 5 ? 255 : 0);
}

TEST(Maps, MatchTheirTwins)
{
    for (const NamedPicture& sample : samplePictures()) {
        const Map expected = reference::edgeMap(sample.picture), map = edges(sample.picture);
        ASSERT_EQ(map, expected) << sample.name;
        const struct {
            int size;
            float exponent, threshold;
        } kernels[] = {{0, 1.0f, 0}, {3, 1.0f, -1}, {10, 1.0f, 20}, {5, 0.0f, 3.5f}, {17, 2.5f, 60}, {4, 300.0f, 5}};
        for (const auto& kernel : kernels) {
            Map fast = expected, slow = expected;
            smooth(fast, sample.picture.width, sample.picture.height, kernel.size, kernel.exponent, kernel.threshold);
            reference::smoothMap(
                slow, sample.picture.width, sample.picture.height, kernel.size, kernel.exponent, kernel.threshold);
            ASSERT_EQ(fast, slow) << sample.name << ", size " << kernel.size;
            for (std::size_t i = 0; i < fast.size(); i++)
                fast[i] = slow[i] = sample.picture.pixels[4 * i];
            smooth(fast, sample.picture.width, sample.picture.height, kernel.size, kernel.exponent, kernel.threshold);
            reference::smoothMap(
                slow, sample.picture.width, sample.picture.height, kernel.size, kernel.exponent, kernel.threshold);
            ASSERT_EQ(fast, slow) << sample.name << ", its red channel, size " << kernel.size;
        }
    }
}
