#include "image/CharImage.h"

#include <cstdio>
#include <cstring>

namespace lumora {

GrowArray<int> CharImage::customFilterFiltersA;
GrowArray<int> CharImage::customFilterFiltersB;
GrowArray<int> CharImage::customFilterFiltersC;

namespace {

struct Entry {
    const char* name;
    void (CharImage::*apply)(); ///< what applyFilter does with the number, in place
};

/// The catalogue; an entry's place is its filter number. Crop and border styles leave the pixels to the framing.
constexpr Entry catalogue[] = {
    /*  0 */ {"Colorcross", &CharImage::applyCrossProcessFilter},
    /*  1 */ {"Helga", &CharImage::applyHelgaFilter},
    /*  2 */ {"Lolo", &CharImage::applyLoloFilter},
    /*  3 */ {"Magazine", &CharImage::applyMagazineFilter},
    /*  4 */ {"Instant", &CharImage::applyInstantFilter},
    /*  5 */ {"Mono", &CharImage::applyMonoFilter},
    /*  6 */ {"1962", &CharImage::apply1962Filter},
    /*  7 */ {"1974", &CharImage::apply1974Filter},
    /*  8 */ {"Cinema", &CharImage::applyCinemaFilter},
    /*  9 */ {"Infrared", &CharImage::applyInfraredFilter},
    /* 10 */ {"Fisheye", &CharImage::makeFisheye},
    /* 11 */ {"Custom A", &CharImage::applyCustomFilterA},
    /* 12 */ {"Custom B", &CharImage::applyCustomFilterB},
    /* 13 */ {"Custom C", &CharImage::applyCustomFilterC},
    /* 14 */ {"Original", &CharImage::applyOriginalFilter},
    /* 15 */ {"Filter", &CharImage::applyOriginalFilter},
    /* 16 */ {"Test", &CharImage::drawTestPattern},
    /* 17 */ {"Lightleak", &CharImage::applyLightleakFilter},
    /* 18 */ {"Delicious", &CharImage::applyDeliciousFilter},
    /* 19 */ {"Arctic", &CharImage::applyArcticFilter},
    /* 20 */ {"Blowout", &CharImage::applyBlowoutFilter},
    /* 21 */ {"Square", &CharImage::applyOriginalFilter},
    /* 22 */ {"Widescreen", &CharImage::applyOriginalFilter},
    /* 23 */ {"6x4", &CharImage::applyOriginalFilter},
    /* 24 */ {"7x6", &CharImage::applyOriginalFilter},
    /* 25 */ {"4x3", &CharImage::applyOriginalFilter},
    /* 26 */ {"Thin", &CharImage::applyOriginalFilter},
    /* 27 */ {"Medium", &CharImage::applyOriginalFilter},
    /* 28 */ {"Thick", &CharImage::applyOriginalFilter},
    /* 29 */ {"Rounded", &CharImage::applyOriginalFilter},
};
constexpr int catalogueSize = sizeof catalogue / sizeof catalogue[0];
constexpr int original = 14;
constexpr int unnamed = 15;
constexpr int testPattern = 16;

const Entry& entryOf(int filter)
{
    return catalogue[filter >= 0 && filter < catalogueSize ? filter : unnamed];
}

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

int CharImage::getFilterCount()
{
    return 15;
}

const char* CharImage::getFilterName(int filter)
{
    return entryOf(filter).name;
}

int CharImage::getFilterFromName(const char* name)
{
    for (int i = 0; i < catalogueSize; i++)
        if (std::strcmp(name, catalogue[i].name) == 0)
            return i;
    return original;
}

GrowArray<int> CharImage::getLooks()
{
    GrowArray<int> looks;
    for (int i = 0; i < catalogueSize; i++)
        if (catalogue[i].apply != &CharImage::applyOriginalFilter && i != testPattern && !customFilters(i))
            looks.add(i);
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
    case 11:
        return &customFilterFiltersA;
    case 12:
        return &customFilterFiltersB;
    case 13:
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
