// SPDX-License-Identifier: GPL-3.0-or-later
// The JPEG XL reader on any bytes:
// build/asan/fuzz/JxlFuzz -max_total_time=600 -keep_seed=1 FOLDER build/asan/fuzz/seeds/JxlFuzz

#include "fuzz/ReaderFuzz.h"
#include "photo/formats/jxl/JxlHandler.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    readAnyBytes<JxlHandler>(data, size, pixelsForLibraries);
    return 0;
}
