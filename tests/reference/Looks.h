// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/reference/Picture.h"

/// Slow literal evaluations of the looks, one source each under looks/. They read CharImage::random and
/// CharImage::useRandom, as the looks do, and call nothing else of the engine. What the looks print is left to their
/// tests.
namespace reference {

void colorcross(Picture& picture);
void helga(Picture& picture);
void lolo(Picture& picture);
void magazine(Picture& picture);
void instant(Picture& picture);
void mono(Picture& picture);
void look1962(Picture& picture);
void look1974(Picture& picture);
void cinema(Picture& picture);
void infrared(Picture& picture);
void fisheye(Picture& picture);
void lightleak(Picture& picture);
void delicious(Picture& picture);
void arctic(Picture& picture);
void blowout(Picture& picture);

using LookTwin = void (*)(Picture&);
/// The twin of a look's filter number; null for every other number, and for a look that has none.
LookTwin twinOf(int look);

} // namespace reference
