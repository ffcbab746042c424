// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "image/CharImage.h"

#include <cstddef>
#include <functional>

namespace lumora {

/// Sides in pixels that the library takes, one by one and together.
bool isSide(int pixels);
bool isSize(int width, int height);

/// A caller's picture: rows of width x 4 bytes, `stride` bytes from one to the next.
struct Pixels {
    unsigned char* data;
    int width, height;
    std::size_t stride;

    /// LUMORA_OK, or the code of what is wrong with it.
    int fault() const;
    unsigned char* row(int y) const { return data + std::size_t(y) * stride; }
};

/// Runs `work` on a copy and brings its colours back once it has succeeded; the size must stay. LUMORA_OK, or
/// LUMORA_NO_MEMORY, and then the picture is as it was.
int workOn(const Pixels& pixels, const std::function<void(CharImage&)>& work);

} // namespace lumora
