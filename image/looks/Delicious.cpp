#include "image/looks/Delicious.h"

#include "image/toolkit/Hues.h"
#include "image/toolkit/PixelPass.h"

#include <algorithm>
#include <memory>

namespace {

constexpr float outlineGrey = 25.0f;

/// The squared S-curve, twice as steep in the middle.
float steepened(float v)
{
    const float x = float(v * per255);
    if (x < 0.5f)
        return (x + x) * (x + x) * 0.5f * 255.0f;
    const float rest = float(2.0 - 2.0 * x);
    return float(1.0 - 0.5 * (rest * rest)) * 255.0f;
}

/// The brightness of a pixel after steepening. A luminance is a sum of three doubles; here each stands in a table.
class SteepTones {
public:
    SteepTones()
    {
        for (int v = 0; v < 256; v++) {
            const float steep = steepened(float(v));
            m_red[v] = steep * 0.3;
            m_green[v] = steep * 0.59;
            m_blue[v] = steep * 0.11;
        }
    }

    /// Writes the tones of a block's first `count` pixels: 0 .. 255, the curve never leaves it.
    void fill(const Block& block, unsigned char* tones, int count) const
    {
        for (int i = 0; i < count; i++) {
            const unsigned char* pixel = block.bytes + 4 * i;
            const float tone = float(m_red[pixel[0]] + m_green[pixel[1]] + m_blue[pixel[2]]);
            tones[i] = static_cast<unsigned char>(int(tone));
        }
    }

private:
    double m_red[256], m_green[256], m_blue[256];
};

void flattenShadows(Block& block)
{
    block.fillPlanes();
    workBlock(block, stepsOf([](Rgb c) { return luminance(c) < 50.0f ? grey(outlineGrey) : c; }), nullptr);
}

/// What a curve makes of the bytes of a map beside a block.
Plane lookedUp(const ChannelCurve& curve, const unsigned char* map, int count)
{
    Plane values = {};
    for (int i = 0; i < count; i++)
        values.at[i] = curve.at[map[i]];
    return values;
}

/// The lightness of the band of each tone.
ChannelCurve bandedLightness()
{
    return channelCurve([](int tone) { return float(bandedTone(static_cast<unsigned char>(tone)) * per255); });
}

/// Gives each pixel its lightness and a stronger colour: one small loop per step, which the compilers turn into vector
/// code where they give up on all of it at once.
void recolour(Block& block, const Plane& lightness)
{
    block.fillPlanes();
    Plane hue, saturation;
    for (int i = 0; i < blockPixels; i++) {
        const Hsl c = hslOf(block.colour(i));
        hue.at[i] = c.h;
        saturation.at[i] = c.s;
    }
    // Pure red has the hue 1.0 and comes out grey, on purpose.
    for (int i = 0; i < blockPixels; i++)
        block.setColour(i, rgbOf(Hsl {hue.at[i], saturation.at[i], lightness.at[i]}, float(int(hue.at[i] * 6.0f))));
    const auto doubled = [](Rgb c) {
        const float level = luminance(c);
        return eachChannel(c, [=](float v) { return v + v - level; });
    };
    workBlock(block, stepsOf(doubled), nullptr);
}

/// How much of the outlines' grey covers a pixel, by the strength of its edge.
ChannelCurve inkOfEdges()
{
    return channelCurve([](int edge) { return edge > 120 ? float(float((edge - 120) * (1.0 / 135.0)) * 0.9) : 0.0f; });
}

void drawOutlines(Block& block, const Plane& ink)
{
    block.fillPlanes();
    const auto inked = [](Rgb c, float t) {
        return eachChannel(c, [=](float v) { return float(int((1.0 - t) * v + t * outlineGrey)); });
    };
    workBlock(block, stepsOf(inked), ink.at);
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
    const auto tones = std::make_unique<unsigned char[]>(pixelCount());
    const auto edges = std::make_unique<unsigned char[]>(pixelCount());
    const SteepTones steep;
    const ChannelCurve lightness = bandedLightness(), ink = inkOfEdges();
    forEachNumberedBlock(*this, [&](Block& block, std::size_t first, int count) {
        flattenShadows(block);
        steep.fill(block, tones.get() + first, count);
    });
    fillEdgeDetectMap(edges.get());
    smoothCharMap(tones.get(), width, height, 10, 1.0f, 20.0f);
    smoothCharMap(edges.get(), width, height, 3, 1.0f, -1.0f);
    forEachNumberedBlock(*this, [&](Block& block, std::size_t first, int count) {
        recolour(block, lookedUp(lightness, tones.get() + first, count));
        drawOutlines(block, lookedUp(ink, edges.get() + first, count));
    });
}

/// The brightness and the colours of the cartoon alone.
void CharImage::deliciousColorCore2()
{
    const auto tones = std::make_unique<unsigned char[]>(pixelCount());
    const SteepTones steep;
    const ChannelCurve lightness = bandedLightness();
    forEachNumberedBlock(
        *this, [&](Block& block, std::size_t first, int count) { steep.fill(block, tones.get() + first, count); });
    smoothCharMap(tones.get(), width, height, 10, 1.0f, 20.0f);
    forEachNumberedBlock(*this, [&](Block& block, std::size_t first, int count) {
        recolour(block, lookedUp(lightness, tones.get() + first, count));
    });
}
