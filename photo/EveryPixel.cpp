// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/EveryPixel.h"

#include <QImageReader>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <utility>
#include <vector>
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

/// While this lives, memory that is allocated holds one byte all over instead of what was there before.
class FilledMemory {
public:
#ifdef __GLIBC__
    /// The byte is not 255.
    explicit FilledMemory(unsigned char byte)
    {
        mallopt(M_PERTURB, static_cast<unsigned char>(~byte)); // the complement, of which 0 would mean any byte
        // Small blocks that were freed wait apart, seven of each size, and are handed out as they are. Those are taken
        // out of the way.
        for (std::size_t size = 8; size <= 1032; size += 16)
            for (int block = 0; block < 7; block++)
                m_small.emplace_back(std::malloc(size));
    }
    ~FilledMemory()
    {
        mallopt(M_PERTURB, 0);
    }
#else
    explicit FilledMemory(unsigned char) { }
#endif
    FilledMemory(const FilledMemory&) = delete;
    FilledMemory& operator=(const FilledMemory&) = delete;

private:
    struct Free {
        void operator()(void* block) const { std::free(block); }
    };
    std::vector<std::unique_ptr<void, Free>> m_small;
};

/// Whether the decoder writes every pixel or fails, so that its pictures need no second look.
bool writesAll(const QByteArray& format)
{
    return format == "jpeg" || format == "png" || format == "webp";
}

/// A picture that the reader's decoder would make, all of that byte; null where it does not tell what it makes.
QImage filled(const QImageReader& reader, unsigned char byte)
{
    const QSize size = reader.size();
    const QImage::Format format = reader.imageFormat();
    if (!size.isValid() || format == QImage::Format_Invalid)
        return {};
    QImage image(size, format);
    if (!image.isNull())
        std::memset(image.bits(), byte, std::size_t(image.sizeInBytes()));
    return image;
}

/// Reads the picture with `byte` wherever the decoder writes nothing: into a picture that is full of it, which decoders
/// take where it fits, and in memory that is.
bool readOver(unsigned char byte, QImageReader& reader, QImage& image)
{
    const FilledMemory memory(byte);
    image = filled(reader, byte);
    return reader.read(&image);
}

/// Whether pictures of the format may leave a part of their area out.
bool needNotCoverAll(const QByteArray& format)
{
    return format == "bmp" || format == "gif";
}

bool showTheSame(QImage a, QImage b)
{
    for (QImage* image : {&a, &b})
        if (image->depth() < 32) // bits beyond a row's end and indices beyond a palette's may be anything
            image->convertTo(QImage::Format_ARGB32);
    return a == b;
}

void makeWhiteWhereDifferent(QImage& image, QImage other)
{
    for (QImage* each : {&image, &other})
        each->convertTo(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); y++) {
        auto* pixel = reinterpret_cast<QRgb*>(image.scanLine(y));
        const auto* compared = reinterpret_cast<const QRgb*>(other.constScanLine(y));
        for (int x = 0; x < image.width(); x++)
            if (pixel[x] != compared[x])
                pixel[x] = qRgb(255, 255, 255);
    }
}

} // namespace

bool readEveryPixel(QImageReader& reader, QImage& image)
{
    const QByteArray format = reader.format();
    if (writesAll(format))
        return reader.read(&image);
    if (!readOver(0, reader, image))
        return false;
    QImageReader again(reader.device(), format);
    again.setAutoTransform(reader.autoTransform());
    QImage other;
    if (!again.device()->seek(0) || !readOver(85, again, other))
        return false;
    if (showTheSame(image, other))
        return true;
    if (!needNotCoverAll(format) || image.size() != other.size())
        return false;
    makeWhiteWhereDifferent(image, std::move(other));
    return true;
}
