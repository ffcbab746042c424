// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/reference/Framing.h"

#include "image/FilterNumber.h"
#include "tests/reference/Toolkit.h"

#include <cmath>
#include <cstdint>

using namespace lumora;

namespace reference {

void addBorder(Picture& picture, int left, int right, int top, int bottom, float red, float green, float blue)
{
    const std::int64_t newWidth = std::int64_t(left) + picture.width + right;
    const std::int64_t newHeight = std::int64_t(top) + picture.height + bottom;
    Picture framed(newWidth < 0 ? 0 : int(newWidth), newHeight < 0 ? 0 : int(newHeight));
    for (int y = 0; y < framed.height; y++)
        for (int x = 0; x < framed.width; x++) {
            unsigned char* p = framed.at(x, y);
            if (y < top || y >= newHeight - bottom || x < left || x >= newWidth - right) {
                p[0] = wrapped(red);
                p[1] = wrapped(green);
                p[2] = wrapped(blue);
            } else {
                for (int k = 0; k < 3; k++)
                    p[k] = picture.at(x - left, y - top)[k];
            }
        }
    picture = framed;
}

void fillBorder(Picture& picture, int left, int right, int top, int bottom, const unsigned char* colour)
{
    for (int y = 0; y < picture.height; y++)
        for (int x = 0; x < picture.width; x++)
            if (y < top || x < left || x >= std::int64_t(picture.width) - right
                || y >= std::int64_t(picture.height) - bottom)
                for (int k = 0; k < 3; k++)
                    picture.at(x, y)[k] = colour[k];
}

void fillRoundedBorder(
    Picture& picture, int left, int right, int top, int bottom, int radius, const unsigned char* colour)
{
    const std::int64_t R = radius, width = picture.width, height = picture.height;
    const float s = float(radius * 0.02);
    const float k = s >= 1.0f ? s : 1.0f;
    for (int y = 0; y < height; y++)
        for (int x = 0; x < width; x++) {
            bool inside = false;
            std::int64_t cx = 0, cy = 0;
            if (x >= left && x < left + R && y >= top && y < top + R)
                inside = true, cx = left + R - 1, cy = top + R - 1;
            if (x >= left && x < left + R && y >= height - bottom - R && y < height - bottom)
                inside = true, cx = left + R - 1, cy = height - bottom - R;
            if (x >= width - right - R && x < width - right && y >= top && y < top + R)
                inside = true, cx = width - right - R, cy = top + R - 1;
            if (x >= width - right - R && x < width - right && y >= height - bottom - R && y < height - bottom)
                inside = true, cx = width - right - R, cy = height - bottom - R;
            if (!inside)
                continue;
            const float dx = float(x - cx), dy = float(y - cy);
            const float d = sqrtf(dx * dx + dy * dy);
            const float q = d / float(R);
            if (!(q > 0))
                continue;
            const float q2 = q * q, q3 = q * q2, q5 = q2 * q3;
            const float q10 = q5 * q5, q20 = q10 * q10, q40 = q20 * q20;
            float a = q40 * q40;
            if (a > 1.0f)
                a = 1.0f;
            const float w = float(1.0 - (1.0 - double(a)) * double(k));
            if (double(w) > 0.1)
                for (int channel = 0; channel < 3; channel++) {
                    unsigned char* p = picture.at(x, y) + channel;
                    *p = wrapped(w * float(colour[channel]) + (1 - w) * float(*p));
                }
        }
}

void applyFilterBorder(Picture& picture, int border, int maxSide, const float (&margins)[4])
{
    int pixels[4];
    for (int k = 0; k < 4; k++)
        pixels[k] = int(float(maxSide) * margins[k]);
    const unsigned char white[3] = {255, 255, 255};
    const unsigned char level = border == Filter::cinema ? 0 : border == Filter::instant ? 245 : 255;
    if (pixels[0] > 0 || pixels[1] > 0 || pixels[2] > 0 || pixels[3] > 0) {
        const unsigned char colour[3] = {level, level, level};
        fillBorder(picture, pixels[0], pixels[1], pixels[2], pixels[3], colour);
        if (level == 255)
            for (int y = 0; y < picture.height; y++)
                for (int x = 0; x < picture.width; x++)
                    if (y == 0 || y == picture.height - 1 || x == 0 || x == picture.width - 1)
                        for (int k = 0; k < 3; k++)
                            picture.at(x, y)[k] = 200;
    }
    if (border == Filter::fisheye) {
        const float halfW = float(picture.width * 0.5), halfH = float(picture.height * 0.5);
        const float rad = halfW - halfH >= 0 ? halfH : halfW;
        vignette(picture, rad - 3.0f, rad, 3.0f, 1.0f, false, false);
        vignette(picture, float(rad * 0.3), rad, 3.0f, 0.4f, true, false);
        for (int y = 0; y < picture.height; y++)
            for (int x = 0; x < picture.width; x++) {
                const float dx = float(x - picture.width / 2), dy = float(y - picture.height / 2);
                if (sqrtf(dx * dx + dy * dy) >= rad)
                    for (int k = 0; k < 3; k++)
                        picture.at(x, y)[k] = 0;
            }
    }
    if (border == Filter::look1974 || border == Filter::rounded)
        fillRoundedBorder(picture, pixels[0], pixels[1], pixels[2], pixels[3], int(maxSide * 0.05), white);
}

} // namespace reference
