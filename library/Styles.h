// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <span>

namespace lumora {

/// The filter numbers of the looks, crops and borders, in the order of the library's own numbers. A new one goes to the
/// end.
std::span<const int> looks();
std::span<const int> crops();
std::span<const int> borders();

/// Of a look's filter number: the place of its crop or border in those lists; -1 for none.
int cropOf(int look);
int borderOf(int look);

} // namespace lumora
