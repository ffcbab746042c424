// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/jxl/JxlHandler.h"

#include "photo/formats/ExifItem.h"

#include <QColorSpace>
#include <QImage>
#include <QVariant>
#include <jxl/decode.h>
#include <memory>
#include <optional>

namespace {

/// Red, green, blue and alpha. More than eight bits a channel are kept until the colours are converted: the profile may
/// spread them.
JxlPixelFormat pixelFormat(bool isDeep)
{
    return {4, isDeep ? JXL_TYPE_UINT16 : JXL_TYPE_UINT8, JXL_NATIVE_ENDIAN, 0};
}

struct FreeDecoder {
    void operator()(JxlDecoder* decoder) const { JxlDecoderDestroy(decoder); }
};
using Decoder = std::unique_ptr<JxlDecoder, FreeDecoder>;

/// A decoder of the file that stops at those events. It has no runner, and so no threads.
Decoder decoderOf(const QByteArray& file, int events)
{
    Decoder decoder(JxlDecoderCreate(nullptr));
    if (!decoder || JxlDecoderSubscribeEvents(decoder.get(), events) != JXL_DEC_SUCCESS
        || JxlDecoderSetInput(
               decoder.get(), reinterpret_cast<const std::uint8_t*>(file.constData()), std::size_t(file.size()))
            != JXL_DEC_SUCCESS)
        return nullptr;
    JxlDecoderCloseInput(decoder.get());
    return decoder;
}

std::optional<JxlBasicInfo> infoOf(const QByteArray& file)
{
    const Decoder decoder = decoderOf(file, JXL_DEC_BASIC_INFO);
    JxlBasicInfo info;
    if (!decoder || JxlDecoderProcessInput(decoder.get()) != JXL_DEC_BASIC_INFO
        || JxlDecoderGetBasicInfo(decoder.get(), &info) != JXL_DEC_SUCCESS || info.xsize > 0x7fffffff
        || info.ysize > 0x7fffffff)
        return {};
    return info;
}

QColorSpace coloursOf(const JxlDecoder* decoder, [[maybe_unused]] const JxlPixelFormat& format)
{
    constexpr JxlColorProfileTarget data = JXL_COLOR_PROFILE_TARGET_DATA;
    std::size_t size = 0;
    // From 0.9 on the library does not ask for the format.
#if JPEGXL_NUMERIC_VERSION < JPEGXL_COMPUTE_NUMERIC_VERSION(0, 9, 0)
    const auto getSize = [&] { return JxlDecoderGetICCProfileSize(decoder, &format, data, &size); };
    const auto get = [&](std::uint8_t* to) { return JxlDecoderGetColorAsICCProfile(decoder, &format, data, to, size); };
#else
    const auto getSize = [&] { return JxlDecoderGetICCProfileSize(decoder, data, &size); };
    const auto get = [&](std::uint8_t* to) { return JxlDecoderGetColorAsICCProfile(decoder, data, to, size); };
#endif
    if (getSize() != JXL_DEC_SUCCESS)
        return {};
    QByteArray profile(qsizetype(size), '\0');
    const bool told = get(reinterpret_cast<std::uint8_t*>(profile.data())) == JXL_DEC_SUCCESS;
    return told ? QColorSpace::fromIccProfile(profile) : QColorSpace();
}

QImage::Format formatOf(const JxlBasicInfo& info)
{
    const bool deep = info.bits_per_sample > 8;
    if (info.alpha_bits == 0)
        return deep ? QImage::Format_RGBX64 : QImage::Format_RGBX8888;
    if (info.alpha_premultiplied)
        return deep ? QImage::Format_RGBA64_Premultiplied : QImage::Format_RGBA8888_Premultiplied;
    return deep ? QImage::Format_RGBA64 : QImage::Format_RGBA8888;
}

/// Goes on to the end of the first frame, whose pixels become those of `picture`. False where it is not whole.
bool decode(JxlDecoder* decoder, QImage& picture)
{
    const JxlPixelFormat format = pixelFormat(picture.depth() == 64);
    QColorSpace colours;
    for (;;) {
        switch (JxlDecoderProcessInput(decoder)) {
        case JXL_DEC_COLOR_ENCODING:
            colours = coloursOf(decoder, format);
            break;
        case JXL_DEC_NEED_IMAGE_OUT_BUFFER: {
            std::size_t size = 0;
            if (JxlDecoderImageOutBufferSize(decoder, &format, &size) != JXL_DEC_SUCCESS
                || size != std::size_t(picture.sizeInBytes())
                || JxlDecoderSetImageOutBuffer(decoder, &format, picture.bits(), size) != JXL_DEC_SUCCESS)
                return false;
            break;
        }
        case JXL_DEC_FULL_IMAGE:
            picture.setColorSpace(colours);
            return true;
        default:
            return false;
        }
    }
}

} // namespace

QByteArray JxlHandler::bytes() const
{
    if (m_bytes.isEmpty() && device())
        m_bytes = device()->readAll();
    return m_bytes;
}

bool JxlHandler::canRead() const
{
    return infoOf(bytes()).has_value();
}

QVariant JxlHandler::option(ImageOption option) const
{
    const auto info = infoOf(bytes());
    if (!info)
        return {};
    if (option == Size)
        return QSize(int(info->xsize), int(info->ysize));
    // What the decoder itself works in is larger than what comes out.
    return option == ImageFormat ? QVariant(QImage::Format_RGBA32FPx4) : QVariant();
}

bool JxlHandler::read(QImage* image)
{
    const auto info = infoOf(bytes());
    if (!info)
        return false;
    QImage picture(int(info->xsize), int(info->ysize), formatOf(*info));
    const Decoder decoder = decoderOf(bytes(), JXL_DEC_COLOR_ENCODING | JXL_DEC_FULL_IMAGE);
    if (picture.isNull() || !decoder || !decode(decoder.get(), picture))
        return false;
    *image = picture;
    return true;
}

PhotoMetadata JxlHandler::metadata() const
{
    PhotoMetadata found;
    const Decoder decoder = decoderOf(bytes(), JXL_DEC_BOX);
    if (!decoder || JxlDecoderSetDecompressBoxes(decoder.get(), JXL_TRUE) != JXL_DEC_SUCCESS)
        return found;
    QByteArray content, *wanted = nullptr; // of the box in which the decoder is
    for (;;) {
        const JxlDecoderStatus status = JxlDecoderProcessInput(decoder.get());
        const bool isWhole = status == JXL_DEC_BOX || status == JXL_DEC_SUCCESS; // not if it is too long, or broken
        const auto unused = qsizetype(JxlDecoderReleaseBoxBuffer(decoder.get()));
        if (wanted && isWhole)
            *wanted = wanted == &found.exif ? exifOfItem(content.chopped(unused)) : content.chopped(unused);
        if (status != JXL_DEC_BOX)
            return found;
        JxlBoxType type;
        const bool isNamed = JxlDecoderGetBoxType(decoder.get(), type, JXL_TRUE) == JXL_DEC_SUCCESS;
        const QByteArray name = isNamed ? QByteArray(type, sizeof type) : QByteArray();
        wanted = name == "Exif" ? &found.exif : name == "xml " ? &found.xmp : nullptr;
        if (!wanted)
            continue;
        content = QByteArray(longestBlock, '\0');
        JxlDecoderSetBoxBuffer(
            decoder.get(), reinterpret_cast<std::uint8_t*>(content.data()), std::size_t(content.size()));
    }
}
