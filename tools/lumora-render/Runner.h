// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/lumora-render/Job.h"

#include <functional>
#include <vector>

/// How a task ended.
struct Result {
    std::size_t number; ///< of the task, from 0
    Outcome outcome;
    qint64 milliseconds = 0; ///< that it took
};

/// Does the tasks, each in a process of its own that ends with this one, and `jobs` at once; tells of each when it has
/// ended. `standardOutput` is where "-" leads. An interrupt ends those that have not begun to write, and no further one
/// is begun: the number of its signal, or 0 where all were done. What the tasks print goes where this process's
/// standard output leads.
int doTasks(const std::vector<Task>& tasks, const Order& order, const FileNumbers& photos, int jobs, int standardOutput,
    const std::function<void(const Result&)>& tell);
