// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/Variation.h"

#include "image/CharImage.h"

#include <cstdlib>

using namespace lumora;

void varyBy(unsigned seed)
{
    std::srand(seed);
    CharImage::renewRandomNumbers();
    CharImage::useRandom = 1;
}

void useFixedSettings()
{
    std::srand(1); // as a program begins that has named no seed
    CharImage::useRandom = 0;
}
