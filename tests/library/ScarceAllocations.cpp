// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/library/ScarceAllocations.h"

#include <climits>
#include <cstdlib>
#include <new>

namespace {

int allocationsLeft = INT_MAX;

void* allocated(std::size_t bytes)
{
    if (allocationsLeft != INT_MAX && allocationsLeft-- <= 0) {
        allocationsLeft = 0;
        throw std::bad_alloc();
    }
    if (void* block = std::malloc(bytes > 0 ? bytes : 1))
        return block;
    throw std::bad_alloc();
}

} // namespace

ScarceAllocations::ScarceAllocations(int count)
{
    allocationsLeft = count;
}

ScarceAllocations::~ScarceAllocations()
{
    allocationsLeft = INT_MAX;
}

// The program's replace those of the standard library everywhere.
void* operator new(std::size_t bytes)
{
    return allocated(bytes);
}

void* operator new[](std::size_t bytes)
{
    return allocated(bytes);
}

void operator delete(void* block) noexcept
{
    std::free(block);
}

void operator delete[](void* block) noexcept
{
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    std::free(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
    std::free(block);
}
