// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/LookList.h"

#include "image/FilterNumber.h"

using namespace lumora;

bool LookList::isShownAsApplied(int filter) const
{
    return filter == Filter::original ? numThings == 0 : contains(filter);
}

int LookList::last() const
{
    return numThings > 0 ? theArray[numThings - 1] : Filter::original;
}

void LookList::remove(int filter)
{
    const int index = find(filter);
    if (index >= 0)
        removeAt(index);
}

void LookList::toggle(int filter)
{
    if (contains(filter))
        remove(filter);
    else
        add(filter);
}

void LookList::keepOnly(int filter)
{
    const bool applied = contains(filter);
    clear();
    if (applied)
        add(filter);
}

void LookList::press(int filter, bool multi)
{
    if (!multi)
        keepOnly(filter);
    toggle(filter);
}
