// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Exact.h"

#include <functional>

namespace lumora {

class CharImage;

/// CharImage::makeBlurry for a neutral picture that is made on the way: `makeRow(y)` makes row y of the image. It is
/// called once for each row, from the top, shortly before the row is read.
void blurNeutralRows(CharImage& image, int size, float exponent, const std::function<void(int y)>& makeRow);

} // namespace lumora
