// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/numbers/Arithmetic.h"

#include <cstddef>

namespace lumora {

// The pixels of a pass are worked on in blocks: bytes become three planes of floats, a loop of fixed length works on
// the planes, and the planes become bytes again. The fixed length lets the compiler turn each loop into vector code.

/// Pixels of one block; its planes stay in the first-level cache.
inline constexpr int blockPixels = 256;

/// So many pixels filled up to whole blocks.
inline std::size_t inWholeBlocks(int pixels)
{
    return (std::size_t(pixels) + blockPixels - 1) / blockPixels * blockPixels;
}

/// A float per pixel of a block, or of a group of another size.
template <int pixels> struct alignas(64) PlaneOf {
    float at[pixels];
};
using Plane = PlaneOf<blockPixels>;

/// What a table has for the index of each pixel of a block.
inline void lookUp(const float* table, const int (&index)[blockPixels], Plane& values)
{
#pragma GCC unroll 4 // without vector code, half of the work would be counting
    for (int i = 0; i < blockPixels; i++)
        values.at[i] = table[index[i]];
}

/// The channels of such pixels. Of neutral colours, the red ones alone count.
template <int pixels> struct PlanesOf {
    PlaneOf<pixels> r, g, b;

    Rgb colour(int i) const { return {r.at[i], g.at[i], b.at[i]}; }
    void setColour(int i, Rgb c)
    {
        r.at[i] = c.r;
        g.at[i] = c.g;
        b.at[i] = c.b;
    }
    void setColour(int i, float neutral) { r.at[i] = neutral; }
};
using Planes = PlanesOf<blockPixels>;

} // namespace lumora
