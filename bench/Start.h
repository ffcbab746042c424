// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>

/// What a person sees of a start, in seconds from the start of the process.
struct Start {
    double firstPaint; ///< something of the window stands on the screen
    double photo; ///< the photo's colours stand there
    double peakMemory; ///< MiB
};

/// Starts the program with a colourful photo and watches the middle of the screen, where nothing else may change. Does
/// what is asked `meanwhile`, once the photo is there, and ends the program.
Start watchStart(const QString& program, const QString& photo, const std::function<void()>& meanwhile = {});
