// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Exact.h"

namespace lumora {

/// The filter numbers: looks, lists, crop and border styles share them. A number is stored and passed round as a plain
/// int, so that a new one goes to the end and none ever changes.
namespace Filter {

enum Number : int {
    colorcross,
    helga,
    lolo,
    magazine,
    instant,
    mono,
    look1962,
    look1974,
    cinema,
    infrared,
    fisheye,
    customA,
    customB,
    customC,
    original, ///< no look, no crop, no border
    unnamed, ///< what stands for every number that is not in the catalogue
    testPattern,
    lightleak,
    delicious,
    arctic,
    blowout,
    square,
    widescreen,
    crop6x4,
    crop7x6,
    crop4x3,
    thin,
    medium,
    thick,
    rounded,
    end ///< the count of numbers; each below it is in the catalogue
};

} // namespace Filter

} // namespace lumora
