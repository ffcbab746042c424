// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/toolkit/ColorSpace.h"

#include "tests/reference/Toolkit.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

using namespace lumora;

namespace {

struct Three {
    float a, b, c;
    bool operator==(const Three&) const = default;
};

Three hsl(float r, float g, float b)
{
    Three out;
    rgbToHsl(r, g, b, &out.a, &out.b, &out.c);
    return out;
}

Three hsv(float r, float g, float b)
{
    float rgb[3] = {r, g, b};
    Three out;
    rgbToHsv(rgb, &out.a, &out.b, &out.c);
    return out;
}

Three fromHsl(float h, float s, float l)
{
    float rgb[3];
    hslToRgb(h, s, l, rgb);
    return {rgb[0], rgb[1], rgb[2]};
}

Three fromHsv(float h, float s, float v)
{
    float rgb[3];
    hsvToRgb(h, s, v, rgb);
    return {rgb[0], rgb[1], rgb[2]};
}

} // namespace

TEST(ColorSpace, DoesNotWrapPureRed)
{
    EXPECT_EQ(hsl(255, 0, 0), (Three{1.0f, 1.0f, 0.5f}));
    EXPECT_EQ(hsl(200, 50, 50).a, 1.0f);
    EXPECT_EQ(fromHsl(1.0f, 1.0f, 0.5f), (Three{127.5f, 127.5f, 127.5f}));
}

TEST(ColorSpace, MeasuresHslHues)
{
    EXPECT_FLOAT_EQ(hsl(0, 255, 0).a, 1.0f / 3);
    EXPECT_FLOAT_EQ(hsl(0, 0, 255).a, 2.0f / 3);
    EXPECT_EQ(hsl(0, 0, 0), (Three{0, 0, 0}));
    EXPECT_EQ(hsl(90, 90, 90).a, 0.0f);
    EXPECT_EQ(hsl(90, 90, 90).b, 0.0f);
    EXPECT_EQ(hsl(300, -20, 0), hsl(255, 0, 0));
}

TEST(ColorSpace, MeasuresHsvHues)
{
    EXPECT_EQ(hsv(255, 0, 0), (Three{0, 1, 1}));
    EXPECT_EQ(hsv(0, 0, 255).a, 240.0f);
    EXPECT_LT(hsv(255, 0, 1).a, 360.0f);
    EXPECT_GT(hsv(255, 0, 1).a, 359.0f);
    EXPECT_EQ(hsv(0, 0, 0), (Three{0, 0, 0}));
}

TEST(ColorSpace, TurnsHsvBack)
{
    EXPECT_EQ(fromHsv(360, 1, 1), (Three{255, 0, 255}));
    for (float h : {-90.0f, 0.0f, 77.0f, 360.0f})
        EXPECT_EQ(fromHsv(h, 0, 0.5f), (Three{127.5f, 127.5f, 127.5f}));
    const float halves[] = {255, 191.25f, 127.5f}; // v, the way between, p
    const Three sextants[] = {{halves[0], halves[1], halves[2]}, {halves[1], halves[0], halves[2]},
        {halves[2], halves[0], halves[1]}, {halves[2], halves[1], halves[0]}, {halves[1], halves[2], halves[0]},
        {halves[0], halves[2], halves[1]}};
    for (int i = 0; i < 6; i++) {
        const Three rgb = fromHsv(60.0f * i + 30, 0.5f, 1);
        EXPECT_NEAR(rgb.a, sextants[i].a, 1e-3) << i;
        EXPECT_NEAR(rgb.b, sextants[i].b, 1e-3) << i;
        EXPECT_NEAR(rgb.c, sextants[i].c, 1e-3) << i;
    }
    const Three below = fromHsv(-30, 0.5f, 1); // takes the last sextant, half of the way along
    EXPECT_EQ(below.a, 255);
    EXPECT_EQ(below.b, 127.5f);
    EXPECT_NEAR(below.c, 191.25f, 1e-3);
}

