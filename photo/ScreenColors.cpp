// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/ScreenColors.h"

#include "photo/IccProfile.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace {

// An entry's three lanes are added and multiplied at once. A level is 32 in a lane, and 256 times that when the weights
// of four entries, 256 together, are in it.
constexpr int laneBits = 21, levelBits = 5, weightBits = 8, wholeWeight = 1 << weightBits;
constexpr int fractionBits = levelBits + weightBits;
static_assert((255 << fractionBits) + (1 << (fractionBits - 1)) < 1 << laneBits);

constexpr std::uint64_t lanes(std::uint64_t red, std::uint64_t green, std::uint64_t blue)
{
    return red << 2 * laneBits | green << laneBits | blue;
}

/// The values of a channel at the table's points. They lie closer in the darks, where the curves of screens bend most.
template <int side> std::array<int, side> points()
{
    std::array<int, side> values;
    for (int i = 0; i < side; i++)
        values[i] = int(std::lround(255 * std::pow(double(i) / (side - 1), 1.6)));
    return values;
}

/// So that first >= second. Without a branch, which would be a guess for every pixel.
void sort(std::uint32_t& first, std::uint32_t& second)
{
    const std::uint32_t difference = first - second;
    const std::uint32_t wrong = difference & (0u - (difference >> 31));
    first -= wrong;
    second += wrong;
}

} // namespace

std::shared_ptr<const ScreenColors> ScreenColors::of(const QByteArray& icc)
{
    if (icc.size() > largestProfile)
        return nullptr;
    const IccProfile screen = openProfile(icc, cmsSigRgbData), sRgb(cmsCreate_sRGBProfile());
    if (!screen || cmsGetDeviceClass(screen.get()) != cmsSigDisplayClass)
        return nullptr;
    const std::unique_ptr<void, DeleteTransform> transform(
        cmsCreateTransform(sRgb.get(), TYPE_RGB_16, screen.get(), TYPE_RGB_16, INTENT_RELATIVE_COLORIMETRIC,
            cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_NOOPTIMIZE | cmsFLAGS_NOCACHE));
    if (!transform)
        return nullptr;

    const auto values = points<side>();
    Table table;
    table.reserve(std::size_t(side) * side * side);
    bool changes = false;
    for (const int red : values)
        for (const int green : values) {
            std::array<std::array<cmsUInt16Number, 3>, side> row;
            for (int i = 0; i < side; i++)
                row[i] = {cmsUInt16Number(red * 257), cmsUInt16Number(green * 257), cmsUInt16Number(values[i] * 257)};
            const auto before = row;
            cmsDoTransform(transform.get(), row.data(), row.data(), side);
            for (int i = 0; i < side; i++) {
                const auto lane = [&](int channel) { return (row[i][channel] * (255u << levelBits) + 32767) / 65535; };
                table.push_back(lanes(lane(0), lane(1), lane(2)));
                for (int channel = 0; channel < 3; channel++)
                    changes |= std::abs(row[i][channel] - before[i][channel]) > 257;
            }
        }
    return changes ? std::shared_ptr<const ScreenColors>(new ScreenColors(std::move(table))) : nullptr;
}

ScreenColors::ScreenColors(Table table)
    : m_table(std::move(table))
{
    const auto values = points<side>();
    const std::uint32_t ways[] = {side * side, side, 1};
    for (int channel = 0; channel < 3; channel++)
        for (int value = 0; value < 256; value++) {
            int cell = 0;
            while (cell < side - 2 && values[cell + 1] <= value)
                cell++;
            const int beyond = (value - values[cell]) * wholeWeight / (values[cell + 1] - values[cell]);
            m_steps[channel][value] = {cell * ways[channel], std::uint32_t(beyond) << 16 | ways[channel]};
        }
}

/// A cell of the table is cut into six tetrahedra: from its lowest corner along the channel that is furthest beyond,
/// then along the next, then along the last. The colour is mixed of those four corners.
QImage ScreenColors::shown(QImage picture) const
{
    picture.convertTo(QImage::Format_RGB32);
    constexpr std::uint64_t half = 1 << (fractionBits - 1), halves = lanes(half, half, half);
    constexpr int opposite = side * side + side + 1;
    for (int y = 0; y < picture.height(); y++) {
        auto* row = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); x++) {
            const Step red = m_steps[0][qRed(row[x])], green = m_steps[1][qGreen(row[x])],
                       blue = m_steps[2][qBlue(row[x])];
            std::uint32_t first = red.key, second = green.key, third = blue.key;
            sort(first, second);
            sort(first, third);
            sort(second, third);
            const std::uint64_t* corner = &m_table[red.cell + green.cell + blue.cell];
            const std::uint32_t along = first & 0xffff, further = along + (second & 0xffff);
            const std::uint64_t a = first >> 16, b = second >> 16, c = third >> 16;
            const std::uint64_t mixed = corner[0] * (wholeWeight - a) + corner[along] * (a - b)
                + corner[further] * (b - c) + corner[opposite] * c + halves;
            const auto level = [mixed](int lane) { return int(mixed >> (lane * laneBits + fractionBits) & 0xff); };
            row[x] = qRgb(level(2), level(1), level(0));
        }
    }
    return picture;
}

QImage onScreen(QImage picture, const std::shared_ptr<const ScreenColors>& colors)
{
    return colors ? colors->shown(std::move(picture)) : picture;
}
