// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/image/looks/LookProperties.h"

#include "image/looks/Delicious.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <utility>

using namespace lumora;

TEST(Delicious, MatchesItsTwin)
{
    expectLookMatchesTwin(Filter::delicious, reference::delicious);
}

TEST(Delicious, FlattensDeepShadows)
{
    const auto image = imageOf(flatPicture(30, 20, 40, 45, 50));
    image->applyFilter(Filter::delicious);
    EXPECT_EQ(image->data[0], image->data[1]);
    EXPECT_EQ(image->data[0], image->data[2]);
    EXPECT_LT(image->data[0], 50);
}

TEST(Delicious, TurnsPureRedGrey)
{
    const auto image = imageOf(flatPicture(30, 20, 255, 0, 0));
    image->applyFilter(Filter::delicious);
    EXPECT_EQ(image->data[0], image->data[1]);
    EXPECT_EQ(image->data[0], image->data[2]);
}

TEST(Delicious, RecoloursInShortAsFarOffAsItSaysAtMost)
{
    std::mt19937 random(11);
    const auto byte = [&] { return float(random() % 256); };
    double worst = 0.0;
    int undecided = 0;
    constexpr int count = 2000000;
    for (int k = 0; k < count; k++) {
        Rgb c = {byte(), byte(), byte()};
        if (k % 3 == 1) // nearly grey, where quotients of small distances are least exact
            c = {c.r, std::min(c.r + float(random() % 3), 255.0f), std::max(c.r - float(random() % 3), 0.0f)};
        if (k % 3 == 2) // extremes that meet
            c.g = random() % 2 ? c.r : c.b;
        const float lightness = float(float(random() % 256) * per255);
        const Rgb exact = Recoloured()(c, lightness);
        const Colour<Single> tried = Recoloured()(Colour<Single>{c.r, c.g, c.b}, lightness);
        const bool isGrey = c.g == c.b && c.r >= c.g;
        for (const auto& [wanted, got] :
            {std::pair(exact.r, tried.r.value), std::pair(exact.g, tried.g.value), std::pair(exact.b, tried.b.value)}) {
            if (isGrey)
                ASSERT_EQ(truncateAndClamp(got), truncateAndClamp(wanted)) << c.r << ", " << c.g << ", " << c.b;
            else if (got == 255.0f)
                undecided++;
            else
                worst = std::max(worst, std::fabs(double(wanted) - double(got)));
        }
    }
    EXPECT_LE(worst, Recoloured::error);
    EXPECT_LT(
        undecided, 3 * count / 16); // of these colours, which are nearer to grey and to black than those of photos
}

TEST(Delicious, SteepensEveryColourAsTheRecipeDoes)
{
    double red[256], green[256], blue[256];
    for (int v = 0; v < 256; v++) {
        const float x = float(v * 0.00392156862745098), twice = x + x, rest = float(2 - 2.0 * x);
        const float curve = x < 0.5f ? twice * twice * 0.5f : float(1 - 0.5 * (rest * rest));
        const float steep = curve * 255.0f;
        red[v] = steep * 0.3;
        green[v] = steep * 0.59;
        blue[v] = steep * 0.11;
    }
    for (int r = 0; r < 256; r++)
        for (int g = 0; g < 256; g++)
            for (int b = 0; b < 256; b++)
                if (const int tone = int(float(red[r] + green[g] + blue[b]));
                    steepTone({float(r), float(g), float(b)}) != float(tone))
                    FAIL() << r << ' ' << g << ' ' << b << " should be " << tone;
}

TEST(Delicious, BandsTones)
{
    const int centres[] = {21, 63, 106, 148, 191, 233, 255};
    for (const int centre : centres)
        EXPECT_EQ(bandedTone(static_cast<unsigned char>(centre)), centre);
    // The bands' borders: the last tone of one band stays below the first of the next, and neither moves far.
    const int firsts[] = {43, 85, 128, 170, 213, 255};
    for (int q = 0; q < 6; q++) {
        const int last = bandedTone(static_cast<unsigned char>(firsts[q] - 1));
        const int first = bandedTone(static_cast<unsigned char>(firsts[q]));
        EXPECT_GT(last, centres[q]);
        EXPECT_LE(first, centres[q + 1]);
        EXPECT_LE(last, first);
    }
    EXPECT_EQ(bandedTone(110), 106); // near its centre a tone snaps to it
}

TEST(Delicious, DrawsNoOutlinesOnOneColour)
{
    const auto image = imageOf(flatPicture(30, 20, 90, 160, 200));
    image->applyFilter(Filter::delicious);
    for (int i = 1; i < 600; i++)
        ASSERT_TRUE(std::equal(image->data, image->data + 3, image->data + 4 * i));
}

TEST(Delicious, IsItsColourCoreWithoutShadowsAndEdges)
{
    Picture picture(130, 70);
    for (int y = 0; y < picture.height; y++)
        for (int x = 0; x < picture.width; x++) {
            picture.at(x, y)[0] = static_cast<unsigned char>(90 + x);
            picture.at(x, y)[1] = static_cast<unsigned char>(60 + 2 * y);
            picture.at(x, y)[2] = static_cast<unsigned char>(250 - x);
        }
    const auto look = imageOf(picture), core = imageOf(picture);
    look->applyFilter(Filter::delicious);
    core->deliciousColorCore2();
    EXPECT_TRUE(std::equal(look->data, look->data + 130 * 70 * 4, core->data));
    EXPECT_FALSE(std::equal(look->data, look->data + 130 * 70 * 4, picture.pixels.begin()));
}

TEST(Delicious, IgnoresTheVariation)
{
    const auto fixed = imageOf(photoLikePicture(90, 70)), varied = imageOf(photoLikePicture(90, 70));
    CharImage::useRandom = 0;
    fixed->applyFilter(Filter::delicious);
    CharImage::useRandom = 1;
    varied->applyFilter(Filter::delicious);
    EXPECT_TRUE(std::equal(fixed->data, fixed->data + 90 * 70 * 4, varied->data));
}

TEST(Delicious, PrintsBothKernels)
{
    const auto image = imageOf(flatPicture(4, 4, 90, 160, 200));
    testing::internal::CaptureStdout();
    image->applyFilter(Filter::delicious);
    const std::string out = testing::internal::GetCapturedStdout();
    EXPECT_EQ(out.find("9 gauss kernel values\n   val 0.040000\n"), 0u);
    EXPECT_NE(
        out.find("3 gauss kernel values\n   val 0.250000\n   val 0.500000\n   val 0.250000\n"), std::string::npos);
}
