// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/looks/Delicious.h"
#include "image/numbers/Plane.h"
#include "image/passes/TrialError.h"

#include <algorithm>
#include <array>
#include <bit>
#include <gtest/gtest.h>
#include <vector>

using namespace lumora;

namespace {

/// Compares the trial of a recipe with the recipe itself for every colour of bytes. `asGiven(colour)` is what the
/// recipe gets of it, `offOf(colour, exact, tried)` by how much the results differ, 0 or more. The greatest difference
/// comes back.
template <class AsGiven, class Recipe, class OffOf> float worstOfAllColours(AsGiven asGiven, Recipe recipe, OffOf offOf)
{
    // Loops of one purpose each become vector code. Floats of 0 or more are ordered as their bits are.
    int worst = 0;
    Planes given, exact, tried;
    for (int r = 0; r < 256; r++)
        for (int g = 0; g < 256; g++) {
            for (int b = 0; b < 256; b++)
                given.setColour(b, asGiven(Rgb{float(r), float(g), float(b)}));
            for (int b = 0; b < 256; b++)
                exact.setColour(b, recipe(given.colour(b)));
            for (int b = 0; b < 256; b++) {
                const Rgb c = given.colour(b);
                const Colour<Single> result = recipe(Colour<Single>{c.r, c.g, c.b});
                tried.setColour(b, {result.r.value, result.g.value, result.b.value});
            }
            for (int b = 0; b < 256; b++)
                worst = std::max(worst, std::bit_cast<int>(offOf(given.colour(b), exact.colour(b), tried.colour(b))));
        }
    return std::bit_cast<float>(worst);
}

/// By how much a trial is off in the channel where it is most. Where it gives 255, the exact recipe decides.
float offBy(Rgb exact, Rgb tried)
{
    const auto inChannel = [](float e, float t) { return select(t == 255.0f, 0.0f, std::fabs(e - t)); };
    return largest(Rgb{inChannel(exact.r, tried.r), inChannel(exact.g, tried.g), inChannel(exact.b, tried.b)});
}

/// The lightnesses that the look gives.
std::vector<float> lightnessesOfBands()
{
    std::vector<float> all;
    for (int tone = 0; tone < 256; tone++)
        all.push_back(float(bandedTone(static_cast<unsigned char>(tone)) * per255));
    return all;
}

/// For each room of a colour, the distance of its smallest and largest channel's sum from black or white, the lightness
/// on one side of the middle that widens it most.
std::array<float, 256> widestLightnesses(const std::vector<float>& lightnesses, bool dark)
{
    std::array<float, 256> widest;
    for (int room = 0; room < 256; room++) {
        widest[room] = dark ? 0.0f : 1.0f;
        for (const float l : lightnesses) {
            const float newRoom = 510.0f * smaller(l, 1.0f - l), best = smaller(widest[room], 1.0f - widest[room]);
            if ((l < 0.5f) == dark && newRoom / larger(float(room), 1.0f) <= Recoloured::mostGrowth
                && newRoom > 510.0f * best)
                widest[room] = l;
        }
    }
    return widest;
}

} // namespace

TEST(ColoursWalk, DeliciousRecoloursAsNearlyAsItSays)
{
    // What is lost on the way grows with the room that a colour gets, as its distances are multiplied by that. So every
    // colour of bytes meets the lightness on either side of the middle that gives it the most room, and then the
    // darkest and the lightest one, where there is the least.
    const std::vector<float> lightnesses = lightnessesOfBands();
    const auto [darkest, lightest] = std::minmax_element(lightnesses.begin(), lightnesses.end());
    std::array<float, 256> ends[2];
    ends[0].fill(*darkest);
    ends[1].fill(*lightest);
    for (const auto& lightnessOfRoom :
        {widestLightnesses(lightnesses, true), widestLightnesses(lightnesses, false), ends[0], ends[1]}) {
        const auto recoloured = [&](auto c) {
            using Channel = decltype(c.r);
            const Rgb plain = {Single(c.r).value, Single(c.g).value, Single(c.b).value};
            const int sum = int(largest(plain) + smallest(plain));
            return Recoloured()(c, Channel(lightnessOfRoom[std::size_t(std::min(sum, 510 - sum))]));
        };
        const float worst = worstOfAllColours([](Rgb c) { return c; }, recoloured,
            [](Rgb c, Rgb exact, Rgb tried) {
                // Greys have their own form, which gives the byte and no more; the three channels are alike there.
                const bool isGrey = (c.g == c.b) & !(c.r < c.g);
                const bool isRight = int(tried.r) == int(exact.r);
                return select(isGrey, select(isRight, 0.0f, 1000.0f), offBy(exact, tried));
            });
        EXPECT_LE(worst, float(Recoloured::error));
    }
}

TEST(ColoursWalk, HelgaDarkensAsNearlyAsTheBoundSays)
{
    // Every colour of bytes, as it is and spread beyond them by the look's contrasts, and the look's weights from one
    // end to the other. For one colour both ways are smooth in the weight and in the contrast: what is lost on the way
    // grows with the channels and their distances, and is greatest at these ends.
    for (const float contrast : {1.0f, 1.54f, 2.31f})
        for (const float weight : {0.0f, 0.1f, 0.5f, 1.0f}) {
            const auto spread = [=](float v) { return withContrast(v, contrast); };
            const auto darkened = [=](auto c) {
                using Channel = decltype(c.r);
                return withSaturationAndValueTimes(c, 1.0 + 0.4 * Channel(weight), 1.0 - Channel(weight));
            };
            const ChannelRanges channel = ChannelRanges::of(channelCurve([=](int v) { return spread(float(v)); }));
            const double promised = errorOf(Steps(darkened), {channel, channel, channel, {}});
            ASSERT_LT(promised, tolerableError);
            const float worst = worstOfAllColours([=](Rgb c) { return eachChannel(c, spread); }, darkened,
                [](Rgb, Rgb exact, Rgb tried) { return offBy(exact, tried); });
            ASSERT_LE(worst, float(promised)) << "contrast " << contrast << ", weight " << weight;
        }
}
