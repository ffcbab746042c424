// SPDX-License-Identifier: GPL-3.0-or-later
// The PSD reader on any bytes: build/asan/fuzz/PsdFuzz -max_total_time=600 FOLDER build/asan/fuzz/seeds/PsdFuzz

#include "fuzz/ReaderFuzz.h"
#include "photo/formats/PsdHandler.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    readAnyBytes<PsdHandler>(data, size);
    return 0;
}
