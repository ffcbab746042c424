#include "photo/formats/heif/HeifHandler.h"

#include "photo/formats/heif/HevcDecoder.h"

#include <QColorSpace>
#include <QImage>
#include <QVariant>
#include <cstring>
#include <libheif/heif.h>

namespace {

struct FreeImage {
    void operator()(heif_image* image) const { heif_image_release(image); }
    void operator()(heif_decoding_options* options) const { heif_decoding_options_free(options); }
    void operator()(heif_color_profile_nclx* profile) const { heif_nclx_color_profile_free(profile); }
};
template <class T> using Owned = std::unique_ptr<T, FreeImage>;

QColorSpace::TransferFunction curveOf(int number, float& gamma)
{
    gamma = number == 4 ? 2.2f : number == 5 ? 2.8f : 0.0f;
    if (number == 8)
        return QColorSpace::TransferFunction::Linear;
    return gamma > 0 ? QColorSpace::TransferFunction::Gamma : QColorSpace::TransferFunction::SRgb;
}

/// The colours of a picture that names them by numbers instead of carrying a profile.
QColorSpace namedColours(const heif_image_handle* picture)
{
    heif_color_profile_nclx* found = nullptr;
    heif_image_handle_get_nclx_color_profile(picture, &found);
    const Owned<heif_color_profile_nclx> colours(found);
    if (!colours)
        return {};
    float gamma = 0;
    const auto curve = curveOf(colours->transfer_characteristics, gamma);
    const int primaries = colours->color_primaries;
    if (primaries == 9)
        return QColorSpace({0.3127, 0.3290}, {0.708, 0.292}, {0.170, 0.797}, {0.131, 0.046}, curve, gamma);
    return QColorSpace(primaries == 12 ? QColorSpace::Primaries::DciP3D65 : QColorSpace::Primaries::SRgb, curve, gamma);
}

QColorSpace coloursOf(const heif_image_handle* picture)
{
    const std::size_t size = heif_image_handle_get_raw_color_profile_size(picture);
    if (size == 0)
        return namedColours(picture);
    QByteArray profile(qsizetype(size), '\0');
    const heif_error error = heif_image_handle_get_raw_color_profile(picture, profile.data());
    return error.code == heif_error_Ok ? QColorSpace::fromIccProfile(profile) : QColorSpace();
}

Owned<heif_image> decoded(const heif_image_handle* picture)
{
    const Owned<heif_decoding_options> options(heif_decoding_options_alloc());
    if (!options)
        return nullptr;
    options->convert_hdr_to_8bit = 1;
    options->decoder_id = "aom"; // of AVIF pictures: the other one starts threads
    heif_image* image = nullptr;
    heif_decode_image(picture, &image, heif_colorspace_RGB, heif_chroma_interleaved_RGBA, options.get());
    return Owned<heif_image>(image);
}

} // namespace

void HeifHandler::Free::operator()(heif_context* context) const
{
    heif_context_free(context);
}

void HeifHandler::Free::operator()(heif_image_handle* picture) const
{
    heif_image_handle_release(picture);
}

bool HeifHandler::open() const
{
    if (m_opened || !device())
        return m_picture != nullptr;
    m_opened = true;
    m_bytes = device()->readAll();
    m_context.reset(heif_context_alloc());
    heif_context_set_max_decoding_threads(m_context.get(), 0);
    const heif_error error = heif_context_read_from_memory_without_copy(
        m_context.get(), m_bytes.constData(), std::size_t(m_bytes.size()), nullptr);
    heif_image_handle* picture = nullptr;
    if (error.code == heif_error_Ok)
        heif_context_get_primary_image_handle(m_context.get(), &picture);
    m_picture.reset(picture);
    return picture != nullptr;
}

bool HeifHandler::canRead() const
{
    return open();
}

QVariant HeifHandler::option(ImageOption option) const
{
    if (!open())
        return {};
    if (option == Size)
        return QSize(heif_image_handle_get_width(m_picture.get()), heif_image_handle_get_height(m_picture.get()));
    return option == ImageFormat ? QVariant(QImage::Format_RGBA8888) : QVariant();
}

bool HeifHandler::read(QImage* image)
{
    if (!open() || !provideHevcDecoder())
        return false;
    const Owned<heif_image> pixels = decoded(m_picture.get());
    if (!pixels)
        return false;
    const int width = heif_image_get_width(pixels.get(), heif_channel_interleaved);
    const int height = heif_image_get_height(pixels.get(), heif_channel_interleaved);
    int stride = 0;
    const std::uint8_t* from = heif_image_get_plane_readonly(pixels.get(), heif_channel_interleaved, &stride);
    if (!from || QSize(width, height) != option(Size).toSize())
        return false;
    QImage picture(width, height, QImage::Format_RGBA8888);
    if (picture.isNull())
        return false;
    for (int y = 0; y < height; y++)
        std::memcpy(picture.scanLine(y), from + qsizetype(y) * stride, std::size_t(width) * 4);
    if (!heif_image_handle_has_alpha_channel(m_picture.get()))
        picture.reinterpretAsFormat(QImage::Format_RGBX8888);
    else if (heif_image_handle_is_premultiplied_alpha(m_picture.get()))
        picture.reinterpretAsFormat(QImage::Format_RGBA8888_Premultiplied);
    picture.setColorSpace(coloursOf(m_picture.get()));
    *image = picture;
    return true;
}
