// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/FilterCatalogue.h"

namespace lumora {

float CharImage::getFilterAspect(int filter, float aspect)
{
    const CropAspect& crop = framingOf(filter).crop;
    return aspect >= 1.0f ? crop.landscape : crop.portrait;
}

void CharImage::getBorderReqsForFilter(int filter, float* left, float* right, float* top, float* bottom)
{
    const Margins& margins = framingOf(filter).margins;
    *left = margins.left;
    *right = margins.right;
    *top = margins.top;
    *bottom = margins.bottom;
}

} // namespace lumora
