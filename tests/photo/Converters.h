// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QTemporaryDir>

/// What the tests compare readers with: programs that come with the libraries, and the pictures that they are given.
namespace samples {

/// Red, green and blue that change from pixel to pixel, with 16 bits a channel, Format_RGBX64. Some are dark, some
/// light, none repeats.
QImage deepRamps(int width, int height);
/// The same with every transparency, Format_RGBA64.
QImage transparentRamps(int width, int height);

/// A picture that is encoded with so many bits a channel, 8 or 16 where the format has room for that many.
struct Given {
    const char* name;
    QImage picture;
    int bits;
};
/// Opaque, transparent and grey ones, in sRGB and in wider spaces.
QList<Given> toConvert(int width, int height);

/// Runs a program, which must succeed.
void run(const char* program, const QStringList& arguments);

/// Writes a picture into the folder as a PNG of 8 or 16 bits a channel with the picture's profile; gives its path.
QString png(const QTemporaryDir& folder, const QImage& picture, int bits);

/// The same photo opened from two files: the largest difference of two channel bytes, 256 where one does not open.
int largestDifference(const QString& file, const QString& otherFile);

} // namespace samples
