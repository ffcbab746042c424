// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/FreedBlocks.h"

#include <cstdlib> // says which C library this is
#ifdef __GLIBC__
#include <malloc.h>
#endif

void keepFreedBlocks()
{
#ifdef __GLIBC__
    mallopt(M_MMAP_THRESHOLD, 32 << 20);
    mallopt(M_TRIM_THRESHOLD, 64 << 20);
#endif
}
