// SPDX-License-Identifier: LGPL-3.0-or-later
#include "library/Styles.h"

#include "image/FilterCatalogue.h"

#include <algorithm>

namespace lumora {

namespace {

const GrowArray<int> allLooks = CharImage::getLooks(); // made once, where the library is loaded

// Of the looks' own ones, those that have no plain one beside them.
constexpr int allCrops[] = {Filter::square, Filter::cinema, Filter::crop6x4, Filter::crop4x3, Filter::crop7x6};
constexpr int allBorders[] = {
    Filter::thin, Filter::medium, Filter::thick, Filter::rounded, Filter::instant, Filter::cinema, Filter::fisheye};

bool sameCrop(const FilterEntry& a, const FilterEntry& b)
{
    return a.crop.landscape == b.crop.landscape && a.crop.portrait == b.crop.portrait;
}

bool sameBorder(const FilterEntry& a, const FilterEntry& b)
{
    const Margins &m = a.margins, &n = b.margins;
    return a.border == b.border && m.left == n.left && m.right == n.right && m.top == n.top && m.bottom == n.bottom;
}

using Same = bool (*)(const FilterEntry& a, const FilterEntry& b);

int placeOf(int look, std::span<const int> styles, Same same)
{
    const auto found = std::ranges::find_if(styles, [&](int style) { return same(entryOf(style), entryOf(look)); });
    return found == styles.end() ? -1 : int(found - styles.begin());
}

} // namespace

std::span<const int> looks()
{
    return {allLooks.theArray, std::size_t(allLooks.numThings)};
}

std::span<const int> crops()
{
    return allCrops;
}

std::span<const int> borders()
{
    return allBorders;
}

int cropOf(int look)
{
    return placeOf(look, crops(), sameCrop);
}

int borderOf(int look)
{
    return placeOf(look, borders(), sameBorder);
}

} // namespace lumora
