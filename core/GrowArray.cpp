// SPDX-License-Identifier: LGPL-3.0-or-later
#include "core/GrowArray.h"

namespace lumora {

template <> void GrowArray<int>::addOnce(int x)
{
    if (find(x) == -1)
        add(x);
}

} // namespace lumora
