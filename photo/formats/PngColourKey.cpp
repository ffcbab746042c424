// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/PngColourKey.h"

#include <QRgba64>
#include <QtEndian>
#include <algorithm>

namespace {

constexpr int chunkFrame = 12; ///< bytes of a chunk before and after its data: length, name and checksum
constexpr int keyLength = 6;

} // namespace

std::optional<PngColourKey> findPngColourKey(QIODevice& file)
{
    file.seek(0);
    const QByteArray head = file.read(33); // the signature and the chunk of the header
    if (head.size() < 33 || !head.startsWith("\x89PNG\r\n\x1a\n") || head.mid(12, 4) != "IHDR" || head[24] != 16
        || head[25] != 2)
        return {};
    for (qint64 chunk = head.size();;) {
        const QByteArray start = file.read(8);
        if (start.size() < 8 || start.endsWith("IDAT"))
            return {};
        const quint32 length = qFromBigEndian<quint32>(start.constData());
        if (start.endsWith("tRNS") && length == keyLength) {
            quint16_be colour[3];
            if (file.read(reinterpret_cast<char*>(colour), keyLength) != keyLength)
                return {};
            return PngColourKey{colour[0], colour[1], colour[2], chunk};
        }
        chunk += chunkFrame + qint64(length);
        if (!file.seek(chunk))
            return {};
    }
}

PngWithoutKey::PngWithoutKey(QIODevice& file, const PngColourKey& key)
    : m_file(file)
    , m_chunk(key.chunk)
{
    m_file.seek(0);
    open(QIODevice::ReadOnly);
}

qint64 PngWithoutKey::readData(char* data, qint64 size)
{
    if (m_file.pos() == m_chunk)
        m_file.seek(m_chunk + chunkFrame + keyLength);
    const qint64 ahead = m_chunk - m_file.pos();
    return m_file.read(data, ahead > 0 ? std::min(size, ahead) : size);
}

bool applyColourKey(QImage& image, const PngColourKey& key)
{
    if (image.format() != QImage::Format_RGBX64)
        return false;
    image.reinterpretAsFormat(QImage::Format_RGBA64);
    for (int y = 0; y < image.height(); y++) {
        auto* pixel = reinterpret_cast<QRgba64*>(image.scanLine(y));
        for (int x = 0; x < image.width(); x++)
            if (pixel[x].red() == key.red && pixel[x].green() == key.green && pixel[x].blue() == key.blue)
                pixel[x].setAlpha(0);
    }
    return true;
}
