// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/raw/RawHandler.h"

#include "photo/formats/TiffDirectories.h"
#include "photo/metadata/MetadataReader.h"

#include <QImage>
#include <QVariant>
#include <cstring>
#include <dlfcn.h>
#include <libraw/libraw.h>

namespace {

struct FreeDeveloped {
    void operator()(libraw_processed_image_t* picture) const { LibRaw::dcraw_clear_mem(picture); }
};

/// Where the library was built with OpenMP, its loops would run in threads.
void keepToOneThread()
{
    if (void* setThreads = dlsym(RTLD_DEFAULT, "omp_set_num_threads"))
        reinterpret_cast<void (*)(int)>(setThreads)(1);
}

/// Copies rows of one or three bytes a pixel; null for another kind.
QImage imageOf(const libraw_processed_image_t& picture)
{
    const bool known = picture.type == LIBRAW_IMAGE_BITMAP && picture.bits == 8;
    const qsizetype row = qsizetype(picture.width) * picture.colors;
    if (!known || (picture.colors != 1 && picture.colors != 3) || qsizetype(picture.data_size) < row * picture.height)
        return {};
    QImage image(
        picture.width, picture.height, picture.colors == 3 ? QImage::Format_RGB888 : QImage::Format_Grayscale8);
    for (int y = 0; y < image.height(); y++)
        std::memcpy(image.scanLine(y), picture.data + y * row, std::size_t(row));
    return image;
}

} // namespace

RawHandler::RawHandler() = default;
RawHandler::~RawHandler() = default;

std::unique_ptr<LibRaw> RawHandler::opened() const
{
    if (m_bytes.isEmpty() && device())
        m_bytes = device()->readAll();
    keepToOneThread();
    auto raw = std::make_unique<LibRaw>(LIBRAW_OPIONS_NO_DATAERR_CALLBACK);
    const bool isOpen = raw->open_buffer(m_bytes.data(), std::size_t(m_bytes.size())) == LIBRAW_SUCCESS;
    return isOpen ? std::move(raw) : nullptr;
}

bool RawHandler::canRead() const
{
    return opened() != nullptr;
}

QVariant RawHandler::option(ImageOption option) const
{
    const auto raw = opened();
    if (!raw)
        return {};
    if (option == ImageFormat)
        return QImage::Format_RGBX64; // what it works in
    if (option != Size || raw->adjust_sizes_info_only() != LIBRAW_SUCCESS)
        return {};
    const auto& sizes = raw->imgdata.sizes;
    return QSize(sizes.iwidth, sizes.iheight);
}

bool RawHandler::read(QImage* image)
{
    const auto raw = opened();
    if (!raw)
        return false;
    raw->imgdata.params.use_camera_wb = 1;
    if (raw->unpack() != LIBRAW_SUCCESS || raw->dcraw_process() != LIBRAW_SUCCESS)
        return false;
    const std::unique_ptr<libraw_processed_image_t, FreeDeveloped> picture(raw->dcraw_make_mem_image());
    *image = picture ? imageOf(*picture) : QImage();
    return !image->isNull();
}

PhotoMetadata RawHandler::metadata() const
{
    return isTiff(m_bytes) ? PhotoMetadata() : metadataByLibrary(m_bytes);
}
