// SPDX-License-Identifier: GPL-3.0-or-later
// What the window takes from a reader, which a hostile file may have taken over: the size of the shared memory, then
// the message. build/asan/fuzz/ReaderMessageFuzz -max_total_time=600 FOLDER build/asan/fuzz/seeds/ReaderMessageFuzz

#include "photo/PhotoDecoder.h"
#include "photo/reader/Message.h"

#include <cstdint>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    qint64 sharedBytes;
    if (size < sizeof sharedBytes)
        return 0;
    std::memcpy(&sharedBytes, data, sizeof sharedBytes);
    const QByteArray message(
        reinterpret_cast<const char*>(data) + sizeof sharedBytes, qsizetype(size - sizeof sharedBytes));
    if (const auto limits = unpackedLimits(message); limits && packed(*limits) != message)
        __builtin_trap();
    const auto answer = unpackedAnswer(message, sharedBytes);
    if (!answer)
        return 0;
    // A reason, or a photo with all that it carries inside the memory. What is taken is what would have been sent.
    if (packed(*answer) != message)
        __builtin_trap();
    if (!answer->reason.isEmpty())
        return 0;
    qint64 bytes = answer->pictureBytes();
    for (const qint64 block : answer->blocks) {
        if (block < 0)
            __builtin_trap();
        bytes += block;
    }
    const bool isPicture = answer->size.width() > 0 && answer->size.height() > 0
        && answer->pictureBytes() <= maxPhotoPixels * 4
        && (answer->format == QImage::Format_RGBX8888 || answer->format == QImage::Format_RGB32);
    if (!isPicture || bytes != sharedBytes)
        __builtin_trap();
    return 0;
}
