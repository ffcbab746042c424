// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/numbers/Arithmetic.h"

#include <algorithm>
#include <cmath>

namespace lumora {

/// How far a pixel stands from a centre, so many columns across and rows down.
inline float distance(float across, float down)
{
    return std::sqrt(across * across + down * down);
}

/// How far `count` pixels stand from a centre, so many columns and rows, 0 or more: found in double and rounded to
/// single precision. Where the sum of the squares is at most 2^24, single precision holds it exactly and gives the same
/// root, sooner.
inline void exactDistances(float* distances, const int* across, const int* down, int count)
{
    const double mostAcross = *std::max_element(across, across + count),
                 mostDown = *std::max_element(down, down + count);
    const bool isNear = mostAcross * mostAcross + mostDown * mostDown <= 0x1p24;
    for (int i = 0; i < count; i++)
        distances[i] = isNear ? distance(float(across[i]), float(down[i]))
                              : float(std::sqrt(double(across[i]) * across[i] + double(down[i]) * down[i]));
}

/// How many columns of a row, from the centre's own on, stand nearer to the centre than `radius`. The row is `dy` rows
/// from there.
inline int columnsWithin(float radius, int dy)
{
    const double beyond = radius * (1.0 + 1e-6); // by more than a distance is rounded
    int columns = int(std::sqrt(std::max(0.0, beyond * beyond - double(dy) * dy))) + 2;
    while (columns > 0 && distance(float(columns - 1), float(dy)) >= radius)
        columns--;
    return columns;
}

} // namespace lumora
