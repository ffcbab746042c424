// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/GrowArray.h"

namespace lumora {

/// The kernel of the blur and of the map smoothing: an odd number of weights, symmetric, normalised in single
/// precision. It rises to its middle by the power `exponent` over half of `size` (3 at least); a box when the exponent
/// is 0 or less. `unitCentre` sets the middle weight to 1 before normalising. Fills the empty `weights`; the radius is
/// (weights.numThings - 1) / 2.
void fillKernel(GrowArray<float>& weights, int size, float exponent, bool unitCentre);

} // namespace lumora
