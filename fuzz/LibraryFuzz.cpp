// SPDX-License-Identifier: GPL-3.0-or-later
// The library's functions on any pixels, sizes, strides and numbers:
// build/asan/fuzz/LibraryFuzz -max_total_time=600 FOLDER build/asan/fuzz/seeds/LibraryFuzz
//
// Beside what the sanitizers see: what fails changes nothing, and bytes between rows and spare bytes always stay.

#include "fuzz/Input.h"
#include "library/lumora.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;

void demand(bool holds)
{
    if (!holds)
        std::abort();
}

/// One of the numbers from 0 to `count` - 1, or one of a few beside them.
int anyNumber(Input& input, int count)
{
    return input.below(count + 4) - 2;
}

int anySide(Input& input)
{
    int side;
    input.take(&side, sizeof side);
    return input.below(2) == 0 ? side : side & 0xffff;
}

/// A picture in a block that ends with its last pixel, so that what is beyond is seen.
struct Picture {
    explicit Picture(Input& input)
        : width(input.below(72) - 1)
        , height(input.below(52) - 1)
        , stride(std::size_t(std::max(width, 0)) * 4 + std::size_t(input.below(9)))
    {
        if (width > 0 && height > 0) {
            bytes.resize(stride * std::size_t(height - 1) + std::size_t(width) * 4);
            input.take(bytes.data(), bytes.size());
        }
        if (input.below(16) == 0 && width > 0)
            stride = std::size_t(input.below(width * 4)); // too short
    }

    /// Whether the byte is none of a colour.
    bool stays(std::size_t at) const { return at % stride >= std::size_t(width) * 4 || at % stride % 4 == 3; }

    int width, height;
    std::size_t stride;
    Bytes bytes;
};

void callOnPixels(Input& input, Picture& picture)
{
    const Bytes before = picture.bytes;
    unsigned char* const pixels = picture.bytes.empty() ? nullptr : picture.bytes.data();
    const Bytes former(before.rbegin(), before.rend());
    int error = LUMORA_OK;
    switch (input.below(4)) {
    case 0:
        error = lumora_mix(input.below(120) - 10, pixels, picture.width, picture.height, picture.stride,
            former.empty() ? nullptr : former.data(), picture.stride);
        break;
    case 1:
        error = lumora_draw_border(anyNumber(input, lumora_border_count()), input.below(200), pixels, picture.width,
            picture.height, picture.stride);
        break;
    default:
        error = lumora_apply(anyNumber(input, lumora_look_count()), pixels, picture.width, picture.height,
            picture.stride, unsigned(input.below(3)));
    }
    demand(*lumora_error_text(error) != 0);
    for (std::size_t at = 0; at < before.size(); at++)
        demand(before[at] == picture.bytes[at] || (error == LUMORA_OK && !picture.stays(at)));
}

void callOnSizes(Input& input)
{
    const int crop = anyNumber(input, lumora_crop_count()), width = anySide(input), height = anySide(input);
    lumora_rect part = {};
    if (lumora_crop(crop, width, height, &part) == LUMORA_OK)
        demand(part.x >= 0 && part.y >= 0 && part.width >= 1 && part.height >= 1 && part.x <= width - part.width
            && part.y <= height - part.height);
    const int border = anyNumber(input, lumora_border_count()), side = anySide(input);
    lumora_margins margins = {};
    if (lumora_border(border, side, &margins) == LUMORA_OK)
        demand(margins.left >= 0 && margins.right >= 0 && margins.top >= 0 && margins.bottom >= 0
            && margins.left + margins.right <= side && margins.top + margins.bottom <= side);
    const int look = anyNumber(input, lumora_look_count());
    demand((lumora_look_name(look) != nullptr) == (look >= 0 && look < lumora_look_count()));
    demand(lumora_look_crop(look) < lumora_crop_count() && lumora_look_border(look) < lumora_border_count());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    callOnSizes(input);
    Picture picture(input);
    for (int step = 0; step < 2; step++)
        callOnPixels(input, picture);
    return 0;
}
