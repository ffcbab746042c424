#include "photo/formats/heif/HevcDecoder.h"

#include <cstdint>
#include <cstring>
#include <libde265/de265.h>
#include <libheif/heif.h>
#include <libheif/heif_plugin.h>

namespace {

constexpr heif_error done = {heif_error_Ok, heif_suberror_Unspecified, "Success"};
constexpr heif_error failed = {heif_error_Decoder_plugin_error, heif_suberror_Unspecified, "The picture is damaged"};

int priority(heif_compression_format format)
{
    return format == heif_compression_HEVC ? 1000 : 0; // others have 100
}

heif_error newDecoder(void** decoder)
{
    *decoder = de265_new_decoder();
    return *decoder ? done : failed;
}

/// The data are units, each behind its size in four bytes.
heif_error pushData(void* decoder, const void* data, std::size_t size)
{
    const auto* at = static_cast<const unsigned char*>(data);
    const auto* const end = at + size;
    while (end - at >= 4) {
        const std::uint32_t unit =
            std::uint32_t(at[0]) << 24 | std::uint32_t(at[1]) << 16 | std::uint32_t(at[2]) << 8 | at[3];
        at += 4;
        if (unit > std::size_t(end - at) || unit > 0x7fffffff)
            return failed;
        de265_push_NAL(decoder, at, int(unit), 0, nullptr);
        at += unit;
    }
    return at == end ? done : failed;
}

heif_chroma chromaOf(const de265_image* picture)
{
    switch (de265_get_chroma_format(picture)) {
    case de265_chroma_mono:
        return heif_chroma_monochrome;
    case de265_chroma_420:
        return heif_chroma_420;
    case de265_chroma_422:
        return heif_chroma_422;
    default:
        return heif_chroma_444;
    }
}

/// Copies a plane of the decoder's picture; false without memory for it.
bool copyPlane(const de265_image* picture, int plane, heif_image* image)
{
    constexpr heif_channel channels[] = {heif_channel_Y, heif_channel_Cb, heif_channel_Cr};
    const int width = de265_get_image_width(picture, plane), height = de265_get_image_height(picture, plane);
    const int bits = de265_get_bits_per_pixel(picture, plane);
    int fromStride = 0, toStride = 0;
    const std::uint8_t* from = de265_get_image_plane(picture, plane, &fromStride);
    if (!from || width <= 0 || height <= 0
        || heif_image_add_plane(image, channels[plane], width, height, bits).code != heif_error_Ok)
        return false;
    std::uint8_t* to = heif_image_get_plane(image, channels[plane], &toStride);
    const std::size_t row = std::size_t(width) * (bits > 8 ? 2 : 1);
    for (int y = 0; to && y < height; y++)
        std::memcpy(to + std::ptrdiff_t(y) * toStride, from + std::ptrdiff_t(y) * fromStride, row);
    return to != nullptr;
}

/// What the picture itself says of its colours, for files that do not.
void copyColours(const de265_image* picture, heif_image* image)
{
    heif_color_profile_nclx* colours = heif_nclx_color_profile_alloc();
    if (!colours)
        return;
    heif_nclx_color_profile_set_color_primaries(colours, std::uint16_t(de265_get_image_colour_primaries(picture)));
    heif_nclx_color_profile_set_transfer_characteristics(
        colours, std::uint16_t(de265_get_image_transfer_characteristics(picture)));
    heif_nclx_color_profile_set_matrix_coefficients(
        colours, std::uint16_t(de265_get_image_matrix_coefficients(picture)));
    colours->full_range_flag = de265_get_image_full_range_flag(picture) != 0;
    heif_image_set_nclx_color_profile(image, colours);
    heif_nclx_color_profile_free(colours);
}

heif_error copyPicture(const de265_image* picture, heif_image** image)
{
    const heif_chroma chroma = chromaOf(picture);
    const int planes = chroma == heif_chroma_monochrome ? 1 : 3;
    const heif_error created = heif_image_create(de265_get_image_width(picture, 0), de265_get_image_height(picture, 0),
        planes == 1 ? heif_colorspace_monochrome : heif_colorspace_YCbCr, chroma, image);
    if (created.code != heif_error_Ok)
        return created;
    for (int plane = 0; plane < planes; plane++)
        if (!copyPlane(picture, plane, *image)) {
            heif_image_release(*image);
            *image = nullptr;
            return failed;
        }
    copyColours(picture, *image);
    return done;
}

heif_error decodeImage(void* decoder, heif_image** image)
{
    *image = nullptr;
    de265_flush_data(decoder);
    for (int more = 1; more != 0;) {
        const de265_error error = de265_decode(decoder, &more);
        if (error != DE265_OK)
            return failed;
        if (const de265_image* picture = de265_get_next_picture(decoder))
            return copyPicture(picture, image);
    }
    return failed;
}

} // namespace

bool provideHevcDecoder()
{
    // libheif keeps the address.
    static const heif_decoder_plugin plugin = {
        .plugin_api_version = 3,
        .get_plugin_name = [] { return "HEVC on the caller's thread"; },
        .init_plugin = [] { de265_init(); },
        .deinit_plugin = [] { de265_free(); },
        .does_support_format = priority,
        .new_decoder = newDecoder,
        .free_decoder = [](void* decoder) { de265_free_decoder(decoder); },
        .push_data = pushData,
        .decode_image = decodeImage,
        .set_strict_decoding = [](void*, int) {},
        .id_name = "caller-hevc",
    };
    static const bool provided = heif_register_decoder_plugin(&plugin).code == heif_error_Ok;
    return provided;
}
