// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/heif/HeifHandler.h"

#include "photo/formats/ExifItem.h"
#include "photo/formats/heif/Av1Decoder.h"
#include "photo/formats/heif/HevcDecoder.h"
#include "photo/formats/heif/ItemReferences.h"

#include <QColorSpace>
#include <QImage>
#include <QVariant>
#include <QtEndian>
#include <cstring>
#include <libheif/heif.h>

namespace {

struct FreeImage {
    void operator()(heif_image* image) const { heif_image_release(image); }
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

/// More than eight bits a channel are kept until the colours are converted: the profile may spread them.
bool isDeep(const heif_image_handle* picture)
{
    return heif_image_handle_get_luma_bits_per_pixel(picture) > 8;
}

QImage::Format formatOf(const heif_image_handle* picture)
{
    const bool deep = isDeep(picture);
    if (!heif_image_handle_has_alpha_channel(picture))
        return deep ? QImage::Format_RGBX64 : QImage::Format_RGBX8888;
    if (heif_image_handle_is_premultiplied_alpha(picture))
        return deep ? QImage::Format_RGBA64_Premultiplied : QImage::Format_RGBA8888_Premultiplied;
    return deep ? QImage::Format_RGBA64 : QImage::Format_RGBA8888;
}

/// Red, green, blue and alpha of each pixel in a byte each, or, of a deep picture, in two with some of their bits.
Owned<heif_image> decodedPixels(const heif_image_handle* picture)
{
    heif_image* image = nullptr;
    heif_decode_image(picture, &image, heif_colorspace_RGB,
        isDeep(picture) ? heif_chroma_interleaved_RRGGBBAA_LE : heif_chroma_interleaved_RGBA, nullptr);
    return Owned<heif_image>(image);
}

/// Spreads numbers of so many bits over all of 16.
void spread(const std::uint8_t* from, int count, int bits, quint16* to)
{
    const quint32 most = (1u << bits) - 1;
    for (int i = 0; i < count; i++)
        to[i] = quint16((qFromLittleEndian<quint16>(from + 2 * i) * 65535u + most / 2) / most);
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
    if (!itemsComeToAnEnd(m_bytes))
        return false;
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

void HeifHandler::loadLibrary()
{
    qputenv("LIBHEIF_PLUGIN_PATH", "/proc/empty"); // there is no such folder
    heif_init(nullptr);
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
    return option == ImageFormat ? QVariant(formatOf(m_picture.get())) : QVariant();
}

bool HeifHandler::read(QImage* image)
{
    if (!open() || !provideHevcDecoder() || !provideAv1Decoder())
        return false;
    const Owned<heif_image> pixels = decodedPixels(m_picture.get());
    if (!pixels)
        return false;
    const int width = heif_image_get_width(pixels.get(), heif_channel_interleaved);
    const int height = heif_image_get_height(pixels.get(), heif_channel_interleaved);
    const int bits = heif_image_get_bits_per_pixel_range(pixels.get(), heif_channel_interleaved);
    int stride = 0;
    const std::uint8_t* from = heif_image_get_plane_readonly(pixels.get(), heif_channel_interleaved, &stride);
    if (!from || bits < 8 || bits > 16 || QSize(width, height) != option(Size).toSize())
        return false;
    QImage picture(width, height, formatOf(m_picture.get()));
    if (picture.isNull())
        return false;
    for (int y = 0; y < height; y++, from += stride)
        if (isDeep(m_picture.get()))
            spread(from, width * 4, bits, reinterpret_cast<quint16*>(picture.scanLine(y)));
        else
            std::memcpy(picture.scanLine(y), from, std::size_t(width) * 4);
    picture.setColorSpace(coloursOf(m_picture.get()));
    *image = picture;
    return true;
}

PhotoMetadata HeifHandler::metadata() const
{
    PhotoMetadata found;
    heif_item_id items[16];
    const int count =
        open() ? heif_image_handle_get_list_of_metadata_block_IDs(m_picture.get(), nullptr, items, 16) : 0;
    for (int i = 0; i < count; i++) {
        const std::size_t size = heif_image_handle_get_metadata_size(m_picture.get(), items[i]);
        if (size > std::size_t(longestBlock))
            continue;
        QByteArray block(qsizetype(size), '\0');
        if (heif_image_handle_get_metadata(m_picture.get(), items[i], block.data()).code != heif_error_Ok)
            continue;
        const QByteArray type = heif_image_handle_get_metadata_type(m_picture.get(), items[i]);
        const QByteArray content = heif_image_handle_get_metadata_content_type(m_picture.get(), items[i]);
        if (type == "Exif")
            found.exif = exifOfItem(block);
        else if (type == "mime" && content == "application/rdf+xml")
            found.xmp = block;
    }
    return found;
}
