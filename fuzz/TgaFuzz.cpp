// The TGA reader on any bytes: build/fuzz/fuzz/TgaFuzz -max_total_time=600 FOLDER build/fuzz/fuzz/seeds/TgaFuzz

#include "render/formats/TgaHandler.h"

#include <QBuffer>
#include <QImage>
#include <QVariant>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly);
    TgaHandler handler;
    handler.setDevice(&file);
    const QSize told = handler.option(QImageIOHandler::Size).toSize();
    QImage image;
    if (handler.read(&image) && image.size() != told)
        __builtin_trap();
    return 0;
}
