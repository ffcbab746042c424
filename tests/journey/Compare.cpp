// Holds a saved file to the pipeline's own render of its photo, pixel by pixel:
//
//     journey_compare SAVED PHOTO LOOKS CROP BORDER
//
// LOOKS are filter numbers with commas between them, or "none"; CROP and BORDER are filter numbers. With SAVED alone it
// tells the file's width and height.

#include "image/CharImage.h"
#include "photo/PhotoLoader.h"
#include "photo/PhotoSaver.h"
#include "render/RenderPipeline.h"

#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>

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

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    if (argc != 2 && argc != 6) {
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
    const QImage render = renderPhoto(
        photo.image, {.filterIDs = &looks, .cropFilter = std::atoi(argv[4]), .borderFilter = std::atoi(argv[5])});

    const QImage expected = decoded(encodeJpeg(render, photo.metadata));
    if (saved.isNull() || saved != expected) {
        std::fprintf(stderr, "%s: %d x %d pixels, not the %d x %d pixels of the render\n", argv[1], saved.width(),
            saved.height(), expected.width(), expected.height());
        return 1;
    }
    std::printf("%s: %d x %d pixels, all as rendered\n", argv[1], saved.width(), saved.height());
    return 0;
}
