// SPDX-License-Identifier: GPL-3.0-or-later
// The loader on a file of any bytes: build/asan/fuzz/LoaderFuzz -max_total_time=600 FOLDER
// build/asan/fuzz/seeds/LoaderFuzz

#include "photo/PhotoLoader.h"
#include "photo/PhotoSaver.h"

#include <QCoreApplication>
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
    // What the camera wrote is as hostile as the rest.
    if (!photo.metadata.exif.isEmpty())
        encodeJpeg(photo.image.scaled(8, 8), photo.metadata);
    return 0;
}
