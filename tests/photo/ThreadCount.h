// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace samples {

/// How many threads begin while that runs.
int threadsBegunBy(const std::function<void()>& work);

} // namespace samples
