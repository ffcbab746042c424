// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/ScreenPrimaries.h"

#include <QMatrix4x4>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <memory>
#include <vector>

namespace {

constexpr cmsTagSignature curveTags[] = {cmsSigRedTRCTag, cmsSigGreenTRCTag, cmsSigBlueTRCTag};
constexpr cmsTagSignature colourTags[] = {cmsSigRedColorantTag, cmsSigGreenColorantTag, cmsSigBlueColorantTag};
constexpr cmsTagSignature tableTags[] = {
    cmsSigBToA0Tag, cmsSigBToA1Tag, cmsSigBToD0Tag, cmsSigBToD1Tag, cmsSigBToD2Tag, cmsSigBToD3Tag};

// Full light in a lane, and in a table of levels.
constexpr int laneBits = 21, finerBits = 2;
constexpr double fullLight = 1 << 18, fullEntries = 1 << (18 - finerBits);
constexpr double mostLight = 7; // between the least and the most of a primary; must fit into a lane
static_assert((mostLight + 0.1) * fullLight < 1 << laneBits);

constexpr std::uint64_t lane = (1 << laneBits) - 1;

/// A level's light is curve(level / 255), from 0 to 1.
double light(const cmsToneCurve* curve, double level)
{
    const double value = double(cmsEvalToneCurveFloat(curve, float(level / 255)));
    return std::isfinite(value) ? std::clamp(value, 0.0, 1.0) : 0;
}

struct Shaper {
    QMatrix4x4 colours; ///< red, green and blue as XYZ
    const cmsToneCurve* curves[3]; ///< owned by the profile
    bool whole = true;

    explicit Shaper(const IccProfile& profile)
    {
        for (int i = 0; i < 3; i++) {
            const auto* colour = static_cast<const cmsCIEXYZ*>(cmsReadTag(profile.get(), colourTags[i]));
            curves[i] = static_cast<const cmsToneCurve*>(cmsReadTag(profile.get(), curveTags[i]));
            if (colour)
                colours.setColumn(i, {float(colour->X), float(colour->Y), float(colour->Z), 0});
            whole = whole && colour && curves[i];
        }
    }
};

/// Those that shine where they should be dark take a compensation, which a table gives them.
bool isReal(const Shaper& screen)
{
    return screen.whole && std::all_of(screen.curves, screen.curves + 3, [](const cmsToneCurve* curve) {
        return light(curve, 0) < 1e-4 && light(curve, 255) > 0.9 && cmsIsToneCurveMonotonic(curve);
    });
}

/// The level of the curve that is nearest to each light from `least` to `most`.
std::vector<std::uint8_t> nearestLevels(const cmsToneCurve* curve, double least, double most)
{
    std::vector<std::uint8_t> entries(std::size_t((most - least) * fullEntries) + 2);
    int level = 0;
    double next = light(curve, 0.5);
    for (std::size_t i = 0; i < entries.size(); i++) {
        const double here = least + (double(i) + 0.5) / fullEntries;
        while (level < 255 && here >= next)
            next = light(curve, ++level + 0.5);
        entries[i] = std::uint8_t(level);
    }
    return entries;
}

struct Primaries {
    using Light = std::array<std::uint64_t, 256>;

    /// The light of each level of a picture's red, green and blue, in three lanes: how much of each of the screen's
    /// primaries it takes. The lanes of three levels, added, never leave their bits.
    std::array<Light, 3> light = {};
    /// For each primary, the level that makes most nearly that light, which is a lane without its lowest bits.
    std::array<std::vector<std::uint8_t>, 3> levels;

    void convert(QRgb* pixels, int count) const;
};

void Primaries::convert(QRgb* pixels, int count) const
{
    const auto &red = light[0], &green = light[1], &blue = light[2];
    const std::uint8_t *redLevel = levels[0].data(), *greenLevel = levels[1].data(), *blueLevel = levels[2].data();
    for (int i = 0; i < count; i++) {
        const QRgb pixel = pixels[i];
        const std::uint64_t sum = red[pixel >> 16 & 0xff] + green[pixel >> 8 & 0xff] + blue[pixel & 0xff];
        pixels[i] = 0xff000000u | QRgb(redLevel[sum >> (2 * laneBits + finerBits)]) << 16
            | QRgb(greenLevel[(sum >> laneBits & lane) >> finerBits]) << 8 | blueLevel[(sum & lane) >> finerBits];
    }
}

} // namespace

std::function<void(QRgb* pixels, int count)> throughPrimaries(const IccProfile& sRgb, const IccProfile& screen)
{
    if (std::any_of(std::begin(tableTags), std::end(tableTags),
            [&](cmsTagSignature tag) { return cmsIsTag(screen.get(), tag); }))
        return {};
    const Shaper from(sRgb), to(screen);
    bool invertible = false;
    const QMatrix4x4 mix = to.colours.inverted(&invertible) * from.colours;
    if (!isReal(to) || !invertible)
        return {};

    const auto primaries = std::make_shared<Primaries>();
    for (int primary = 0; primary < 3; primary++) {
        double least = 0, most = 0;
        for (int channel = 0; channel < 3; channel++) {
            least += std::min(double(mix(primary, channel)), 0.0);
            most += std::max(double(mix(primary, channel)), 0.0);
        }
        if (!(most - least <= mostLight)) // nor if it is no number
            return {};
        primaries->levels[primary] = nearestLevels(to.curves[primary], least, most);
        // A lane may borrow from the next while the sum is not complete; one channel brings what keeps all above zero.
        const int shift = (2 - primary) * laneBits;
        for (int channel = 0; channel < 3; channel++)
            for (int level = 0; level < 256; level++) {
                const double share = double(mix(primary, channel)) * light(from.curves[channel], level);
                const auto value = std::llround((share - (channel == 0 ? least : 0)) * fullLight) + (channel == 0);
                primaries->light[channel][level] += std::uint64_t(value) << shift;
            }
    }
    return [primaries](QRgb* pixels, int count) { primaries->convert(pixels, count); };
}
