// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/heif/Av1Decoder.h"

#include "photo/PhotoLimits.h"
#include "photo/formats/heif/DecodedPlanes.h"

#include <cerrno>
#include <cstring>
#include <dav1d/dav1d.h>
#include <libheif/heif_plugin.h>

namespace {

struct Decoder {
    Dav1dContext* context = nullptr;
    Dav1dData data = {}; ///< what the context has not taken yet
};

int priority(heif_compression_format format)
{
    return format == heif_compression_AV1 ? 1000 : 0; // others have 100
}

void freeDecoder(void* freed)
{
    auto* decoder = static_cast<Decoder*>(freed);
    dav1d_data_unref(&decoder->data);
    dav1d_close(&decoder->context);
    delete decoder;
}

heif_error newDecoder(void** decoder)
{
    Dav1dSettings settings;
    dav1d_default_settings(&settings);
    settings.n_threads = 1;
    settings.max_frame_delay = 1;
    settings.all_layers = 0;
    settings.frame_size_limit = unsigned(maxPhotoPixels);
    settings.logger.callback = nullptr;
    auto* made = new Decoder;
    if (dav1d_open(&made->context, &settings) == 0) {
        *decoder = made;
        return decoded;
    }
    delete made;
    return notDecoded;
}

heif_error pushData(void* pushed, const void* data, std::size_t size)
{
    Dav1dData& to = static_cast<Decoder*>(pushed)->data;
    dav1d_data_unref(&to);
    std::uint8_t* bytes = size > 0 ? dav1d_data_create(&to, size) : nullptr;
    if (!bytes)
        return notDecoded;
    std::memcpy(bytes, data, size);
    return decoded;
}

DecodedPlanes planesOf(const Dav1dPicture& picture)
{
    constexpr heif_chroma chromas[] = {heif_chroma_monochrome, heif_chroma_420, heif_chroma_422, heif_chroma_444};
    const Dav1dPictureParameters& shape = picture.p;
    const bool isNarrow = shape.layout == DAV1D_PIXEL_LAYOUT_I420 || shape.layout == DAV1D_PIXEL_LAYOUT_I422;
    const bool isLow = shape.layout == DAV1D_PIXEL_LAYOUT_I420;
    DecodedPlanes found = {};
    found.chroma = chromas[shape.layout];
    found.planes[0] = {picture.data[0], picture.stride[0], shape.w, shape.h, shape.bpc};
    for (int i : {1, 2})
        found.planes[i] = {picture.data[i], picture.stride[1], isNarrow ? (shape.w + 1) / 2 : shape.w,
            isLow ? (shape.h + 1) / 2 : shape.h, shape.bpc};
    const Dav1dSequenceHeader& told = *picture.seq_hdr;
    found.colours = {told.pri, told.trc, told.mtrx, told.color_range != 0};
    return found;
}

heif_error decodeImage(void* decoding, heif_image** image)
{
    *image = nullptr;
    auto* decoder = static_cast<Decoder*>(decoding);
    constexpr int again = DAV1D_ERR(EAGAIN);
    // It takes some of the data, or gives a picture; where it does neither any more there is none.
    for (bool isMoving = true; isMoving;) {
        const std::size_t left = decoder->data.sz;
        const int sent = left > 0 ? dav1d_send_data(decoder->context, &decoder->data) : 0;
        Dav1dPicture picture = {};
        const int got = sent == 0 || sent == again ? dav1d_get_picture(decoder->context, &picture) : sent;
        if (got == 0) {
            const heif_error error = copyPlanes(planesOf(picture), image);
            dav1d_picture_unref(&picture);
            return error;
        }
        isMoving = got == again && decoder->data.sz < left;
    }
    return notDecoded;
}

} // namespace

bool provideAv1Decoder()
{
    // libheif keeps the address.
    static const heif_decoder_plugin plugin = {
        .plugin_api_version = 3,
        .get_plugin_name = [] { return "AV1 on the caller's thread"; },
        .init_plugin = [] {},
        .deinit_plugin = [] {},
        .does_support_format = priority,
        .new_decoder = newDecoder,
        .free_decoder = freeDecoder,
        .push_data = pushData,
        .decode_image = decodeImage,
        .set_strict_decoding = [](void*, int) {},
        .id_name = "caller-av1",
    };
    static const bool provided = heif_register_decoder_plugin(&plugin).code == heif_error_Ok;
    return provided;
}
