// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/CharImage.h"
#include "image/passes/EachBlock.h"
#include "image/toolkit/MapRows.h"

#include <algorithm>

namespace lumora {

namespace {

/// The bytes of one row of a map, in whole blocks.
class MapRow {
public:
    MapRow(unsigned char* map, int width, int y)
        : m_bytes(map + std::size_t(y) * width)
        , m_width(width)
    {
    }

    Plane block(int x) const
    {
        unsigned char bytes[blockPixels] = {};
        std::memcpy(bytes, m_bytes + x, count(x));
        Plane values;
        for (int i = 0; i < blockPixels; i++)
            values.at[i] = float(bytes[i]);
        return values;
    }

    void setBlock(int x, const Plane& values)
    {
        unsigned char bytes[blockPixels];
        for (int i = 0; i < blockPixels; i++)
            bytes[i] = static_cast<unsigned char>(int(values.at[i]));
        std::memcpy(m_bytes + x, bytes, count(x));
    }

private:
    unsigned char* m_bytes;
    int m_width;

    std::size_t count(int x) const { return std::size_t(std::min(blockPixels, m_width - x)); }
};

} // namespace

void CharImage::fillEdgeDetectMap(unsigned char* map) const
{
    if (pixelCount() == 0)
        return;
    EdgeRows edges(width, height);
    Block block;
    const auto give = [&](int y) {
        for (int x = 0; x < width; x += blockPixels) {
            block.open(data + (std::size_t(y) * width + x) * 4, std::min(blockPixels, width - x));
            block.fillPlanes();
            edges.setBlock(x, planeOf(block, [](Rgb c) { return byteLuminance(c); }));
        }
        edges.endRow();
    };
    forEachDelayedRow(height, edges.delay, give, [&](int y) {
        for (int x = 0; x < width; x += blockPixels)
            MapRow(map, width, y).setBlock(x, edges.block(x, y));
    });
}

void CharImage::smoothCharMap(unsigned char* map, int width, int height, int size, float exponent, float threshold)
{
    SmoothedRows rows(width, height, size, exponent, threshold);
    if (width < 1 || height < 1)
        return;
    const auto give = [&](int y) {
        for (int x = 0; x < width; x += blockPixels)
            rows.setBlock(x, MapRow(map, width, y).block(x));
        rows.endRow();
    };
    forEachDelayedRow(height, rows.delay(), give, [&](int y) {
        for (int x = 0; x < width; x += blockPixels)
            MapRow(map, width, y).setBlock(x, rows.block(x, y));
    });
}

} // namespace lumora
