// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/reference/Looks.h"
#include "tests/reference/Toolkit.h"

#include <algorithm>
#include <cmath>

namespace reference {

void fisheye(Picture& picture)
{
    const Picture source = picture;
    const int width = picture.width, height = picture.height;
    const float cx = width * 0.5f, cy = height * 0.5f;
    const float rmin = cx < cy ? cx : cy;
    for (int y = 0; y < height; y++)
        for (int x = 0; x < width; x++) {
            const float dx = float(x) - cx, dy = float(y) - cy;
            const float d = sqrtf(dx * dx + dy * dy);
            const float q = float(double(d) / (double(rmin) * 0.97));
            const float qq = q * q;
            const float m = float(double(qq) * 0.45 + 1.0);
            const float sx = (((dx * m + cx) / float(width)) * float(width) - cx) * 0.66f + cx;
            const float sy = (((dy * m + cy) / float(height)) * float(height) - cy) * 0.66f + cy;
            unsigned char* p = picture.at(x, y);
            if (sx < 0 || sy < 0 || sx >= float(width) || sy >= float(height)) {
                p[0] = p[1] = p[2] = 0;
                continue;
            }
            const int x0 = sx - 0.5f >= 0 ? int(sx - 0.5f) : 0;
            const int x1 = int(std::min(sx + 0.5f, float(width - 1)));
            const int y0 = sy - 0.5f >= 0 ? int(sy - 0.5f) : 0;
            const int y1 = int(std::min(sy + 0.5f, float(height - 1)));
            float ax = 1.0f, ay = 1.0f;
            if (x1 != x0)
                ax = std::clamp((float(x0) - sx) / float(x1 - x0) + 1.0f, 0.0f, 1.0f);
            if (y1 != y0)
                ay = std::clamp((float(y0) - sy) / float(y1 - y0) + 1.0f, 0.0f, 1.0f);
            for (int k = 0; k < 3; k++) {
                const float lower = (1 - ax) * float(source.at(x1, y1)[k]) + ax * float(source.at(x0, y1)[k]);
                const float upper = (1 - ax) * float(source.at(x1, y0)[k]) + ax * float(source.at(x0, y0)[k]);
                const float blend = lower * (1 - ay) + upper * ay;
                p[k] = clamped(blend * 0.5f + float(source.at(int(sx), int(sy))[k]) * 0.5f);
            }
        }
}

} // namespace reference
