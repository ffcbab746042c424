// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/ImageBridge.h"

#include "image/CharImage.h"
#include "image/framing/BestFit.h"
#include "photo/OnWhite.h"
#include "render/LargePages.h"
#include "render/Resample.h"

#include <QTransform>
#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <memory>

using namespace lumora;

namespace {

constexpr int halfTurn = 1, turnRight = 0, turnLeft = 2, upright = 3; // as every other code

bool isQuarterTurn(int orientation)
{
    return orientation == turnRight || orientation == turnLeft;
}

std::size_t blockSize(int width, int height)
{
    return std::size_t(width) * std::size_t(height) * 4;
}

QImage turned(const QImage& image, int orientation)
{
    // QTransform turns clockwise, its y axis points down.
    switch (orientation) {
    case turnRight:
        return image.transformed(QTransform().rotate(90));
    case turnLeft:
        return image.transformed(QTransform().rotate(-90));
    case halfTurn:
        return image.transformed(QTransform().rotate(180));
    default:
        return image;
    }
}

struct Margins {
    int left, right, top, bottom;

    bool none() const { return left == 0 && right == 0 && top == 0 && bottom == 0; }
};

/// The rectangle that a picture of the aspect fills: as wide or as high as the area inside the margins, whichever side
/// is tighter. Its own sides are whole; the overflow is cut off equally at both ends and may leave half pixels.
PlacedRect fillArea(float aspect, int outWidth, int outHeight, const Margins& margins)
{
    double x, y, width, height; // y of the lower edge, upwards
    if (aspect < float(outWidth) / float(outHeight)) {
        width = outWidth - margins.left - margins.right;
        height = std::trunc(float(width) / aspect);
        x = margins.left;
        y = (outHeight - height) * 0.5 + (margins.bottom - margins.top) * 0.5;
    } else {
        height = outHeight - margins.top - margins.bottom;
        width = std::trunc(aspect * float(height));
        y = margins.bottom;
        x = (outWidth - width) * 0.5 + (margins.left - margins.right) * 0.5;
    }
    return {x, outHeight - (y + height), width, height};
}

/// Whether a picture drawn there leaves nothing of the output as it was.
bool covers(const PlacedRect& rect, int outWidth, int outHeight)
{
    return rect.x <= 0.0 && rect.y <= 0.0 && rect.x + rect.width >= outWidth && rect.y + rect.height >= outHeight;
}

/// Two pixels at a time: this walks over every render.
void fillSpareBytes(unsigned char* pixels, std::size_t size)
{
    constexpr unsigned char spareBytes[] = {0, 0, 0, 255, 0, 0, 0, 255};
    std::uint64_t spare, pair;
    std::memcpy(&spare, spareBytes, sizeof spare);
    std::size_t i = 0;
    for (; i + sizeof pair <= size; i += sizeof pair) {
        std::memcpy(&pair, pixels + i, sizeof pair);
        pair |= spare;
        std::memcpy(pixels + i, &pair, sizeof pair);
    }
    if (i < size)
        pixels[i + 3] = 255;
}

/// From Format_RGB32 to the order of an exchange block, in place: QImage would make a copy.
void orderChannels(unsigned char* pixels, std::size_t size)
{
    for (std::size_t i = 0; i < size; i += 4) {
        QRgb colour;
        std::memcpy(&colour, pixels + i, 4);
        const auto ordered = qToBigEndian<QRgb>(colour << 8 | 255);
        std::memcpy(pixels + i, &ordered, 4);
    }
}

void freeBlock(void* pixels)
{
    delete[] static_cast<unsigned char*>(pixels);
}

/// The rows of an output that its block takes.
struct RowsOf {
    int first, count;
};

void draw(const QImage& image, unsigned char* block, int outWidth, int outHeight, int orientation,
    const Margins& margins, bool fast, const RowsOf& taken)
{
    const std::size_t size = blockSize(outWidth, taken.count);
    if (image.isNull()) {
        std::memset(block, 255, size);
        return;
    }
    const QImage source = turned(onWhiteInEitherOrder(image), orientation);
    // Single precision can lose a pixel of the picture's own aspect; a picture of the output's size fills it.
    PlacedRect rect{0, 0, double(outWidth), double(outHeight)};
    if (!margins.none() || source.width() != outWidth || source.height() != outHeight)
        rect = fillArea(float(source.width()) / float(source.height()), outWidth, outHeight, margins);
    // Turning the drawing to the left or by half takes the rectangle to the other side of the centre.
    if (orientation == turnLeft || orientation == halfTurn) {
        rect.x = outWidth - (rect.x + rect.width);
        rect.y = outHeight - (rect.y + rect.height);
    }
    if (!covers(rect, outWidth, outHeight))
        std::memset(block, 255, size);
    const PixelRows rows{source.constBits(), std::size_t(source.bytesPerLine()), source.width(), source.height()};
    drawScaledRows(rows, rect, fast, block, outWidth, outHeight, taken.first, taken.count);
    if (source.format() == QImage::Format_RGB32)
        orderChannels(block, size);
}

} // namespace

