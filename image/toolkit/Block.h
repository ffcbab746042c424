#pragma once

#include "image/toolkit/Arithmetic.h"

#include <bit>
#include <cstdint>
#include <cstring>

// The pixels of a pass are worked on in blocks: bytes become three planes of floats, a loop of fixed length works on
// the planes, and the planes become bytes again. The fixed length lets the compiler turn each loop into vector code.

/// Pixels of one block; its planes stay in the first-level cache.
inline constexpr int blockPixels = 256;

/// A float per pixel of a block.
struct alignas(64) Plane {
    float at[blockPixels];
};

/// The channels of a block's pixels.
struct Planes {
    Plane r, g, b;

    Rgb colour(int i) const { return {r.at[i], g.at[i], b.at[i]}; }
    void setColour(int i, Rgb c)
    {
        r.at[i] = c.r;
        g.at[i] = c.g;
        b.at[i] = c.b;
    }
};

/// What each value of a channel becomes as a float: a per-channel curve needs no more than 256 evaluations.
struct ChannelCurve {
    float at[256];
};

template <class Function> ChannelCurve channelCurve(Function f)
{
    ChannelCurve curve;
    for (int v = 0; v < 256; v++)
        curve.at[v] = f(v);
    return curve;
}

/// The curve of one channel of a film: the S-curve on the byte's share of 255, held off pure black and pure white at
/// 20 .. 250.
inline ChannelCurve filmCurve(float exponent)
{
    return channelCurve([=](int v) {
        const float z = sCurve(float(v * per255), exponent) * 255.0f;
        return z < 20.0f ? 20.0f : z > 250.0f ? 250.0f : z;
    });
}

/// The pixels of a block as the image holds them, and their channels. A block that is only part filled is
/// computed to its end all the same; the surplus is never written back.
struct Block : Planes {
    alignas(64) unsigned char bytes[blockPixels * 4] = {};

    void read(const unsigned char* pixels, int count) { std::memcpy(bytes, pixels, std::size_t(count) * 4); }
    void write(unsigned char* pixels, int count) const { std::memcpy(pixels, bytes, std::size_t(count) * 4); }

    void fillPlanes()
    {
        fillPlanes([](float v) { return v; });
    }

    /// With what `function` makes of each channel, 0 .. 255.
    template <class Function> void fillPlanes(Function function)
    {
        for (int i = 0; i < blockPixels; i++) {
            const std::uint32_t w = word(i);
            const Colour<int> c{int(w >> redShift & 255u), int(w >> greenShift & 255u), int(w >> blueShift & 255u)};
            setColour(i, eachChannel(c, [&](int v) { return function(float(v)); }));
        }
    }

    void fillPlanes(const ChannelCurve& forRed, const ChannelCurve& forGreen, const ChannelCurve& forBlue)
    {
        for (int i = 0; i < blockPixels; i++)
            setColour(i, {forRed.at[bytes[4 * i]], forGreen.at[bytes[4 * i + 1]], forBlue.at[bytes[4 * i + 2]]});
    }

    /// Stores `bytesOf(i)`, a Colour of 0 .. 255, for each pixel; the spare bytes stay.
    template <class BytesOf> void storeBytes(BytesOf bytesOf)
    {
        for (int i = 0; i < blockPixels; i++)
            setBytes(i, bytesOf(i));
    }
    void setBytes(int i, Colour<int> c)
    {
        setWord(i,
            (word(i) & ~colourMask) | std::uint32_t(c.r) << redShift | std::uint32_t(c.g) << greenShift
                | std::uint32_t(c.b) << blueShift);
    }

    /// Stores the planes as bytes, `toByte(value)` giving 0 .. 255.
    template <class ToByte> void storePlanes(ToByte toByte)
    {
        storeBytes([&](int i) { return eachChannel(colour(i), toByte); });
    }

    /// Stores the red plane in all three channels.
    template <class ToByte> void storeGrey(ToByte toByte)
    {
        storeBytes([&](int i) {
            const int level = toByte(r.at[i]);
            return Colour{level, level, level};
        });
    }

private:
    static constexpr bool little = std::endian::native == std::endian::little;
    static constexpr int redShift = little ? 0 : 24, greenShift = little ? 8 : 16, blueShift = little ? 16 : 8;
    static constexpr std::uint32_t colourMask = 255u << redShift | 255u << greenShift | 255u << blueShift;

    std::uint32_t word(int i) const
    {
        std::uint32_t w;
        std::memcpy(&w, bytes + 4 * i, 4);
        return w;
    }
    void setWord(int i, std::uint32_t w) { std::memcpy(bytes + 4 * i, &w, 4); }
};
