// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/Samples.h"

#include <QBuffer>
#include <QFile>
#include <QImageWriter>
#include <QPainter>
#include <cstdio>
#include <cstdlib>
#include <exiv2/exiv2.hpp>
#include <fcntl.h>
#include <jpeglib.h>
#include <random>
#include <unistd.h>
#include <vector>

namespace samples {

QImage noise(int width, int height, unsigned seed)
{
    QImage image(width, height, QImage::Format_RGBX8888);
    std::mt19937 random(seed);
    for (int y = 0; y < height; y++) {
        unsigned char* pixel = image.scanLine(y);
        for (int x = 0; x < width; x++, pixel += 4) {
            const auto bits = random();
            for (int channel = 0; channel < 3; channel++)
                pixel[channel] = static_cast<unsigned char>(bits >> (8 * channel));
            pixel[3] = 255;
        }
    }
    return image;
}

QImage flat(int width, int height, QColor colour)
{
    QImage image(width, height, QImage::Format_RGBX8888);
    image.fill(colour);
    return image;
}

QImage quarters(int width, int height)
{
    QImage image = flat(width, height, Qt::white);
    QPainter painter(&image);
    painter.fillRect(0, 0, width / 2, height / 2, QColor(255, 0, 0));
    painter.fillRect(width / 2, 0, width - width / 2, height / 2, QColor(0, 255, 0));
    painter.fillRect(0, height / 2, width / 2, height - height / 2, QColor(0, 0, 255));
    return image;
}

bool showsQuarters(const QImage& image, QSize size)
{
    if (image.size() != size)
        return false;
    QImage centres(2, 2, QImage::Format_RGBX8888);
    for (int y = 0; y < 2; y++)
        for (int x = 0; x < 2; x++)
            centres.setPixel(x, y, image.pixel(size.width() * (1 + 2 * x) / 4, size.height() * (1 + 2 * y) / 4));
    return largestDifference(centres, quarters(2, 2)) <= 6;
}

QByteArray encoded(const QImage& image, const char* format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    if (qstrcmp(format, "png") != 0)
        writer.setQuality(100);
    if (!writer.write(image))
        qFatal("cannot write a %s file", format);
    return buffer.data();
}

QByteArray jpeg(JpegKind kind, int width, int height, const QByteArray& pixels, const QByteArray& icc)
{
    jpeg_compress_struct info;
    jpeg_error_mgr errors;
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    unsigned char* file = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&info, &file, &size);
    info.image_width = JDIMENSION(width);
    info.image_height = JDIMENSION(height);
    const bool isOfInks = kind == JpegKind::Cmyk || kind == JpegKind::Ycck;
    info.input_components = kind == JpegKind::Grey ? 1 : isOfInks ? 4 : 3;
    info.in_color_space = kind == JpegKind::Grey ? JCS_GRAYSCALE : isOfInks ? JCS_CMYK : JCS_RGB;
    jpeg_set_defaults(&info);
    if (kind == JpegKind::Ycck)
        jpeg_set_colorspace(&info, JCS_YCCK);
    jpeg_set_quality(&info, 100, TRUE);
    std::vector<jpeg_scan_info> scans;
    if (kind == JpegKind::ManyScans) {
        scans.push_back({3, {0, 1, 2, 0}, 0, 0, 0, 0});
        for (int component = 0; component < 3; component++)
            for (int coefficient = 1; coefficient < 64; coefficient++)
                scans.push_back({1, {component, 0, 0, 0}, coefficient, coefficient, 0, 0});
        info.scan_info = scans.data();
        info.num_scans = int(scans.size());
    }
    jpeg_start_compress(&info, TRUE);
    if (!icc.isEmpty())
        jpeg_write_icc_profile(&info, reinterpret_cast<const JOCTET*>(icc.constData()), unsigned(icc.size()));
    while (info.next_scanline < info.image_height) {
        const qsizetype offset = qsizetype(info.next_scanline) * width * info.input_components;
        auto* row = reinterpret_cast<JSAMPROW>(const_cast<char*>(pixels.constData() + offset));
        jpeg_write_scanlines(&info, &row, 1);
    }
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    const QByteArray data(reinterpret_cast<const char*>(file), qsizetype(size));
    std::free(file);
    return data;
}

