// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/IccProfile.h"

#include <QImage>
#include <functional>

/// For any screen: makes so many opaque pixels what the screen must get, in place. The cube of all colours is cut into
/// cells, and in each the screen's colours rise evenly along red, green and blue. Nearly all are within a level of what
/// the profile says; those at the edge of what the screen can show may be further off. Empty where the profile cannot
/// tell.
std::function<void(QRgb* pixels, int count)> throughTable(const IccProfile& sRgb, const IccProfile& screen);
