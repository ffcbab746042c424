// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// While it lives, so many allocations by `new` succeed and all others fail, in this program and in its libraries.
class ScarceAllocations {
public:
    explicit ScarceAllocations(int count);
    ~ScarceAllocations();
    ScarceAllocations(const ScarceAllocations&) = delete;
    ScarceAllocations& operator=(const ScarceAllocations&) = delete;
};
