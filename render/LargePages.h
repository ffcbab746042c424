// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

/// Asks the system to back a fresh block of `size` bytes by large pages. Memory comes page by page when it is first
/// written to, which for a photo in small pages takes as long as five copies of it.
void useLargePages(void* block, std::size_t size);