QSize fittedSize(const QSize& image, float aspect, int boxWidth, int boxHeight, int orientation)
{
    const int width = image.width(), height = image.height();
    const bool quarterTurn = isQuarterTurn(orientation);
    if (aspect < 0.0f)
        aspect = float(width) / float(height);
    if (boxWidth < 0)
        boxWidth = width;
    if (boxHeight < 0)
        boxHeight = height;
    int outWidth = quarterTurn ? height : width, outHeight = quarterTurn ? width : height;
    if (boxWidth >= 1 || boxHeight >= 1) {
        if (boxWidth < 1)
            boxWidth = outWidth;
        else if (boxHeight < 1)
            boxHeight = outHeight;
        float fitWidth, fitHeight;
        findBestFit(aspect, 1.0f, float(boxWidth), float(boxHeight), &fitWidth, &fitHeight);
        outWidth = int(fitWidth);
        outHeight = int(fitHeight);
    }
    // A strip may round to nothing: it keeps a line of pixels.
    return {std::max(outWidth, 1), std::max(outHeight, 1)};
}

CharImage* charImageFromNSImage(const QImage& image, float aspect, int boxWidth, int boxHeight, int left, int right,
    int top, int bottom, bool fast, int orientation)
{
    const QSize size = fittedSize(image.size(), aspect, boxWidth, boxHeight, orientation);
    unsigned char* block =
        getRGBACharImageArray(image, size.width(), size.height(), orientation, left, right, top, bottom, fast);
    return new CharImage(block, size.width(), size.height());
}

unsigned char* getRGBACharImageArray(const QImage& image, int outWidth, int outHeight, int orientation, int left,
    int right, int top, int bottom, bool fast)
{
    auto block = newExchangeBlock(outWidth, outHeight);
    draw(image, block.get(), outWidth, outHeight, orientation, {left, right, top, bottom}, fast, {0, outHeight});
    return block.release();
}

std::unique_ptr<unsigned char[]> newExchangeBlock(int width, int height)
{
    const std::size_t size = blockSize(width, height);
    std::unique_ptr<unsigned char[]> block(new unsigned char[size]);
    useLargePages(block.get(), size);
    return block;
}

void drawIntoBlock(const QImage& image, unsigned char* block, int outWidth, int outHeight)
{
    drawRowsIntoBlock(image, block, outWidth, outHeight, 0, outHeight);
}

void drawRowsIntoBlock(
    const QImage& image, unsigned char* block, int outWidth, int outHeight, int firstRow, int rowCount)
{
    draw(image, block, outWidth, outHeight, upright, {0, 0, 0, 0}, false, {firstRow, rowCount});
}

QImage getImageRefFromRGBACharArray(unsigned char* pixels, int width, int height)
{
    fillSpareBytes(pixels, blockSize(width, height));
    return opaqueImage(pixels, width, height);
}

QImage opaqueImage(unsigned char* pixels, int width, int height)
{
    return QImage(pixels, width, height, qsizetype(width) * 4, QImage::Format_RGBX8888, freeBlock, pixels);
}

QImage NSImageFromCharImage(const CharImage* image)
{
    const std::size_t size = image->pixelCount() * 4;
    auto* block = new unsigned char[size];
    std::memcpy(block, image->data, size);
    return getImageRefFromRGBACharArray(block, image->width, image->height);
}
