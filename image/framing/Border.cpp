// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/FilterCatalogue.h"
#include "image/numbers/Arithmetic.h"
#include "image/numbers/Disc.h"
#include "image/passes/Block.h"
#include "image/toolkit/Vignette.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace lumora {

namespace {

/// A side with its margins, of which negative ones crop; 0 where they leave nothing.
int framedSide(int before, int side, int after)
{
    const long long framed = (long long)before + side + after;
    if (framed > INT_MAX)
        throw std::bad_array_new_length();
    return int(std::max(framed, 0LL));
}

/// The place in a side of `length` pixels where the area inside a margin begins.
int startInside(int margin, int length)
{
    return std::clamp(margin, 0, std::max(length, 0));
}

/// The place in a side of `length` pixels where the area inside a margin at its end is over.
int endInside(int margin, int length)
{
    return int(std::clamp<long long>((long long)length - margin, 0, std::max(length, 0)));
}

unsigned char* pixelIn(CharImage& image, long long x, long long y)
{
    return image.data + (y * image.width + x) * 4;
}

/// Paints the pixels of columns `from` .. `to` - 1 in a row; their spare bytes stay.
void paint(CharImage& image, int row, int from, int to, const unsigned char* colour)
{
    const Colour<int> c = {colour[0], colour[1], colour[2]};
    unsigned char* const pixels = pixelIn(image, 0, row);
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
    CharImage framed;
    framed.width = framedSide(left, width, right);
    framed.height = framedSide(top, height, bottom);
    framed.bytesPerPixel = 4;
    framed.data = new unsigned char[framed.pixelCount() * 4];
    const unsigned char colour[3] = {truncateAndWrap(red), truncateAndWrap(green), truncateAndWrap(blue)};
    framed.fillBorder(left, right, top, bottom, colour);
    const int x = startInside(left, framed.width), kept = endInside(right, framed.width) - x;
    for (int y = startInside(top, framed.height); kept > 0 && y < endInside(bottom, framed.height); y++)
        std::memcpy(
            pixelIn(framed, x, y), pixelIn(*this, x - (long long)left, y - (long long)top), std::size_t(kept) * 4);
    std::swap(data, framed.data);
    bytesPerPixel = framed.bytesPerPixel;
    width = framed.width;
    height = framed.height;
}

void CharImage::fillBorder(int left, int right, int top, int bottom, const unsigned char* colour)
{
    const int insideTop = startInside(top, height), insideBottom = endInside(bottom, height);
    for (int y = 0; y < height; y++) {
        if (y < insideTop || y >= insideBottom) {
            paint(*this, y, 0, width, colour);
            continue;
        }
        paint(*this, y, 0, startInside(left, width), colour);
        paint(*this, y, endInside(right, width), width, colour);
    }
}

void CharImage::applyFilterBorder(int border, int maxSide)
{
    const FilterEntry& entry = framingOf(border);
    const BorderStyle style = entry.border;
    const auto pixels = [maxSide](float fraction) { return truncateToInt(maxSide * fraction); };
    const int l = pixels(entry.margins.left), r = pixels(entry.margins.right);
    const int t = pixels(entry.margins.top), b = pixels(entry.margins.bottom);
    const unsigned char black[3] = {0, 0, 0}, offWhite[3] = {245, 245, 245}, white[3] = {255, 255, 255};
    if (l > 0 || r > 0 || t > 0 || b > 0) {
        const unsigned char outline[3] = {200, 200, 200};
        const unsigned char* colour = style == BorderStyle::black ? black
            : style == BorderStyle::offWhite                      ? offWhite
                                                                  : white;
        fillBorder(l, r, t, b, colour);
        if (colour == white)
            fillBorder(1, 1, 1, 1, outline);
    }
    if (style == BorderStyle::disc) {
        const float halfWidth = float(width * 0.5), halfHeight = float(height * 0.5);
        const float radius = std::min(halfWidth, halfHeight);
        // Far outside the circle a vignette's curve would turn back to light: the corners are black instead.
        vignetteRing(*this, radius - 3.0f, radius, 3.0f, 1.0f, false);
        vignetteDisc(*this, float(radius * 0.3), radius, 3.0f, 0.4f, true);
        maskDisc(*this, radius);
    }
    if (style == BorderStyle::rounded)
        fillRoundedBorder(l, r, t, b, int(maxSide * 0.05), white);
}

} // namespace lumora
