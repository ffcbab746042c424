// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/reference/Picture.h"

/// A picture that costs as much as a photo: a bright sky, a dark ground, shapes with edges, every tone and
/// fine grain. The same at every size but for the grain; byte 3 is 255.
Picture benchPhoto(int width, int height);
