// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/GrowArray.h"

#include <QStringList>

// The crops, borders and sizes that people choose from, in their order, in English. The first of each is what holds
// where nobody has chosen.

/// "By Filter" stands for the look that was added last, "None" for no crop.
QStringList cropChoices();
QStringList borderChoices();
/// "Original", or the longer side in pixels.
QStringList sizeChoices();

/// A choice for people, in the language of this process. Names of looks are names and stay.
QString shownChoice(const QString& choice);

/// The filter number of a crop or a border that was chosen, for a list of looks.
int chosenFilter(const QString& choice, const lumora::GrowArray<int>& looks);
/// The longer side that was chosen in pixels; -1 for the picture's own.
int chosenSize(const QString& choice);
