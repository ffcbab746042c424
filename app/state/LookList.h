// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/GrowArray.h"

/// The applied looks: distinct filter numbers in the order in which they were switched on, which is the order in which
/// they are applied. Empty: the photo as it came.
class LookList : public lumora::GrowArray<int> {
public:
    bool contains(int filter) const { return find(filter) >= 0; }
    /// True for a look of the list, and for "Original" while the list is empty: what a button shows as pressed.
    bool isShownAsApplied(int filter) const;
    /// The look that was added last; "Original" for an empty list.
    int last() const;

    void remove(int filter);
    /// Appends the look, or takes it out wherever it stands.
    void toggle(int filter);
    /// Only that look stays; nothing where it is not in the list.
    void keepOnly(int filter);
    /// A press of a look's button: one look or none in single mode, a stack of looks in multi mode.
    void press(int filter, bool multi);
};
