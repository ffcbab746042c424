// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image/CharImage.h"

#include <vector>

/// What a person has chosen beside the photo: everything that a preview depends on. A value.
struct Choices {
    std::vector<int> looks; ///< filter numbers in the order of application
    int strength = lumora::CharImage::wholeStrength; ///< of the looks together, in per cent
    bool multi = false; ///< looks are stacked
    int border = 0, crop = 0, size = 0; ///< the chosen items of the pop-ups, counted from 0
    bool varied = false; ///< looks vary
    unsigned variation = 0; ///< the seed of the numbers that they vary with

    bool operator==(const Choices&) const = default;
    /// Whether the thumbnails look different under the other choices, for the same photo.
    bool variesUnlike(const Choices& other) const { return varied != other.varied || variation != other.variation; }
};