TEST(ColorSpace, TurnsHslBack)
{
    for (float h : {0.0f, 0.3f, 1.0f})
        for (float s : {0.0f, 0.5f, 1.0f})
            EXPECT_EQ(fromHsl(h, s, 0), (Three{0, 0, 0}));
    EXPECT_EQ(fromHsl(-0.1f, 1, 0.5f).a, 255.0f); // just below 0 truncates to the first sextant
    EXPECT_LT(fromHsl(-0.1f, 1, 0.5f).b, 0.0f);
    EXPECT_EQ(fromHsl(-0.2f, 1, 0.5f), (Three{127.5f, 127.5f, 127.5f}));
    EXPECT_EQ(fromHsl(0, 1, 0.5f), (Three{255, 0, 0}));
    EXPECT_EQ(fromHsl(0.5f, 1, 0.5f), (Three{0, 255, 255}));
}

TEST(ColorSpace, AWholeTurnIsNone)
{
    const float little = std::nextafter(100.0f, 101.0f); // so little more blue that its hue is 360 in single precision
    EXPECT_EQ(hsv(255, 100, little).a, 0.0f);
}

TEST(ColorSpace, HuesMayBeFarAway)
{
    for (const float h : {5.2e8f, -5.2e8f, 1e12f, -1e30f}) {
        float rgb[3];
        reference::hsvToRgb(h, 0.5f, 100, rgb);
        EXPECT_EQ(fromHsv(h, 0.5f, 100), (Three{rgb[0], rgb[1], rgb[2]})) << h;
    }
}

TEST(ColorSpace, ReadsBeforeItWrites)
{
    float values[3] = {10, 200, 30};
    rgbToHsl(values, &values[2], &values[0], &values[1]);
    EXPECT_EQ((Three{values[2], values[0], values[1]}), hsl(10, 200, 30));
    float others[3] = {10, 200, 30};
    rgbToHsv(others, &others[2], &others[0], &others[1]);
    EXPECT_EQ((Three{others[2], others[0], others[1]}), hsv(10, 200, 30));
}

TEST(ColorSpace, MatchesItsTwin)
{
    std::mt19937 generator(3);
    std::uniform_real_distribution<float> channel(-20, 280), unit(-0.3f, 1.3f), degrees(-400, 800);
    for (int i = 0; i < 200000; i++) {
        const bool whole = i % 2;
        const auto next = [&] { return whole ? float(int(generator() % 256)) : channel(generator); };
        const float r = next(), g = next(), b = next();
        Three expected;
        reference::rgbToHsl(r, g, b, &expected.a, &expected.b, &expected.c);
        ASSERT_EQ(hsl(r, g, b), expected) << r << " " << g << " " << b;
        reference::rgbToHsv(r, g, b, &expected.a, &expected.b, &expected.c);
        ASSERT_EQ(hsv(r, g, b), expected) << r << " " << g << " " << b;
        const float s = unit(generator), l = unit(generator), h = unit(generator), d = degrees(generator);
        float rgb[3];
        reference::hslToRgb(h, s, l, rgb);
        ASSERT_EQ(fromHsl(h, s, l), (Three{rgb[0], rgb[1], rgb[2]})) << h << " " << s << " " << l;
        reference::hsvToRgb(d, s, l, rgb);
        ASSERT_EQ(fromHsv(d, s, l), (Three{rgb[0], rgb[1], rgb[2]})) << d << " " << s << " " << l;
    }
}

TEST(ColorSpace, MatchesItsTwinOnALatticeOfBytes)
{
    // Steps of 5 meet every tie of two channels, and both ends.
    for (int r = 0; r < 256; r += 5)
        for (int g = 0; g < 256; g += 5)
            for (int b = 0; b < 256; b += 5) {
                Three expected;
                reference::rgbToHsl(float(r), float(g), float(b), &expected.a, &expected.b, &expected.c);
                float rgb[3] = {float(r), float(g), float(b)};
                Three got;
                rgbToHsl(rgb, &got.a, &got.b, &got.c);
                ASSERT_EQ(got, expected) << r << " " << g << " " << b;
                reference::rgbToHsv(float(r), float(g), float(b), &expected.a, &expected.b, &expected.c);
                ASSERT_EQ(hsv(float(r), float(g), float(b)), expected) << r << " " << g << " " << b;
            }
}
