#pragma once

#include <QBuffer>
#include <QImage>
#include <QVariant>
#include <cstdint>

/// Has a reader read a file of any bytes, which must give a picture of the size that it told before, or none.
template <class Handler> void readAnyBytes(const std::uint8_t* data, std::size_t size)
{
    QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly);
    Handler handler;
    handler.setDevice(&file);
    const QSize told = handler.option(Handler::Size).toSize();
    QImage image;
    if (handler.read(&image) && image.size() != told)
        __builtin_trap();
}
