// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/image/looks/LookProperties.h"

#include "image/looks/Colorcross.h"

using namespace lumora;

TEST(Colorcross, MatchesItsTwin)
{
    expectLookMatchesTwin(Filter::colorcross, reference::colorcross);
}

TEST(Colorcross, StaysOffBlackAndWhite)
{
    EXPECT_EQ(underLook(Filter::colorcross, {0, 0, 0}), (ByteColour{20, 20, 20}));
    EXPECT_EQ(underLook(Filter::colorcross, {255, 255, 255}), (ByteColour{250, 250, 250}));
}

TEST(Colorcross, KeepsTheMiddleForEveryExponent)
{
    CharImage::useRandom = 1;
    for (unsigned seed = 0; seed < 20; seed++) {
        std::srand(seed);
        CharImage::renewRandomNumbers();
        const auto image = imageOf(flatPicture(1, 1, 128, 128, 128));
        const auto black = imageOf(flatPicture(1, 1, 0, 0, 0)), white = imageOf(flatPicture(1, 1, 255, 255, 255));
        for (CharImage* each : {image.get(), black.get(), white.get()})
            each->applyFilter(Filter::colorcross);
        for (int k = 0; k < 3; k++) {
            EXPECT_NEAR(image->data[k], 128, 2);
            EXPECT_EQ(black->data[k], 20);
            EXPECT_EQ(white->data[k], 250);
        }
    }
}

TEST(Colorcross, PrintsItsPowers)
{
    testing::internal::CaptureStdout();
    underLook(Filter::colorcross, {1, 2, 3});
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "powers 2.839540 2.758001 0.683486\n");
}

TEST(Colorcross, PrintsPowersThatItSetApart)
{
    // Three times 0.6, of which one is set apart: 0 modulo 3 is red.
    CharImage::useRandom = 1;
    std::fill(std::begin(CharImage::random), std::end(CharImage::random), 0.0f);
    const auto image = imageOf(flatPicture(1, 1, 1, 2, 3));
    testing::internal::CaptureStdout();
    image->applyFilter(Filter::colorcross);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "powers 0.960000 0.600000 0.600000\n");
}

TEST(Colorcross, IsALookupPerChannel)
{
    CharImage::useRandom = 0;
    const ByteColour once = underLook(Filter::colorcross, {77, 77, 77}),
                     again = underLook(Filter::colorcross, {77, 3, 200});
    EXPECT_EQ(once[0], again[0]);
}

TEST(Colorcross, SetsApartExponentsThatAreTooAlike)
{
    float alike[3] = {1.0f, 1.1f, 1.2f};
    setApart(alike, 0.001f); // 1 modulo 3: green
    EXPECT_EQ(alike[0], 1.0f);
    EXPECT_EQ(alike[1], float(1.1f * 1.6));
    EXPECT_EQ(alike[2], 1.2f);
    float high[3] = {2.5f, 2.6f, 2.7f};
    setApart(high, 0.0f);
    EXPECT_EQ(high[0], 1.25f);
    float nearly[3] = {1.0f, 1.0f, 1.44f}; // 0.293 from their mean at most
    setApart(nearly, 0.0f);
    EXPECT_EQ(nearly[0], 1.6f);
    float justApart[3] = {1.0f, 1.0f, 1.46f}; // 0.307
    setApart(justApart, 0.0f);
    EXPECT_EQ(justApart[0], 1.0f);
    float apart[3] = {1.0f, 1.5f, 2.0f};
    setApart(apart, 0.0f);
    EXPECT_EQ(apart[0], 1.0f);
    EXPECT_EQ(apart[1], 1.5f);
    EXPECT_EQ(apart[2], 2.0f);
}
