// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/reader/SharedPhoto.h"

#include "photo/Reason.h"

#include <QColorSpace>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>

namespace {

/// What the photo carries beside its picture.
void setBlocks(LoadedPhoto& photo, const QList<QByteArray>& blocks)
{
    photo.metadata = {blocks.value(0), blocks.value(1), blocks.value(2), blocks.value(3)};
}

/// The memory that a picture stands in, given back with its last copy.
struct Mapping {
    void* address;
    std::size_t size;
};

void unmap(void* mapping)
{
    const auto* mapped = static_cast<Mapping*>(mapping);
    munmap(mapped->address, mapped->size);
    delete mapped;
}

} // namespace

qint64 sealedBytes(const Descriptor& memory)
{
    if (!memory || fcntl(memory.number(), F_GET_SEALS) != photoSeals)
        return 0;
    struct stat status = {};
    return fstat(memory.number(), &status) == 0 ? qint64(status.st_size) : 0;
}

LoadedPhoto receivedPhoto(const SharedPhoto& shared)
{
    const ReaderAnswer& answer = shared.answer;
    if (!answer.reason.isEmpty())
        return refusedPhoto(Reason::translated(answer.reason));
    const auto size = std::size_t(sealedBytes(shared.memory));
    // Private, so that whoever changes the picture changes no page but his own.
    void* address = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE, shared.memory.number(), 0);
    if (address == MAP_FAILED)
        return refusedPhoto(noMemoryForPhoto());
    LoadedPhoto photo;
    auto* pixels = static_cast<uchar*>(address);
    photo.image = QImage(pixels, answer.size.width(), answer.size.height(), qsizetype(answer.size.width()) * 4,
        answer.format, unmap, new Mapping{address, size});
    photo.image.setColorSpace(QColorSpace::SRgb);
    photo.restIsMissing = answer.restIsMissing;
    const char* at = reinterpret_cast<const char*>(pixels) + answer.pictureBytes();
    QList<QByteArray> blocks;
    for (const qint64 block : answer.blocks) {
        blocks << QByteArray(at, block);
        at += block;
    }
    setBlocks(photo, blocks);
    return photo;
}
