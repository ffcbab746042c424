// SPDX-License-Identifier: GPL-3.0-or-later
// Holds a saved file to the pipeline's own render of its photo, pixel by pixel:
//
//     journey_compare SAVED PHOTO LOOKS CROP BORDER [STRENGTH]
//
// LOOKS are filter numbers with commas between them, or "none"; CROP and BORDER are filter numbers, STRENGTH is in per
// cent. With SAVED alone it tells the file's width and height.
//
//     journey_compare --shown SCREENSHOT SAVED
//
// holds the middle of what a screen shows to the middle of a saved file, pixel by pixel as far as a JPEG can tell.

#include "image/CharImage.h"
#include "photo/PhotoLoader.h"
#include "photo/PhotoSaver.h"
#include "render/RenderPipeline.h"

#include <QGuiApplication>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

using namespace lumora;

namespace {

QImage decoded(const QByteArray& jpeg)
{
    return QImage::fromData(jpeg, "JPG").convertToFormat(QImage::Format_RGB32);
}

QByteArray contents(const char* path)
{
    QByteArray bytes;
    if (std::FILE* file = std::fopen(path, "rb")) {
        char block[65536];
        while (const std::size_t count = std::fread(block, 1, sizeof block, file))
            bytes.append(block, qsizetype(count));
        std::fclose(file);
    }
    return bytes;
}

/// The mean difference of their colour bytes where `shift` moves the middle of the larger picture.
double differenceOf(const QImage& part, const QImage& whole, const QPoint& shift)
{
    const QPoint from((whole.width() - part.width()) / 2 + shift.x(), (whole.height() - part.height()) / 2 + shift.y());
    qint64 sum = 0;
    for (int y = 0; y < part.height(); y++)
        for (int x = 0; x < part.width(); x++) {
            const QRgb a = part.pixel(x, y), b = whole.pixel(x + from.x(), y + from.y());
            sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
        }
    return double(sum) / (3.0 * part.width() * part.height());
}

int compareShown(const char* screenshot, const char* saved)
{
    constexpr double most = 1; // of a byte, which is what a JPEG loses in the mean
    const QImage screen(QString::fromLocal8Bit(screenshot)), whole = decoded(contents(saved));
    QRect middle(0, 0, screen.width() / 2, screen.height() / 2); // without its edges, where words stand
    middle.moveCenter(screen.rect().center());
    const QImage part = screen.copy(middle).convertToFormat(QImage::Format_RGB32);
    if (part.isNull() || whole.width() < part.width() + 4 || whole.height() < part.height() + 4) {
        std::fprintf(stderr, "journey_compare: no pictures to be compared\n");
        return 2;
    }
    double least = 255;
    for (int y = -2; y <= 2; y++)
        for (int x = -2; x <= 2; x++)
            least = std::min(least, differenceOf(part, whole, {x, y}));
    std::printf("%s: %.2f away from %s\n", screenshot, least, saved);
    return least > most;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    if (argc == 4 && std::strcmp(argv[1], "--shown") == 0)
        return compareShown(argv[2], argv[3]);
    if (argc != 2 && argc != 6 && argc != 7) {
        std::fprintf(stderr, "journey_compare: give the saved file, the photo, the looks, the crop and the border\n");
        return 2;
    }
    const QImage saved = decoded(contents(argv[1]));
    if (argc == 2) {
        std::printf("%d %d\n", saved.width(), saved.height());
        return saved.isNull();
    }
    const LoadedPhoto photo = loadPhoto(argv[2]);
    if (photo.image.isNull()) {
        std::fprintf(stderr, "%s: %s\n", argv[2], qPrintable(photo.reason));
        return 1;
    }
    CharImage::useRandom = 0;
    GrowArray<int> looks;
    for (const QString& look : QString(argv[3]).split(',', Qt::SkipEmptyParts))
        if (look != "none")
            looks.add(look.toInt());
    RenderSettings settings = {
        .filterIDs = &looks, .cropFilter = std::atoi(argv[4]), .borderFilter = std::atoi(argv[5])};
    if (argc == 7)
        settings.strength = std::atoi(argv[6]);
    const QImage render = renderPhoto(photo.image, settings);

    const QImage expected = decoded(encodeJpeg(render, photo.metadata));
    if (saved.isNull() || saved != expected) {
        std::fprintf(stderr, "%s: %d x %d pixels, not the %d x %d pixels of the render\n", argv[1], saved.width(),
            saved.height(), expected.width(), expected.height());
        return 1;
    }
    std::printf("%s: %d x %d pixels, all as rendered\n", argv[1], saved.width(), saved.height());
    return 0;
}
