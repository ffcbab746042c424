// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/ScreenTable.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <memory>
#include <vector>
#ifdef __x86_64__
#include <emmintrin.h>
#endif

namespace {

constexpr int side = 32; // of the cube, in cells

// A rise is 1024 for a level in each level. What a cell begins with, one of 64 for a level, is taken sixteen times.
constexpr int riseBits = 10, beginBits = 6;
constexpr std::uint64_t beginTimes = 1 << (riseBits - beginBits);

/// What becomes of its colours, for blue, green, red and nothing: begin + rises * the ways from its darkest corner.
struct alignas(32) Cell {
    std::int16_t alongRedAndGreen[8]; ///< two rises for each
    std::int16_t alongBlueAndBegin[8];
};

/// The values of a channel between which the cells lie: closer in the darks, where the curves of screens bend most.
std::array<int, side + 1> bounds()
{
    std::array<int, side + 1> values;
    for (int i = 0; i <= side; i++)
        values[i] = int(std::lround(255 * std::pow(double(i) / side, 1.6)));
    return values;
}

std::int16_t inBits(double value)
{
    return std::int16_t(std::lround(std::clamp(value, -32768.0, 32767.0)));
}

/// As near as can be to the eight corners, each three channels in levels: those with the bits 4, 2 and 1 in their
/// number are the further ones along red, green and blue. `width` of the cell along the three, in levels.
Cell cellBetween(const std::array<std::array<double, 3>, 8>& corners, const std::array<int, 3>& width)
{
    Cell cell = {};
    for (int channel = 0; channel < 3; channel++) {
        double rises[3], begin = 0;
        for (const auto& corner : corners)
            begin += corner[channel] / 8;
        for (int along = 0; along < 3; along++) {
            double rise = 0;
            for (int i = 0; i < 8; i++)
                rise += (i & 4 >> along ? 1 : -1) * corners[i][channel] / 4;
            begin -= rise / 2;
            rises[along] = rise / width[along] * (1 << riseBits);
        }
        std::int16_t *first = &cell.alongRedAndGreen[2 * (2 - channel)],
                     *last = &cell.alongBlueAndBegin[2 * (2 - channel)];
        first[0] = inBits(rises[0]);
        first[1] = inBits(rises[1]);
        last[0] = inBits(rises[2]);
        last[1] = inBits((begin + 0.5) * (1 << beginBits)); // halves are rounded up
    }
    return cell;
}

/// One pixel. `ways` in lanes of 16 bits: those along the three, and beginTimes.
QRgb mixed(const Cell& cell, std::uint64_t ways)
{
    QRgb pixel = 0xff000000u;
    for (int i = 0; i < 3; i++) {
        const std::int16_t *first = &cell.alongRedAndGreen[2 * i], *last = &cell.alongBlueAndBegin[2 * i];
        const int sum = first[0] * int(ways & 0xffff) + first[1] * int(ways >> 16 & 0xffff)
            + last[0] * int(ways >> 32 & 0xffff) + last[1] * int(ways >> 48);
        pixel |= QRgb(std::clamp(sum >> riseBits, 0, 255)) << 8 * i;
    }
    return pixel;
}

#ifdef __x86_64__
/// The levels of one pixel, blue first, each in 32 bits and not yet cut to 0 .. 255.
__m128i levelsOf(const Cell& cell, std::uint64_t ways)
{
    const auto loaded = [](const std::int16_t* from) { return _mm_load_si128(reinterpret_cast<const __m128i*>(from)); };
    const __m128i all = _mm_cvtsi64_si128(std::int64_t(ways));
    const __m128i sum = _mm_add_epi32(_mm_madd_epi16(_mm_shuffle_epi32(all, 0), loaded(cell.alongRedAndGreen)),
        _mm_madd_epi16(_mm_shuffle_epi32(all, 0x55), loaded(cell.alongBlueAndBegin)));
    return _mm_srai_epi32(sum, riseBits);
}
#endif

struct Table {
    std::vector<Cell> cells; ///< along red, then green, then blue
    /// What the levels of red, green and blue tell, in four lanes of 16 bits that are added: the ways along the three,
    /// and the cell's number.
    std::array<std::array<std::uint64_t, 256>, 3> places;

    void convert(QRgb* pixels, int count) const;
};

void Table::convert(QRgb* pixels, int count) const
{
    const auto &red = places[0], &green = places[1], &blue = places[2];
    const Cell* all = cells.data();
    const auto made = [&](int i, auto byCell) {
        const std::uint64_t place = red[pixels[i] >> 16 & 0xff] + green[pixels[i] >> 8 & 0xff] + blue[pixels[i] & 0xff];
        constexpr std::uint64_t ways = 0xffff'ffff'ffff;
        return byCell(all[place >> 48], (place & ways) | beginTimes << 48);
    };
    int i = 0;
#ifdef __x86_64__
    for (; i + 4 <= count; i += 4) { // which share the steps from levels to bytes
        const __m128i two = _mm_packs_epi32(made(i, levelsOf), made(i + 1, levelsOf));
        const __m128i other = _mm_packs_epi32(made(i + 2, levelsOf), made(i + 3, levelsOf));
        const __m128i four = _mm_or_si128(_mm_packus_epi16(two, other), _mm_set1_epi32(int(0xff000000u)));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(pixels + i), four);
    }
#endif
    for (; i < count; i++)
        pixels[i] = made(i, mixed);
}

} // namespace

std::function<void(QRgb* pixels, int count)> throughTable(const IccProfile& sRgb, const IccProfile& screen)
{
    const std::unique_ptr<void, DeleteTransform> transform(
        cmsCreateTransform(sRgb.get(), TYPE_RGB_16, screen.get(), TYPE_RGB_16, INTENT_RELATIVE_COLORIMETRIC,
            cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_NOOPTIMIZE | cmsFLAGS_NOCACHE));
    if (!transform)
        return {};
    const auto values = bounds();
    constexpr int points = side + 1;
    std::vector<std::array<cmsUInt16Number, 3>> cube;
    cube.reserve(points * points * points);
    for (const int red : values)
        for (const int green : values)
            for (const int blue : values)
                cube.push_back({cmsUInt16Number(red * 257), cmsUInt16Number(green * 257), cmsUInt16Number(blue * 257)});
    cmsDoTransform(transform.get(), cube.data(), cube.data(), cmsUInt32Number(cube.size()));

    const auto table = std::make_shared<Table>();
    table->cells.reserve(side * side * side);
    for (int red = 0; red < side; red++)
        for (int green = 0; green < side; green++)
            for (int blue = 0; blue < side; blue++) {
                std::array<std::array<double, 3>, 8> corners;
                for (int i = 0; i < 8; i++)
                    for (int channel = 0; channel < 3; channel++) {
                        const int at = ((red + (i >> 2)) * points + green + (i >> 1 & 1)) * points + blue + (i & 1);
                        corners[i][channel] = cube[at][channel] / 257.0;
                    }
                const auto width = [&](int cell) { return values[cell + 1] - values[cell]; };
                table->cells.push_back(cellBetween(corners, {width(red), width(green), width(blue)}));
            }
    const std::uint64_t cells[] = {side * side, side, 1};
    for (int channel = 0; channel < 3; channel++)
        for (int level = 0; level < 256; level++) {
            std::uint64_t cell = 0;
            while (cell < side - 1 && values[cell + 1] <= level)
                cell++;
            table->places[channel][level] =
                cell * cells[channel] << 48 | std::uint64_t(level - values[cell]) << 16 * channel;
        }
    return [table](QRgb* pixels, int count) { table->convert(pixels, count); };
}
