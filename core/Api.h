// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Exact.h"

/// Marks what may be called from outside the engine. Its shared libraries export nothing else.
#define LUMORA_API __attribute__((visibility("default")))
