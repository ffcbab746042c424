// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/numbers/Plane.h"
#include "image/passes/ChannelCurve.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace lumora {

/// The colour of a pixel that lies in memory.
inline Rgb pixelAt(const unsigned char* pixel)
{
    return {float(pixel[0]), float(pixel[1]), float(pixel[2])};
}

/// The pixels of a block in the image, and their channels. They are worked on where they lie; only a block that is part
/// filled is computed to its end in a copy, of which the surplus is never written back.
class Block : public Planes {
public:
    Block() = default;
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;

    /// Takes up `count` pixels, 1 .. blockPixels; they are as the stores below leave them once the block is closed.
    /// Nothing is stored after that; closing again changes nothing.
    void open(unsigned char* pixels, int count)
    {
        m_pixels = pixels;
        m_count = count;
        m_bytes = count == blockPixels ? pixels : m_part;
        if (m_bytes == m_part)
            std::memcpy(m_part, pixels, std::size_t(count) * 4);
    }
    void close()
    {
        if (m_bytes == m_part)
            std::memcpy(m_pixels, m_part, std::size_t(m_count) * 4);
        m_bytes = m_pixels;
    }

    /// Its pixels in the image.
    int count() const { return m_count; }

    void fillPlanes()
    {
        fillPlanes([](float v) { return v; });
    }

    /// With what `function` makes of each channel, 0 .. 255.
    template <class Function> void fillPlanes(Function function)
    {
        const unsigned char* __restrict from = m_bytes;
        for (int i = 0; i < blockPixels; i++) {
            const std::uint32_t w = wordAt(from + 4 * i);
            const Colour<int> c{int(w >> redShift & 255u), int(w >> greenShift & 255u), int(w >> blueShift & 255u)};
            setColour(i, eachChannel(c, [&](int v) { return function(float(v)); }));
        }
    }

    void fillPlanes(const ChannelCurve& forRed, const ChannelCurve& forGreen, const ChannelCurve& forBlue)
    {
        for (int i = 0; i < blockPixels; i++)
            setColour(i, {forRed.at[m_bytes[4 * i]], forGreen.at[m_bytes[4 * i + 1]], forBlue.at[m_bytes[4 * i + 2]]});
    }

    /// Stores `bytesOf(i)`, a Colour of 0 .. 255 or one level for all channels, for each pixel; the spare bytes stay.
    template <class BytesOf> void storeBytes(BytesOf bytesOf)
    {
        unsigned char* __restrict to = m_bytes;
        for (int i = 0; i < blockPixels; i++)
            setBytes(to + 4 * i, bytesOf(i));
    }

    /// Takes the channels of each pixel through a curve of their own; the planes are not needed.
    void takeThrough(const ByteCurve& forRed, const ByteCurve& forGreen, const ByteCurve& forBlue)
    {
        for (int i = 0; i < blockPixels; i++) {
            unsigned char* pixel = m_bytes + 4 * i;
            setBytes(pixel, {forRed.at[pixel[0]], forGreen.at[pixel[1]], forBlue.at[pixel[2]]});
        }
    }

    /// Where the image has a pixel.
    unsigned char* pixel(int i) const { return m_pixels + 4 * i; }

    /// Stores a colour of 0 .. 255 in a pixel; the spare byte stays.
    static void setBytes(unsigned char* pixel, Colour<int> c)
    {
        const std::uint32_t w = (wordAt(pixel) & ~colourMask) | std::uint32_t(c.r) << redShift
            | std::uint32_t(c.g) << greenShift | std::uint32_t(c.b) << blueShift;
        std::memcpy(pixel, &w, 4);
    }
    static void setBytes(unsigned char* pixel, int level) { setBytes(pixel, {level, level, level}); }

    /// Copies the colours of `count` pixels; the spare bytes stay.
    static void copyColours(unsigned char* __restrict to, const unsigned char* __restrict from, int count)
    {
        for (int i = 0; i < count; i++) {
            const std::uint32_t w = (wordAt(to + 4 * i) & ~colourMask) | (wordAt(from + 4 * i) & colourMask);
            std::memcpy(to + 4 * i, &w, 4);
        }
    }

private:
    static constexpr bool little = std::endian::native == std::endian::little;
    static constexpr int redShift = little ? 0 : 24, greenShift = little ? 8 : 16, blueShift = little ? 16 : 8;
    static constexpr std::uint32_t colourMask = 255u << redShift | 255u << greenShift | 255u << blueShift;

    static std::uint32_t wordAt(const unsigned char* pixel)
    {
        std::uint32_t w;
        std::memcpy(&w, pixel, 4);
        return w;
    }

    unsigned char* m_bytes = m_part;
    unsigned char* m_pixels = nullptr;
    int m_count = 0;
    alignas(64) unsigned char m_part[blockPixels * 4] = {};
};

} // namespace lumora
