// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/CharImage.h"

namespace lumora {

/// A look's parameters for this run: varied by the random table when the variation is switched on, else the fixed ones.
template <class Parameters> Parameters currentParameters()
{
    return CharImage::useRandom ? Parameters::varied(CharImage::random) : Parameters::fixed();
}

} // namespace lumora
