// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What a person sees of a start, in seconds from the start of the process.
struct Start {
    double firstPaint; ///< something of the window stands on the screen
    double photo; ///< the photo's colours stand there
    double peakMemory; ///< MiB
};

/// Starts the program with a colourful photo and watches the middle of an otherwise empty screen.
Start watchStart(const QString& program, const QString& photo);
