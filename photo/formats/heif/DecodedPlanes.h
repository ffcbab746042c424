// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <libheif/heif.h>

/// What a decoder made of a picture: brightness, and two planes of colour unless it is monochrome.
struct DecodedPlanes {
    struct Plane {
        const void* pixels;
        std::ptrdiff_t stride; ///< bytes
        int width, height;
        int bits; ///< of a pixel, in one byte or two
    };

    heif_chroma chroma;
    Plane planes[3];
    /// What the picture itself says of its colours, for files that do not.
    struct {
        int primaries, curve, matrix;
        bool isFullRange;
    } colours;
};

inline constexpr heif_error decoded = {heif_error_Ok, heif_suberror_Unspecified, "Success"};
inline constexpr heif_error notDecoded = {
    heif_error_Decoder_plugin_error, heif_suberror_Unspecified, "The picture is damaged"};

/// Makes a picture of the library's own of them, which the caller releases.
heif_error copyPlanes(const DecodedPlanes& from, heif_image** image);
