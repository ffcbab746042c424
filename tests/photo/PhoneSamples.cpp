// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/PhoneSamples.h"

#include "tests/photo/TiffSample.h"

#include <QColor>
#include <QColorSpace>
#include <QtEndian>
#include <cstring>
#ifdef LUMORA_HEIF
#include <libheif/heif.h>
#endif
#ifdef LUMORA_JXL
#include <jxl/encode.h>
#endif

/// The encoder that makes the HEIC samples keeps some memory to the end; no photo is ever decoded by it.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libx265\n";
}

namespace samples {

#ifdef LUMORA_HEIF
namespace {

void check(const heif_error& error)
{
    if (error.code != heif_error_Ok)
        qFatal("cannot encode: %s", error.message);
}

heif_error append(heif_context*, const void* data, std::size_t size, void* file)
{
    static_cast<QByteArray*>(file)->append(static_cast<const char*>(data), qsizetype(size));
    return {heif_error_Ok, heif_suberror_Unspecified, "Success"};
}

heif_image* heifImage(const QImage& picture)
{
    const bool hasAlpha = picture.hasAlphaChannel();
    const QImage rgba = picture.convertToFormat(QImage::Format_RGBA8888);
    heif_image* image = nullptr;
    check(heif_image_create(rgba.width(), rgba.height(), heif_colorspace_RGB,
        hasAlpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB, &image));
    check(heif_image_add_plane(image, heif_channel_interleaved, rgba.width(), rgba.height(), 8));
    int stride = 0;
    std::uint8_t* to = heif_image_get_plane(image, heif_channel_interleaved, &stride);
    const int bytes = hasAlpha ? 4 : 3;
    for (int y = 0; y < rgba.height(); y++)
        for (int x = 0; x < rgba.width(); x++)
            std::memcpy(to + qsizetype(y) * stride + x * bytes, rgba.constScanLine(y) + 4 * x, std::size_t(bytes));
    const QByteArray profile = picture.colorSpace().iccProfile();
    if (!profile.isEmpty())
        check(heif_image_set_raw_color_profile(image, "prof", profile.constData(), std::size_t(profile.size())));
    return image;
}

} // namespace

QByteArray heif(const QImage& stored, HeifKind kind, int orientation, const PhotoMetadata& carried)
{
    heif_context* context = heif_context_alloc();
    heif_encoder* encoder = nullptr;
    check(heif_context_get_encoder_for_format(
        context, kind == HeifKind::Hevc ? heif_compression_HEVC : heif_compression_AV1, &encoder));
    heif_encoder_set_lossy_quality(encoder, 98);
    heif_encoding_options* options = heif_encoding_options_alloc();
    options->image_orientation = heif_orientation(orientation);
    heif_image* image = heifImage(stored);
    heif_image_handle* handle = nullptr;
    check(heif_context_encode_image(context, image, encoder, options, &handle));
    if (!carried.exif.isEmpty())
        check(heif_context_add_exif_metadata(context, handle, carried.exif.constData(), int(carried.exif.size())));
    if (!carried.xmp.isEmpty())
        check(heif_context_add_XMP_metadata(context, handle, carried.xmp.constData(), int(carried.xmp.size())));
    heif_image_handle_release(handle);
    QByteArray file;
    heif_writer writer = {1, append};
    check(heif_context_write(context, &writer, &file));
    heif_image_release(image);
    heif_encoding_options_free(options);
    heif_encoder_release(encoder);
    heif_context_free(context);
    return file;
}
#else
QByteArray heif(const QImage&, HeifKind, int, const PhotoMetadata&)
{
    return {};
}
#endif

#ifdef LUMORA_JXL
QByteArray jxl(const QImage& stored, int orientation, JxlKind kind, const PhotoMetadata& carried)
{
    const bool isLossless = kind == JxlKind::Lossless;
    const bool hasAlpha = stored.hasAlphaChannel();
    const QImage picture = stored.convertToFormat(QImage::Format_RGBA8888);
    JxlEncoder* encoder = JxlEncoderCreate(nullptr);
    if (carried != PhotoMetadata())
        JxlEncoderUseBoxes(encoder);
    JxlBasicInfo info;
    JxlEncoderInitBasicInfo(&info);
    info.xsize = std::uint32_t(picture.width());
    info.ysize = std::uint32_t(picture.height());
    info.bits_per_sample = 8;
    info.orientation = JxlOrientation(orientation);
    info.uses_original_profile = isLossless;
    info.num_extra_channels = info.alpha_bits = hasAlpha ? 1 : 0;
    info.alpha_bits *= 8;
    JxlEncoderSetBasicInfo(encoder, &info);
    const QByteArray profile = stored.colorSpace().iccProfile();
    JxlColorEncoding sRgb;
    JxlColorEncodingSetToSRGB(&sRgb, JXL_FALSE);
    if (profile.isEmpty())
        JxlEncoderSetColorEncoding(encoder, &sRgb);
    else
        JxlEncoderSetICCProfile(
            encoder, reinterpret_cast<const std::uint8_t*>(profile.constData()), std::size_t(profile.size()));
    JxlEncoderFrameSettings* settings = JxlEncoderFrameSettingsCreate(encoder, nullptr);
    JxlEncoderSetFrameLossless(settings, isLossless);
    QByteArray pixels;
    for (int y = 0; y < picture.height(); y++)
        for (int x = 0; x < picture.width(); x++)
            pixels.append(reinterpret_cast<const char*>(picture.constScanLine(y)) + 4 * x, hasAlpha ? 4 : 3);
    const JxlPixelFormat format = {hasAlpha ? 4u : 3u, JXL_TYPE_UINT8, JXL_NATIVE_ENDIAN, 0};
    if (JxlEncoderAddImageFrame(settings, &format, pixels.constData(), std::size_t(pixels.size())) != JXL_ENC_SUCCESS)
        qFatal("cannot encode");
    const auto addBox = [&](const char* name, const QByteArray& content) {
        if (JxlEncoderAddBox(encoder, name, reinterpret_cast<const std::uint8_t*>(content.constData()),
                std::size_t(content.size()), !isLossless)
            != JXL_ENC_SUCCESS)
            qFatal("cannot add a box");
    };
    if (carried != PhotoMetadata()) {
        addBox("Exif", QByteArray(4, '\0') + carried.exif);
        addBox("xml ", carried.xmp);
    }
    JxlEncoderCloseInput(encoder);
    QByteArray file(pixels.size() * 2 + carried.exif.size() + carried.xmp.size() + 10000, '\0');
    auto* next = reinterpret_cast<std::uint8_t*>(file.data());
    auto left = std::size_t(file.size());
    if (JxlEncoderProcessOutput(encoder, &next, &left) != JXL_ENC_SUCCESS)
        qFatal("cannot encode");
    JxlEncoderDestroy(encoder);
    return file.chopped(qsizetype(left));
}
#else
QByteArray jxl(const QImage&, int, JxlKind, const PhotoMetadata&)
{
    return {};
}
#endif

QByteArray dng(const QImage& seen, const QList<double>& neutral, int orientation)
{
    QByteArray pixels;
    for (int y = 0; y < seen.height(); y++)
        for (int x = 0; x < seen.width(); x++) {
            const QRgba64 colour = seen.pixelColor(x, y).rgba64();
            const quint16 channels[] = {colour.red(), colour.green(), colour.blue()};
            QByteArray sample(2, '\0');
            qToLittleEndian(channels[x % 2 + y % 2], sample.data());
            pixels += sample;
        }
    QList<TiffEntry> entries = tiffPicture(seen.width(), seen.height(), 16, 1, 32803);
    entries << longs(254, {0}) << text(271, "Prism") << text(272, "Model 7") << shorts(274, {orientation})
            << shorts(33421, {2, 2}) << bytes(33422, QByteArray("\0\1\1\2", 4))
            << bytes(50706, QByteArray("\1\4\0\0", 4)) << bytes(50707, QByteArray("\1\1\0\0", 4))
            << text(50708, "Prism Model 7")
            // The sensor's colours are those of sRGB, under daylight.
            << rationals(50721, {3.2406, -1.5372, -0.4986, -0.9689, 1.8758, 0.0415, 0.0557, -0.2040, 1.0570}, true)
            << rationals(50728, neutral) << shorts(50778, {21}) << longs(50717, {65535});
    return tiff(entries, {pixels});
}

QByteArray dng(QSize size, const QList<double>& seen, const QList<double>& neutral, int orientation)
{
    QImage picture(size, QImage::Format_RGBX64);
    picture.fill(QColor::fromRgbF(float(seen[0]), float(seen[1]), float(seen[2])));
    return dng(picture, neutral, orientation);
}

} // namespace samples
