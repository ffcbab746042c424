// SPDX-License-Identifier: GPL-3.0-or-later
// Writes a JPEG photo of any size with soft colours and fine texture: journey_photo WIDTH HEIGHT FILE

#include <QImage>
#include <QImageWriter>
#include <cmath>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "journey_photo: give the width, the height and the file\n");
        return 2;
    }
    QImage photo(std::atoi(argv[1]), std::atoi(argv[2]), QImage::Format_RGB32);
    unsigned speck = 1;
    for (int y = 0; y < photo.height(); y++) {
        auto* row = reinterpret_cast<QRgb*>(photo.scanLine(y));
        for (int x = 0; x < photo.width(); x++) {
            speck = speck * 1664525u + 1013904223u;
            const int grain = int(speck >> 28);
            const int wave = int(60.0f * std::sin(float(x) * 0.011f) * std::sin(float(y) * 0.007f));
            row[x] =
                qRgb(100 + wave + grain, 60 + 120 * y / photo.height() + grain, 60 + 120 * x / photo.width() + grain);
        }
    }
    QImageWriter writer(argv[3], "jpg");
    if (!writer.write(photo)) {
        std::fprintf(stderr, "journey_photo: %s\n", qPrintable(writer.errorString()));
        return 1;
    }
    return 0;
}
