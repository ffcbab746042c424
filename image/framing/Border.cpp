#include "image/CharImage.h"
#include "image/numbers/Arithmetic.h"
#include "image/numbers/Disc.h"
#include "image/passes/Block.h"
#include "image/toolkit/Vignette.h"

#include <algorithm>
#include <cstring>

namespace lumora {

namespace {

/// Paints the pixels of columns `from` .. `to` - 1 in a row; their spare bytes stay.
void paint(CharImage& image, int row, int from, int to, const unsigned char* colour)
{
    const Colour<int> c = {colour[0], colour[1], colour[2]};
    unsigned char* const pixels = image.data + std::size_t(row) * image.width * 4;
    for (int x = from; x < to; x++)
        Block::setBytes(pixels + std::size_t(x) * 4, c);
}

/// Black from the integer centre's distance `radius` outwards.
void maskDisc(CharImage& image, float radius)
{
    const unsigned char black[3] = {0, 0, 0};
    const int cx = image.width / 2, cy = image.height / 2;
    for (int y = 0; y < image.height; y++) {
        const int inside = columnsWithin(radius, y - cy); // on either side of the centre
        paint(image, y, 0, std::clamp(cx - inside + 1, 0, image.width), black);
        paint(image, y, std::min(cx + inside, image.width), image.width, black);
    }
}

} // namespace

void CharImage::addBorder(int left, int right, int top, int bottom, float red, float green, float blue)
{
    const int newWidth = left + width + right, newHeight = top + height + bottom;
    const std::size_t newRow = std::size_t(newWidth) * 4, row = std::size_t(width) * 4;
    CharImage framed(new unsigned char[newRow * newHeight], newWidth, newHeight);
    const unsigned char colour[3] = {truncateAndWrap(red), truncateAndWrap(green), truncateAndWrap(blue)};
    framed.fillBorder(left, right, top, bottom, colour);
    for (int y = 0; y < height; y++)
        std::memcpy(framed.data + (top + y) * newRow + std::size_t(left) * 4, data + y * row, row);
    std::swap(data, framed.data);
    bytesPerPixel = framed.bytesPerPixel;
    width = newWidth;
    height = newHeight;
}

void CharImage::fillBorder(int left, int right, int top, int bottom, const unsigned char* colour)
{
    for (int y = 0; y < height; y++) {
        if (y < top || y >= height - bottom) {
            paint(*this, y, 0, width, colour);
            continue;
        }
        paint(*this, y, 0, std::clamp(left, 0, width), colour);
        paint(*this, y, std::clamp(width - right, 0, width), width, colour);
    }
}

void CharImage::applyFilterBorder(int border, int maxSide)
{
    if (const GrowArray<int>* list = customFilters(border)) {
        if (list->numThings > 0)
            applyFilterBorder(list->theArray[list->numThings - 1], maxSide);
        return;
    }
    float left, right, top, bottom;
    getBorderReqsForFilter(border, &left, &right, &top, &bottom);
    const int l = truncateToInt(maxSide * left), r = truncateToInt(maxSide * right);
    const int t = truncateToInt(maxSide * top), b = truncateToInt(maxSide * bottom);
    const unsigned char black[3] = {0, 0, 0}, offWhite[3] = {245, 245, 245}, white[3] = {255, 255, 255};
    if (l > 0 || r > 0 || t > 0 || b > 0) {
        const unsigned char outline[3] = {200, 200, 200};
        const unsigned char* colour = border == 8 ? black : border == 4 ? offWhite : white;
        fillBorder(l, r, t, b, colour);
        if (colour == white)
            fillBorder(1, 1, 1, 1, outline);
    }
    if (border == 10) {
        const float halfWidth = float(width * 0.5), halfHeight = float(height * 0.5);
        const float radius = std::min(halfWidth, halfHeight);
        // Far outside the circle a vignette's curve would turn back to light: the corners are black instead.
        vignetteRing(*this, radius - 3.0f, radius, 3.0f, 1.0f, false);
        vignetteDisc(*this, float(radius * 0.3), radius, 3.0f, 0.4f, true);
        maskDisc(*this, radius);
    }
    if (border == 7 || border == 29)
        fillRoundedBorder(l, r, t, b, int(maxSide * 0.05), white);
}

} // namespace lumora
