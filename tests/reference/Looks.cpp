// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/reference/Looks.h"

#include "image/FilterNumber.h"

#include <map>

using namespace lumora;

namespace reference {

LookTwin twinOf(int look)
{
    static const std::map<int, LookTwin> twins = {
        {Filter::colorcross, colorcross},
        {Filter::helga, helga},
        {Filter::lolo, lolo},
        {Filter::magazine, magazine},
        {Filter::instant, instant},
        {Filter::mono, mono},
        {Filter::look1962, look1962},
        {Filter::look1974, look1974},
        {Filter::cinema, cinema},
        {Filter::infrared, infrared},
        {Filter::fisheye, fisheye},
        {Filter::lightleak, lightleak},
        {Filter::delicious, delicious},
        {Filter::arctic, arctic},
        {Filter::blowout, blowout},
    };
    const auto twin = twins.find(look);
    return twin == twins.end() ? nullptr : twin->second;
}

} // namespace reference
