// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/looks/Delicious.h"

#include "image/passes/PixelPass.h"
#include "image/toolkit/MapRows.h"

#include <algorithm>

namespace lumora {

namespace {

constexpr float outlineGrey = 25.0f;
constexpr int faintestEdge = 120; ///< leaves no ink; every stronger one does

void flattenShadows(Block& block)
{
    block.fillPlanes();
    const auto flattened = [](Rgb c) { return byteLuminance(c) < 50.0f ? grey(outlineGrey) : c; };
    workBlock(block, Steps(flattened), nullptr, [](float v) { return int(v); });
}

/// What a curve makes of whole values of 0 .. 255.
Plane lookedUp(const ChannelCurve& curve, const Plane& values)
{
    int index[blockPixels];
    for (int i = 0; i < blockPixels; i++)
        index[i] = int(values.at[i]);
    Plane results;
    lookUp(curve.at, index, results);
    return results;
}

/// The lightness of the band of each tone.
ChannelCurve bandedLightness()
{
    return channelCurve([](int tone) { return float(bandedTone(static_cast<unsigned char>(tone)) * per255); });
}

/// Gives each pixel of a row its lightness and a stronger colour. `lightnessAt(x)` is that of a block.
template <class LightnessAt> void recolourRow(CharImage& image, int y, LightnessAt lightnessAt)
{
    Trial trial(Steps{Recoloured()}, Recoloured::error, NoLevels());
    forEachBlockOfRow(image, y, [&](Block& block, int x) {
        block.fillPlanes();
        const Plane lightness = lightnessAt(x);
        trial.work(block, lightness.at);
    });
    trial.finish();
}

/// How much of the outlines' grey covers a pixel, by the strength of its edge.
ChannelCurve inkOfEdges()
{
    return channelCurve([](int edge) {
        return edge > faintestEdge ? float(float((edge - faintestEdge) * (1.0 / 135.0)) * 0.9) : 0.0f;
    });
}

void drawOutlines(Block& block, const Plane& ink)
{
    block.fillPlanes();
    const auto inked = [](Rgb c, float t) {
        return eachChannel(c, [=](float v) { return float(int((1.0 - t) * v + t * outlineGrey)); });
    };
    workBlock(block, Steps(inked), ink.at);
}

/// Whether a block has an edge that leaves ink.
bool hasOutlines(const Plane& edges)
{
    int found = 0;
    for (int i = 0; i < blockPixels; i++)
        found |= edges.at[i] > float(faintestEdge);
    return found;
}

} // namespace

unsigned char bandedTone(unsigned char tone)
{
    const int band = int(tone * 0.023529411764705882); // 6/255
    const int centre = std::clamp(int((float(band * 0.16666667) + 0.0833333358168602) * 255.0), 0, 255);
    const int d = tone - centre;
    const float a = float(std::fabs(d * per255) * 11.999999642372142); // the reciprocal of the single 1/12
    const float a2 = a * a, a3 = a * a2, a5 = a2 * a3;
    return truncateAndWrap(float(d) * a5 + float(centre));
}

/// A cartoon: flat shadows, brightness in seven soft bands, strong colours, dark outlines.
void CharImage::applyDeliciousFilter()
{
    const ChannelCurve lightness = bandedLightness(), ink = inkOfEdges();
    SmoothedRows tones(width, height, 10, 1.0f, 20.0f);
    EdgeRows edges(width, height);
    SmoothedRows outlines(width, height, 3, 1.0f, -1.0f, tones.delay());
    const auto measure = [&](int y) {
        forEachBlockOfRow(*this, y, [&](Block& block, int x) {
            flattenShadows(block); // the planes hold the colours, too
            tones.setBlock(x, planeOf(block, [](Rgb c) { return steepTone(c); }));
            edges.setBlock(x, planeOf(block, [](Rgb c) { return byteLuminance(c); }));
        });
        tones.endRow();
        edges.endRow();
    };
    const auto outline = [&](int y) {
        for (int x = 0; x < width; x += blockPixels)
            outlines.setBlock(x, edges.block(x, y));
        outlines.endRow();
    };
    const auto draw = [&](int y) {
        recolourRow(*this, y, [&](int x) { return lookedUp(lightness, tones.block(x, y)); });
        forEachBlockOfRow(*this, y, [&](Block& block, int x) {
            const Plane strengths = outlines.block(x, y);
            if (hasOutlines(strengths))
                drawOutlines(block, lookedUp(ink, strengths));
        });
    };
    for (int y = 0; y < height + tones.delay(); y++) {
        if (y < height)
            measure(y);
        if (y >= edges.delay && y < height + edges.delay)
            outline(y - edges.delay);
        if (y >= tones.delay())
            draw(y - tones.delay());
    }
}

/// The brightness and the colours of the cartoon alone.
void CharImage::deliciousColorCore2()
{
    const ChannelCurve lightness = bandedLightness();
    SmoothedRows tones(width, height, 10, 1.0f, 20.0f);
    const auto measure = [&](int y) {
        forEachBlockOfRow(*this, y, [&](Block& block, int x) {
            block.fillPlanes();
            tones.setBlock(x, planeOf(block, [](Rgb c) { return steepTone(c); }));
        });
        tones.endRow();
    };
    forEachDelayedRow(height, tones.delay(), measure,
        [&](int y) { recolourRow(*this, y, [&](int x) { return lookedUp(lightness, tones.block(x, y)); }); });
}

} // namespace lumora
