// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/heif/DecodedPlanes.h"

#include <cstring>

namespace {

/// False without memory for it.
bool copyPlane(const DecodedPlanes::Plane& plane, heif_channel channel, heif_image* image)
{
    if (!plane.pixels || plane.width <= 0 || plane.height <= 0
        || heif_image_add_plane(image, channel, plane.width, plane.height, plane.bits).code != heif_error_Ok)
        return false;
    int stride = 0;
    std::uint8_t* to = heif_image_get_plane(image, channel, &stride);
    const auto* from = static_cast<const std::uint8_t*>(plane.pixels);
    const std::size_t row = std::size_t(plane.width) * (plane.bits > 8 ? 2 : 1);
    for (int y = 0; to && y < plane.height; y++)
        std::memcpy(to + std::ptrdiff_t(y) * stride, from + y * plane.stride, row);
    return to != nullptr;
}

void copyColours(const DecodedPlanes& from, heif_image* image)
{
    heif_color_profile_nclx* colours = heif_nclx_color_profile_alloc();
    if (!colours)
        return;
    heif_nclx_color_profile_set_color_primaries(colours, std::uint16_t(from.colours.primaries));
    heif_nclx_color_profile_set_transfer_characteristics(colours, std::uint16_t(from.colours.curve));
    heif_nclx_color_profile_set_matrix_coefficients(colours, std::uint16_t(from.colours.matrix));
    colours->full_range_flag = from.colours.isFullRange;
    heif_image_set_nclx_color_profile(image, colours);
    heif_nclx_color_profile_free(colours);
}

} // namespace

heif_error copyPlanes(const DecodedPlanes& from, heif_image** image)
{
    constexpr heif_channel channels[] = {heif_channel_Y, heif_channel_Cb, heif_channel_Cr};
    const int planes = from.chroma == heif_chroma_monochrome ? 1 : 3;
    const heif_error created = heif_image_create(from.planes[0].width, from.planes[0].height,
        planes == 1 ? heif_colorspace_monochrome : heif_colorspace_YCbCr, from.chroma, image);
    if (created.code != heif_error_Ok)
        return created;
    for (int plane = 0; plane < planes; plane++)
        if (!copyPlane(from.planes[plane], channels[plane], *image)) {
            heif_image_release(*image);
            *image = nullptr;
            return notDecoded;
        }
    copyColours(from, *image);
    return decoded;
}
