// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/numbers/Plane.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace lumora {

/// `function(i)` for each pixel of a block, of the first `pixels`, where `marked` is 1.
template <class Function>
inline void forEachMarked(const unsigned char (&marked)[blockPixels], int pixels, Function function)
{
    // Eight bytes of 0 or 1 as the bits of a byte, the first one as the lowest: the product brings them together in its
    // top byte.
    const auto bitsOf = [](const unsigned char* bytes) {
        std::uint64_t eight;
        std::memcpy(&eight, bytes, 8);
        if constexpr (std::endian::native == std::endian::big)
            eight = __builtin_bswap64(eight);
        return eight * 0x0102040810204080u >> 56;
    };
    for (int first = 0; first < pixels; first += 64) {
        std::uint64_t bits = 0;
        for (int i = 0; i < 64; i += 8)
            bits |= bitsOf(marked + first + i) << i;
        if (pixels - first < 64)
            bits &= (std::uint64_t(1) << (pixels - first)) - 1;
        for (; bits != 0; bits &= bits - 1)
            function(first + std::countr_zero(bits));
    }
}

} // namespace lumora
