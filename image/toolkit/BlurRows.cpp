// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/toolkit/BlurRows.h"

#include "image/CharImage.h"
#include "image/passes/Block.h"

#include <algorithm>
#include <cstring>

namespace lumora {

namespace {

/// Bytes that are weighed together; their sums stay in the first-level cache.
constexpr int stripBytes = 512;

using Strip = std::uint16_t[stripBytes];

/// Rounding in the float sum: bytes that add 1 more to the sums that are large enough. The sums count modulo 256.
void addCarries(Strip& sums, const unsigned char* row, const BlurTap& tap, int count)
{
    for (const BlurCarry carry : tap.carries)
        for (int i = 0; i < count; i++)
            sums[i] += std::uint16_t(row[i] == carry.byte) & std::uint16_t((sums[i] & 255) >= carry.leastSum);
}

void addTap(Strip& sums, const unsigned char* row, std::uint16_t multiplier, int count)
{
    for (int i = 0; i < count; i++)
        sums[i] += blurShare(row[i], multiplier);
}

/// Four taps at once: the sums are loaded and stored once instead of four times.
void addFourTaps(Strip& sums, const unsigned char* const* rows, std::size_t at, const BlurTap* taps, int count)
{
    const unsigned char *const a = rows[0] + at, *const b = rows[1] + at, *const c = rows[2] + at,
                               *const d = rows[3] + at;
    const std::uint16_t forA = taps[0].multiplier, forB = taps[1].multiplier, forC = taps[2].multiplier,
                        forD = taps[3].multiplier;
    for (int i = 0; i < count; i++) {
        const std::uint16_t ab = blurShare(a[i], forA) + blurShare(b[i], forB);
        const std::uint16_t cd = blurShare(c[i], forC) + blurShare(d[i], forD);
        sums[i] += std::uint16_t(ab + cd);
    }
}

/// The number of taps from `tap` on, 4 at most, whose order does not matter to any carry.
int tapsTogether(const std::vector<BlurTap>& taps, std::size_t tap)
{
    int together = 1;
    while (together < 4 && tap + together < taps.size() && taps[tap + together].carries.empty())
        together++;
    return together;
}

} // namespace

bool isNeutral(const CharImage& image)
{
    for (int y = 0; y < image.height; y++) {
        const unsigned char* pixel = image.data + std::size_t(y) * image.width * 4;
        unsigned char difference = 0;
        for (int x = 0; x < image.width; x++)
            difference |= (pixel[4 * x] ^ pixel[4 * x + 1]) | (pixel[4 * x] ^ pixel[4 * x + 2]);
        if (difference != 0)
            return false;
    }
    return true;
}

void takeChannel(const unsigned char* pixels, int channel, int width, int margin, unsigned char* to)
{
    unsigned char* row = to + margin;
    for (int x = 0; x < width; x++)
        row[x] = pixels[4 * x + channel];
    std::memset(to, row[0], std::size_t(margin));
    std::memset(row + width, row[width - 1], std::size_t(margin));
}

void storeChannels(
    const unsigned char* red, const unsigned char* green, const unsigned char* blue, int width, unsigned char* pixels)
{
    for (int x = 0; x < width; x++)
        Block::setBytes(pixels + 4 * x, {red[x], green[x], blue[x]});
}

void weighRows(const std::vector<BlurTap>& taps, const unsigned char* const* rows, std::size_t count, unsigned char* to)
{
    for (std::size_t at = 0; at < count; at += stripBytes) {
        const int inStrip = int(std::min<std::size_t>(stripBytes, count - at));
        Strip sums = {};
        for (std::size_t t = 0; t < taps.size();) {
            addCarries(sums, rows[t] + at, taps[t], inStrip);
            const int together = tapsTogether(taps, t);
            if (together == 4)
                addFourTaps(sums, rows + t, at, &taps[t], inStrip);
            else
                for (int k = 0; k < together; k++)
                    addTap(sums, rows[t + k] + at, taps[t + k].multiplier, inStrip);
            t += together;
        }
        for (int i = 0; i < inStrip; i++)
            to[at + i] = static_cast<unsigned char>(sums[i]);
    }
}

void takeShares(unsigned char* bytes, std::size_t count, std::uint16_t multiplier)
{
    for (std::size_t i = 0; i < count; i++)
        bytes[i] = static_cast<unsigned char>(blurShare(bytes[i], multiplier));
}

void sumWindows(unsigned char* values, std::size_t count, int window, unsigned char* sums)
{
    std::fill_n(sums, count, static_cast<unsigned char>(0));
    // `values` becomes the sums of 1, 2, 4 ... values; those that make up the window follow one another.
    int done = 0;
    for (int span = 1; done < window; span *= 2) {
        if (window & span) {
            for (std::size_t i = 0; i < count; i++)
                sums[i] += values[i + done];
            done += span;
        }
        const std::size_t left = count + window - 2 * std::size_t(span);
        for (std::size_t i = 0; done < window && i < left; i++)
            values[i] += values[i + span];
    }
}

void addRow(unsigned char* sums, const unsigned char* row, std::size_t count)
{
    for (std::size_t i = 0; i < count; i++)
        sums[i] += row[i];
}

void replaceRow(unsigned char* sums, const unsigned char* leaving, const unsigned char* entering, std::size_t count)
{
    for (std::size_t i = 0; i < count; i++)
        sums[i] += static_cast<unsigned char>(entering[i] - leaving[i]);
}

} // namespace lumora
