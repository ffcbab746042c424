// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include <cfloat>

// What the engine's arithmetic asks of the compiler. Every file of the engine includes this, directly or by way of
// others, before any code of its own.

// A float step must round to a float, a double step to a double. The x87 unit keeps more digits, and other bytes come
// out.
#if !defined(FLT_EVAL_METHOD) || FLT_EVAL_METHOD != 0
#error "Lumora needs floating point that is evaluated in its own precision; for 32-bit x86 use -msse2 -mfpmath=sse"
#endif
#ifdef __FAST_MATH__
#error "Lumora needs floating point as it is written: no -ffast-math"
#endif

// GCC 12 drops the rounding to float between two double steps when it packs neighbouring scalars into a vector (its
// straight-line vectoriser; loops are unharmed). Every look rounds there, so that vectoriser stays off: by an option
// where CMake builds, which then defines LUMORA_NO_SLP, and by this elsewhere.
#if defined(__GNUC__) && !defined(__clang__) && !defined(LUMORA_NO_SLP)
#pragma GCC optimize("no-tree-slp-vectorize")
#endif
