// SPDX-License-Identifier: GPL-3.0-or-later
// The loader on a file of any bytes: build/asan/fuzz/LoaderFuzz -max_total_time=600 FOLDER
// build/asan/fuzz/seeds/LoaderFuzz

#include "photo/FreeMemory.h"
#include "photo/PhotoDecoder.h"
#include "photo/PhotoLoader.h"
#include "photo/PhotoRows.h"
#include "photo/PhotoSaver.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <cstdint>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

namespace {

/// A file that is nowhere but in memory.
class MemoryFile {
public:
    MemoryFile(const void* data, std::size_t size)
        : m_descriptor(memfd_create("photo", 0))
    {
        if (m_descriptor < 0 || ::write(m_descriptor, data, size) != ssize_t(size))
            std::abort();
    }
    ~MemoryFile() { close(m_descriptor); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    QByteArray path() const { return "/proc/self/fd/" + QByteArray::number(m_descriptor); }

private:
    int m_descriptor;
};

class HashedRows : public PhotoRows {
public:
    void begin(QSize) override { m_hash.reset(); }
    void take(const uchar* rows, qint64 bytes) override
    {
        m_hash.addData(QByteArrayView(reinterpret_cast<const char*>(rows), qsizetype(bytes)));
    }
    QByteArray result() const { return m_hash.result(); }

private:
    QCryptographicHash m_hash = QCryptographicHash(QCryptographicHash::Md5);
};

/// A photo in rows is the same as one in a picture.
void compareWithRows(QByteArray file, const LoadedPhoto& photo)
{
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    HashedRows rows, picture;
    const LoadedPhoto inRows = decodePhoto(buffer, freeMemory(), &rows);
    if (inRows.reason != photo.reason || inRows.restIsMissing != photo.restIsMissing)
        __builtin_trap();
    if (photo.image.isNull() || !inRows.image.isNull())
        return;
    picture.take(photo.image.constBits(), photo.image.sizeInBytes());
    if (rows.result() != picture.result())
        __builtin_trap();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    // Messages of the decoders about damaged files would drown everything else.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    static int argc = 1;
    static char name[] = "LoaderFuzz", *argv[] = {name, nullptr};
    static QCoreApplication application(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const MemoryFile file(data, size);
    const LoadedPhoto photo = loadPhoto(file.path());
    // A photo or a reason, never both or neither.
    if (photo.image.isNull() == photo.reason.isEmpty())
        __builtin_trap();
    const QImage::Format format = photo.image.format();
    if (!photo.image.isNull() && format != QImage::Format_RGBX8888 && format != QImage::Format_RGB32)
        __builtin_trap();
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    if (bytes.startsWith("\xFF\xD8"))
        compareWithRows(bytes, photo);
    // What the camera wrote is as hostile as the rest.
    if (!photo.metadata.exif.isEmpty())
        encodeJpeg(photo.image.scaled(8, 8), photo.metadata);
    return 0;
}
