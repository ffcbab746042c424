#include "core/GrowArray.h"

template <> void GrowArray<int>::addOnce(int x)
{
    if (find(x) == -1)
        add(x);
}
