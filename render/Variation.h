// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The random numbers that looks draw: the table of the variation, and those that a look draws while it is made. Of the
// whole process.

/// Looks vary, from now on, by what follows from `seed` alone: the first hundred numbers are the table, and the looks
/// draw the next ones. One seed gives the same pictures as long as as many are rendered after it.
void varyBy(unsigned seed);

/// Looks use their fixed settings; the few that draw numbers all the same draw those of one seed.
void useFixedSettings();
