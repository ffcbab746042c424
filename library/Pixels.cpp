// SPDX-License-Identifier: LGPL-3.0-or-later
#include "library/Pixels.h"

#include "library/lumora.h"

#include <cstdint>
#include <cstring>
#include <new>

namespace lumora {

namespace {

constexpr int mostSide = 65535;
constexpr std::size_t mostPixels = std::size_t(1) << 28;

} // namespace

bool isSide(int pixels)
{
    return pixels >= 1 && pixels <= mostSide;
}

bool isSize(int width, int height)
{
    return isSide(width) && isSide(height) && std::size_t(width) * std::size_t(height) <= mostPixels;
}

int Pixels::fault() const
{
    if (!data)
        return LUMORA_NULL;
    if (!isSize(width, height))
        return LUMORA_BAD_SIZE;
    // No object of C has more bytes than a ptrdiff_t counts.
    const std::size_t row = std::size_t(width) * 4, most = PTRDIFF_MAX;
    if (stride < row || (height > 1 && stride > (most - row) / std::size_t(height - 1)))
        return LUMORA_BAD_STRIDE;
    return LUMORA_OK;
}

int workOn(const Pixels& pixels, const std::function<void(CharImage&)>& work)
try {
    const std::size_t row = std::size_t(pixels.width) * 4;
    CharImage image(new unsigned char[row * std::size_t(pixels.height)], pixels.width, pixels.height);
    for (int y = 0; y < pixels.height; y++)
        std::memcpy(image.data + std::size_t(y) * row, pixels.row(y), row);
    work(image);
    for (int y = 0; y < pixels.height; y++)
        std::memcpy(pixels.row(y), image.data + std::size_t(y) * row, row);
    return LUMORA_OK;
} catch (const std::bad_alloc&) {
    return LUMORA_NO_MEMORY;
}

} // namespace lumora
