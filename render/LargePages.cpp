// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/LargePages.h"

#include <cstdint>
#include <sys/mman.h>
#include <unistd.h>

void useLargePages(void* block, std::size_t size)
{
#ifdef MADV_HUGEPAGE
    const auto page = std::uintptr_t(sysconf(_SC_PAGESIZE)), address = reinterpret_cast<std::uintptr_t>(block);
    const std::uintptr_t begin = (address + page - 1) / page * page, end = (address + size) / page * page;
    if (begin < end)
        madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE); // where it is refused nothing is lost
#endif
}
