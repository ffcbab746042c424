// SPDX-License-Identifier: LGPL-3.0-or-later
#include "image/FilterCatalogue.h"

#include <cstdio>
#include <cstring>
#include <iterator>

namespace lumora {

GrowArray<int> CharImage::customFilterFiltersA;
GrowArray<int> CharImage::customFilterFiltersB;
GrowArray<int> CharImage::customFilterFiltersC;

namespace {

constexpr CropAspect noCrop;

/// A crop that turns with the picture, from its longer and its shorter side.
constexpr CropAspect turning(float longer, float shorter)
{
    return {longer / shorter, shorter / longer};
}

constexpr CropAspect square = turning(1, 1);
constexpr CropAspect wideStrip = {16.0f / 9.0f, 16.0f / 9.0f}; // for portraits too

constexpr Margins noMargins;

constexpr Margins evenMargins(float fraction)
{
    return {fraction, fraction, fraction, fraction};
}

constexpr Margins thinMargins = evenMargins(1.0f / 70.0f);
constexpr Margins mediumMargins = evenMargins(0.025f);
constexpr Margins thickMargins = evenMargins(0.0625f);
constexpr Margins roundedMargins = evenMargins(1.0f / 45.0f);
// The product is a hair below 0.2, so that 3000 pixels give 599.
constexpr Margins printMargins = {0.04f, 0.04f, 0.04f, 0.04f * 5.0f};
constexpr Margins bars = {0.0f, 0.0f, 0.125f, 0.125f};

constexpr auto nothing = &CharImage::applyOriginalFilter;

constexpr FilterEntry catalogue[] = {
    {Filter::colorcross, "Colorcross", &CharImage::applyCrossProcessFilter},
    {Filter::helga, "Helga", &CharImage::applyHelgaFilter, square},
    {Filter::lolo, "Lolo", &CharImage::applyLoloFilter, square, thickMargins},
    {Filter::magazine, "Magazine", &CharImage::applyMagazineFilter, turning(6, 4), thinMargins},
    {Filter::instant, "Instant", &CharImage::applyInstantFilter, square, printMargins, BorderStyle::offWhite},
    {Filter::mono, "Mono", &CharImage::applyMonoFilter, noCrop, mediumMargins},
    {Filter::look1962, "1962", &CharImage::apply1962Filter, turning(7, 6)},
    {Filter::look1974, "1974", &CharImage::apply1974Filter, turning(7, 6), roundedMargins, BorderStyle::rounded},
    {Filter::cinema, "Cinema", &CharImage::applyCinemaFilter, wideStrip, bars, BorderStyle::black},
    {Filter::infrared, "Infrared", &CharImage::applyInfraredFilter},
    {Filter::fisheye, "Fisheye", &CharImage::makeFisheye, square, noMargins, BorderStyle::disc},
    {Filter::customA, "Custom A", &CharImage::applyCustomFilterA},
    {Filter::customB, "Custom B", &CharImage::applyCustomFilterB},
    {Filter::customC, "Custom C", &CharImage::applyCustomFilterC},
    {Filter::original, "Original", nothing},
    {Filter::unnamed, "Filter", nothing},
    {Filter::testPattern, "Test", &CharImage::drawTestPattern},
    {Filter::lightleak, "Lightleak", &CharImage::applyLightleakFilter},
    {Filter::delicious, "Delicious", &CharImage::applyDeliciousFilter},
    {Filter::arctic, "Arctic", &CharImage::applyArcticFilter},
    {Filter::blowout, "Blowout", &CharImage::applyBlowoutFilter},
    {Filter::square, "Square", nothing, square},
    {Filter::widescreen, "Widescreen", nothing, wideStrip},
    {Filter::crop6x4, "6x4", nothing, turning(6, 4)},
    {Filter::crop7x6, "7x6", nothing, turning(7, 6)},
    {Filter::crop4x3, "4x3", nothing, turning(4, 3)},
    {Filter::thin, "Thin", nothing, noCrop, thinMargins},
    {Filter::medium, "Medium", nothing, noCrop, mediumMargins},
    {Filter::thick, "Thick", nothing, noCrop, thickMargins},
    {Filter::rounded, "Rounded", nothing, noCrop, roundedMargins, BorderStyle::rounded},
};

constexpr bool eachStandsAtItsNumber()
{
    for (int i = 0; i < Filter::end; i++)
        if (catalogue[i].number != i)
            return false;
    return std::size(catalogue) == Filter::end;
}
static_assert(eachStandsAtItsNumber());

void replaceCustomList(GrowArray<int>& list, const GrowArray<int>& filters)
{
    list.clear();
    for (int i = 0; i < filters.numThings; i++)
        if (!CharImage::customFilters(filters.theArray[i]))
            list.add(filters.theArray[i]);
}

void applyAll(CharImage& image, const GrowArray<int>& filters)
{
    for (int i = 0; i < filters.numThings; i++)
        image.applyFilter(filters.theArray[i]);
}

} // namespace

const FilterEntry& entryOf(int filter)
{
    return catalogue[filter >= 0 && filter < Filter::end ? filter : Filter::unnamed];
}

const FilterEntry& framingOf(int filter)
{
    const GrowArray<int>* list = CharImage::customFilters(filter);
    if (!list)
        return entryOf(filter);
    return entryOf(list->numThings > 0 ? list->theArray[list->numThings - 1] : Filter::unnamed);
}

int CharImage::getFilterCount()
{
    return Filter::original + 1;
}

const char* CharImage::getFilterName(int filter)
{
    return entryOf(filter).name;
}

int CharImage::getFilterFromName(const char* name)
{
    for (const FilterEntry& entry : catalogue)
        if (std::strcmp(name, entry.name) == 0)
            return entry.number;
    return Filter::original;
}

GrowArray<int> CharImage::getLooks()
{
    GrowArray<int> looks;
    for (const FilterEntry& entry : catalogue)
        if (entry.apply != nothing && entry.number != Filter::testPattern && !customFilters(entry.number))
            looks.add(entry.number);
    return looks;
}

void CharImage::setCustomFilterA(const GrowArray<int>& filters)
{
    replaceCustomList(customFilterFiltersA, filters);
}

void CharImage::setCustomFilterB(const GrowArray<int>& filters)
{
    replaceCustomList(customFilterFiltersB, filters);
}

void CharImage::setCustomFilterC(const GrowArray<int>& filters)
{
    replaceCustomList(customFilterFiltersC, filters);
}

const GrowArray<int>* CharImage::customFilters(int filter)
{
    switch (filter) {
    case Filter::customA:
        return &customFilterFiltersA;
    case Filter::customB:
        return &customFilterFiltersB;
    case Filter::customC:
        return &customFilterFiltersC;
    default:
        return nullptr;
    }
}

void CharImage::applyFilter(int filter)
{
    (this->*entryOf(filter).apply)();
}

void CharImage::applyOriginalFilter()
{
    if (prints)
        std::puts("applying original filter");
}

void CharImage::applyCustomFilterA()
{
    applyAll(*this, customFilterFiltersA);
}

void CharImage::applyCustomFilterB()
{
    applyAll(*this, customFilterFiltersB);
}

void CharImage::applyCustomFilterC()
{
    applyAll(*this, customFilterFiltersC);
}

} // namespace lumora