QByteArray withCameraExif(const QByteArray& jpegFile, int orientation, bool bigEndian)
{
    const auto image =
        Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte*>(jpegFile.constData()), long(jpegFile.size()));
    image->readMetadata();
    Exiv2::ExifData exif;
    exif["Exif.Image.Make"] = "Prism";
    exif["Exif.Image.Model"] = "Model 7";
    exif["Exif.Image.Copyright"] = "A. Person";
    exif["Exif.Image.Orientation"] = std::uint16_t(orientation);
    exif["Exif.Image.ImageWidth"] = std::uint32_t(9999);
    exif["Exif.Photo.DateTimeOriginal"] = "2021:06:05 04:03:02";
    exif["Exif.Photo.PixelXDimension"] = std::uint32_t(9999);
    exif["Exif.Photo.PixelYDimension"] = std::uint32_t(8888);
    exif["Exif.Photo.ColorSpace"] = std::uint16_t(65535);
    exif["Exif.GPSInfo.GPSLatitudeRef"] = "N";
    exif["Exif.GPSInfo.GPSLatitude"] = "52/1 30/1 0/1";
    const QByteArray thumbnail = encoded(flat(16, 16, Qt::red), "jpeg");
    Exiv2::ExifThumb(exif).setJpegThumbnail(
        reinterpret_cast<const Exiv2::byte*>(thumbnail.constData()), long(thumbnail.size()));
    image->setByteOrder(bigEndian ? Exiv2::bigEndian : Exiv2::littleEndian);
    image->setExifData(exif);
    image->writeMetadata();
    Exiv2::BasicIo& io = image->io();
    return QByteArray(reinterpret_cast<const char*>(io.mmap()), qsizetype(io.size()));
}

QByteArray cameraExif(int orientation, bool bigEndian)
{
    const QByteArray file = withCameraExif(encoded(flat(8, 8, Qt::red), "jpeg"), orientation, bigEndian);
    const qsizetype at = file.indexOf(QByteArray("Exif\0\0", 6));
    return file.mid(at + 6, qFromBigEndian<quint16>(file.constData() + at - 2) - 8);
}

QByteArray psd(const QImage& picture, const QByteArray& exif)
{
    const auto sized = [](const QByteArray& block) { return bigEndian(quint32(block.size())) + block; };
    const QByteArray resource = "8BIM" + bigEndian(quint16(0x0422)) + QByteArray(2, 0) + sized(exif);
    QByteArray file = "8BPS" + bigEndian(quint16(1)) + QByteArray(6, 0) + bigEndian(quint16(3))
        + bigEndian(quint32(picture.height())) + bigEndian(quint32(picture.width())) + bigEndian(quint16(8))
        + bigEndian(quint16(3)) + sized({}) + sized(resource + QByteArray(resource.size() % 2, 0)) + sized({})
        + bigEndian(quint16(0));
    for (int channel = 0; channel < 3; channel++)
        for (int y = 0; y < picture.height(); y++)
            for (int x = 0; x < picture.width(); x++)
                file += char(picture.pixel(x, y) >> (16 - 8 * channel));
    return file;
}

QByteArray pngChunk(const QByteArray& type, const QByteArray& data)
{
    quint32 checksum = 0xFFFFFFFF;
    for (const char byte : type + data) {
        checksum ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; bit++)
            checksum = checksum & 1 ? checksum >> 1 ^ 0xEDB88320 : checksum >> 1;
    }
    return bigEndian(quint32(data.size())) + type + data + bigEndian(~checksum);
}

int largestDifference(const QImage& a, const QImage& b)
{
    if (a.size() != b.size())
        return 256;
    int largest = 0;
    for (int y = 0; y < a.height(); y++)
        for (int x = 0; x < a.width(); x++) {
            const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            largest = std::max({largest, std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                std::abs(qBlue(p) - qBlue(q)), std::abs(qAlpha(p) - qAlpha(q))});
        }
    return largest;
}

void writeFile(const QByteArray& path, const QByteArray& data)
{
    const int descriptor = open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (descriptor < 0 || write(descriptor, data.constData(), std::size_t(data.size())) != data.size())
        qFatal("cannot write %s", path.constData());
    close(descriptor);
}

QByteArray readFile(const QByteArray& path)
{
    QByteArray data;
    const int descriptor = open(path.constData(), O_RDONLY | O_CLOEXEC);
    char chunk[65536];
    for (ssize_t count; descriptor >= 0 && (count = read(descriptor, chunk, sizeof chunk)) > 0;)
        data.append(chunk, count);
    if (descriptor >= 0)
        close(descriptor);
    return data;
}

LoadedPhoto loaded(const QTemporaryDir& folder, const QByteArray& data, const QByteArray& name)
{
    const QByteArray path = QFile::encodeName(folder.path()) + '/' + name;
    unlink(path.constData()); // some file systems flush a file that is written over
    writeFile(path, data);
    return loadPhoto(path);
}

} // namespace samples
