// SPDX-License-Identifier: GPL-3.0-or-later
// The TGA reader on any bytes: build/asan/fuzz/TgaFuzz -max_total_time=600 FOLDER build/asan/fuzz/seeds/TgaFuzz

#include "fuzz/ReaderFuzz.h"
#include "photo/formats/TgaHandler.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    readAnyBytes<TgaHandler>(data, size);
    return 0;
}
