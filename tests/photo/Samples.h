// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/PhotoLoader.h"

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QTemporaryDir>
#include <QtEndian>

/// Pictures and files that the tests of this floor make for themselves.
namespace samples {

/// A picture of pixels that all differ from their neighbours, opaque, Format_RGBX8888.
QImage noise(int width, int height, unsigned seed = 1);
/// One colour all over, Format_RGBX8888.
QImage flat(int width, int height, QColor colour);
/// Four quarters in red (top left), green (top right), blue (bottom left) and white, Format_RGBX8888.
QImage quarters(int width, int height);
/// Whether a picture that may have been a JPEG shows the quarters in that size.
bool showsQuarters(const QImage& image, QSize size);

/// The bytes of a file in that format ("png", "jpeg", "bmp", ...), without loss where the format can.
QByteArray encoded(const QImage& image, const char* format);

enum class JpegKind { Colour, Grey, Cmyk, Ycck, ManyScans };
/// A JPEG of quality 100 written by libjpeg itself: `pixels` are rows of 3 (colour), 1 (grey) or 4 (CMYK, each 255
/// minus its ink) bytes per pixel. Ycck is CMYK as layout programs store it, ManyScans a colour JPEG in 190 scans.
QByteArray jpeg(JpegKind kind, int width, int height, const QByteArray& pixels, const QByteArray& icc = {});
/// A JPEG file with EXIF of a camera: make, date, copyright, place, pixel size, the orientation and a thumbnail.
QByteArray withCameraExif(const QByteArray& jpegFile, int orientation, bool bigEndian = false);

/// The block alone.
QByteArray cameraExif(int orientation, bool bigEndian = false);

template <class T> QByteArray bigEndian(T value)
{
    QByteArray bytes(sizeof(T), 0);
    qToBigEndian(value, bytes.data());
    return bytes;
}
/// A PSD file with that block among its resources.
QByteArray psd(const QImage& picture, const QByteArray& exif);
/// A chunk of a PNG file with its length and checksum.
QByteArray pngChunk(const QByteArray& type, const QByteArray& data);

/// The largest difference of two channel bytes; 256 for pictures of different sizes.
int largestDifference(const QImage& a, const QImage& b);

void writeFile(const QByteArray& path, const QByteArray& data);
QByteArray readFile(const QByteArray& path);
/// The photo that a file of those bytes opens as, written into the folder under that name.
LoadedPhoto loaded(const QTemporaryDir& folder, const QByteArray& data, const QByteArray& name = "photo");

} // namespace samples
