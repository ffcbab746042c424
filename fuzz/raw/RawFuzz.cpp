// SPDX-License-Identifier: GPL-3.0-or-later
// The camera raw reader on any bytes:
// build/asan/fuzz/RawFuzz -max_total_time=600 -keep_seed=1 FOLDER build/asan/fuzz/seeds/RawFuzz

#include "fuzz/ReaderFuzz.h"
#include "photo/formats/raw/RawHandler.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    readAnyBytes<RawHandler>(data, size, pixelsForLibraries);
    return 0;
}
