// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/CharImage.h"
#include "image/FilterNumber.h"

namespace lumora {

/// The aspect (width / height) that a picture is cropped to, by its own; -1 for no crop.
struct CropAspect {
    float landscape = -1.0f; ///< also for square pictures
    float portrait = -1.0f;
};

/// The margins of a border, fractions of the picture's longer side.
struct Margins {
    float left = 0.0f, right = 0.0f, top = 0.0f, bottom = 0.0f;
};

/// What a border looks like.
enum class BorderStyle {
    white, ///< with a thin grey line round the canvas; nothing at all without margins
    rounded, ///< white, and the picture's corners are rounded
    offWhite,
    black,
    disc ///< black outside the largest circle round the centre
};

/// One row of the catalogue: all that a filter number stands for.
struct FilterEntry {
    Filter::Number number;
    const char* name;
    void (CharImage::*apply)(); ///< what applyFilter does, in place
    CropAspect crop = {};
    Margins margins = {};
    BorderStyle border = BorderStyle::white;
};

/// The row of a filter number; that of Filter::unnamed for a number that is not in the catalogue.
const FilterEntry& entryOf(int filter);
/// The row whose crop and border a filter number has: for a custom list that of its last entry, and that of
/// Filter::unnamed, which has neither, while the list is empty.
const FilterEntry& framingOf(int filter);

} // namespace lumora
