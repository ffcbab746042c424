// SPDX-License-Identifier: GPL-3.0-or-later
// The HEIC and AVIF reader on any bytes:
// build/asan/fuzz/HeifFuzz -max_total_time=600 -keep_seed=1 FOLDER build/asan/fuzz/seeds/HeifFuzz

#include "fuzz/ReaderFuzz.h"
#include "photo/formats/heif/HeifHandler.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    readAnyBytes<HeifHandler>(data, size, pixelsForLibraries);
    return 0;
}
