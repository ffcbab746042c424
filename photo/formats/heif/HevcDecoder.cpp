// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/heif/HevcDecoder.h"

#include "photo/formats/heif/DecodedPlanes.h"

#include <libde265/de265.h>
#include <libheif/heif_plugin.h>

namespace {

int priority(heif_compression_format format)
{
    return format == heif_compression_HEVC ? 1000 : 0; // others have 100
}

heif_error newDecoder(void** decoder)
{
    *decoder = de265_new_decoder();
    return *decoder ? decoded : notDecoded;
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
            return notDecoded;
        de265_push_NAL(decoder, at, int(unit), 0, nullptr);
        at += unit;
    }
    return at == end ? decoded : notDecoded;
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

DecodedPlanes planesOf(const de265_image* picture)
{
    DecodedPlanes found = {};
    found.chroma = chromaOf(picture);
    for (int i = 0; i < (found.chroma == heif_chroma_monochrome ? 1 : 3); i++) {
        int stride = 0;
        const std::uint8_t* pixels = de265_get_image_plane(picture, i, &stride);
        found.planes[i] = {pixels, stride, de265_get_image_width(picture, i), de265_get_image_height(picture, i),
            de265_get_bits_per_pixel(picture, i)};
    }
    found.colours = {de265_get_image_colour_primaries(picture), de265_get_image_transfer_characteristics(picture),
        de265_get_image_matrix_coefficients(picture), de265_get_image_full_range_flag(picture) != 0};
    return found;
}

heif_error decodeImage(void* decoder, heif_image** image)
{
    *image = nullptr;
    de265_flush_data(decoder);
    for (int more = 1; more != 0;) {
        const de265_error error = de265_decode(decoder, &more);
        if (error != DE265_OK)
            return notDecoded;
        if (const de265_image* picture = de265_get_next_picture(decoder))
            return copyPlanes(planesOf(picture), image);
    }
    return notDecoded;
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
