// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/lumora-render/Arguments.h"

/// What is to be done for a command.
struct Plan {
    std::vector<Task> tasks; ///< one for each photo, in their order
    FileNumbers photos; ///< that are never replaced
    QByteArray fault; ///< why nothing can be done; empty where it can
};

/// Names the output of each photo. The second of two photos that go to one name is refused.
Plan planFor(const Command& command);

/// Whether the output of the task is there already, and is none of the photos.
bool isDone(const Task& task, const FileNumbers& photos);
