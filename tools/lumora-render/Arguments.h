// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/lumora-render/Job.h"

#include <QByteArray>
#include <QStringList>
#include <vector>

/// What the arguments ask for.
struct Command {
    Order order;
    std::vector<QByteArray> photos; ///< paths of any bytes; "-" is the standard input
    QByteArray output; ///< a folder, a file, or "-" for the standard output; empty: the folder where the program runs
    bool skipExisting = false; ///< photos whose output is there are done
    bool json = false; ///< a line for each photo goes to the standard output
    int jobs = 1;

    QByteArray text; ///< to be printed in place of all this; empty for most
    QByteArray fault; ///< what is wrong with the arguments; empty where nothing is
};

/// Reads the arguments, without the program's name. Of files it reads the list of photos alone, where one is named.
Command readArguments(const std::vector<QByteArray>& arguments);
