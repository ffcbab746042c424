// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/reader/Sharing.h"

#include "photo/PhotoDecoder.h"
#include "photo/PhotoRows.h"

#include <cerrno>
#include <fcntl.h>
#include <new>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

namespace {

/// What the photo carries beside its picture, as blocks.
QList<QByteArray> blocksOf(const LoadedPhoto& photo)
{
    return {photo.metadata.exif, photo.metadata.xmp, photo.metadata.iptc, photo.metadata.comment};
}

/// A photo on its way into shared memory. Its methods throw std::bad_alloc where there is no room.
class Sharing : public PhotoRows {
public:
    void begin(QSize size) override
    {
        m_shared.answer.size = size;
        m_shared.answer.format = QImage::Format_RGBX8888;
        m_shared.memory = Descriptor(memfd_create("photo", MFD_CLOEXEC | MFD_ALLOW_SEALING));
        if (!m_shared.memory)
            throw std::bad_alloc();
    }

    // Not into mapped memory: there each page costs a fault and is cleared first, which takes as long again.
    void take(const uchar* rows, qint64 bytes) override { write(rows, bytes); }

    void takePicture(const QImage& image)
    {
        begin(image.size());
        m_shared.answer.format = image.format();
        for (int y = 0; y < image.height(); y++)
            write(image.constScanLine(y), qint64(image.width()) * 4);
    }

    /// What else the photo carries, after its picture.
    SharedPhoto finish(const LoadedPhoto& photo)
    {
        m_shared.answer.restIsMissing = photo.restIsMissing;
        qint64 bytes = 0;
        for (const QByteArray& block : blocksOf(photo)) {
            // More than there may be is left behind; the photo itself matters more.
            const bool kept = bytes + block.size() <= maxBlockBytes;
            m_shared.answer.blocks << (kept ? block.size() : 0);
            bytes += m_shared.answer.blocks.last();
            write(block.constData(), m_shared.answer.blocks.last());
        }
        if (fcntl(m_shared.memory.number(), F_ADD_SEALS, photoSeals) != 0)
            throw std::bad_alloc();
        return std::move(m_shared);
    }

private:
    void write(const void* data, qint64 size)
    {
        const char* bytes = static_cast<const char*>(data);
        while (size > 0) {
            const ssize_t count = ::write(m_shared.memory.number(), bytes, std::size_t(size));
            if (count < 0 && errno != EINTR)
                throw std::bad_alloc();
            if (count > 0) {
                bytes += count;
                size -= count;
            }
        }
    }

    SharedPhoto m_shared;
};

SharedPhoto refusal(const QString& reason)
{
    SharedPhoto refused;
    refused.answer.reason = reason;
    return refused;
}

} // namespace

SharedPhoto sharedPhoto(QIODevice& file, qint64 memory)
{
    Sharing sharing;
    const LoadedPhoto photo = decodePhoto(file, memory, &sharing);
    if (!photo.reason.isEmpty())
        return refusal(photo.reason);
    try {
        if (!photo.image.isNull())
            sharing.takePicture(photo.image);
        return sharing.finish(photo);
    } catch (const std::bad_alloc&) {
        return refusal(noMemoryForPhoto());
    }
}
