#include "image/CharImage.h"

namespace lumora {

namespace {

constexpr float noCrop = -1.0f;

/// The last look of a list decides its framing: gives that entry for a custom number, the number itself for another,
/// and false for an empty list.
bool resolveCustom(int& filter)
{
    const GrowArray<int>* list = CharImage::customFilters(filter);
    if (!list)
        return true;
    if (list->numThings < 1)
        return false;
    filter = list->theArray[list->numThings - 1];
    return true;
}

struct Margins {
    float left, right, top, bottom;
};

Margins evenMargins(float fraction)
{
    return {fraction, fraction, fraction, fraction};
}

Margins marginsOf(int filter)
{
    switch (filter) {
    case 26: // Thin
    case 3: // Magazine
        return evenMargins(1.0f / 70.0f);
    case 27: // Medium
    case 5: // Mono
        return evenMargins(0.025f);
    case 28: // Thick
    case 2: // Lolo
        return evenMargins(0.0625f);
    case 29: // Rounded
    case 7: // 1974
        return evenMargins(1.0f / 45.0f);
    case 4: // Instant: the product is a hair below 0.2, so that 3000 pixels give 599
        return {0.04f, 0.04f, 0.04f, 0.04f * 5.0f};
    case 8: // Cinema
        return {0.0f, 0.0f, 0.125f, 0.125f};
    default:
        return evenMargins(0.0f);
    }
}

} // namespace

float CharImage::getFilterAspect(int filter, float aspect)
{
    if (!resolveCustom(filter))
        return noCrop;
    const bool landscape = aspect >= 1.0f;
    switch (filter) {
    case 6: // 1962
    case 7: // 1974
    case 24: // 7x6
        return landscape ? 7.0f / 6.0f : 6.0f / 7.0f;
    case 3: // Magazine
    case 23: // 6x4
        return landscape ? 1.5f : 2.0f / 3.0f;
    case 25: // 4x3
        return landscape ? 4.0f / 3.0f : 0.75f;
    case 21: // Square
    case 1: // Helga
    case 4: // Instant
    case 2: // Lolo
    case 10: // Fisheye
        return 1.0f;
    case 8: // Cinema
    case 22: // Widescreen, which keeps its wide strip for portraits too
        return 16.0f / 9.0f;
    default:
        return noCrop;
    }
}

void CharImage::getBorderReqsForFilter(int filter, float* left, float* right, float* top, float* bottom)
{
    const Margins margins = resolveCustom(filter) ? marginsOf(filter) : evenMargins(0.0f);
    *left = margins.left;
    *right = margins.right;
    *top = margins.top;
    *bottom = margins.bottom;
}

} // namespace lumora
