// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/IccProfile.h"

#include <QImage>
#include <functional>

/// For a screen that is told by its three primaries and a curve for each, as most are: makes so many opaque pixels what
/// the screen must get, in place, exact to the rounding. Colours that it cannot show are cut off in each channel. Empty
/// where the profile says more than primaries and curves, or where these are none of a real screen.
std::function<void(QRgb* pixels, int count)> throughPrimaries(const IccProfile& sRgb, const IccProfile& screen);
