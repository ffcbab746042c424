// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/toolkit/BlurKernel.h"

namespace lumora {

class CharImage;

// What the blur does with whole rows. A row here is one channel, a byte per pixel, so that every loop becomes vector
// code.

/// Whether red, green and blue are alike in every pixel.
bool isNeutral(const CharImage& image);

/// Takes one channel out of `width` pixels and repeats its ends `margin` times on either side: `to` holds
/// width + 2 * margin bytes.
void takeChannel(const unsigned char* pixels, int channel, int width, int margin, unsigned char* to);

/// Stores the channels of `width` pixels; byte 3 of each stays.
void storeChannels(
    const unsigned char* red, const unsigned char* green, const unsigned char* blue, int width, unsigned char* pixels);

/// Adds up tap after tap: `rows[t]` is the row, moved or of another place, that tap t reads for the first of `count`
/// bytes.
void weighRows(
    const std::vector<BlurTap>& taps, const unsigned char* const* rows, std::size_t count, unsigned char* to);

/// Replaces every byte by its share.
void takeShares(unsigned char* bytes, std::size_t count, std::uint16_t multiplier);

/// `sums[i]` becomes the sum modulo 256 of the `window` values from i on. `values` holds count + window - 1 of them and
/// is used up.
void sumWindows(unsigned char* values, std::size_t count, int window, unsigned char* sums);

/// Adds a row to sums modulo 256.
void addRow(unsigned char* sums, const unsigned char* row, std::size_t count);

/// Takes one row out of sums modulo 256 and adds another.
void replaceRow(unsigned char* sums, const unsigned char* leaving, const unsigned char* entering, std::size_t count);

} // namespace lumora
