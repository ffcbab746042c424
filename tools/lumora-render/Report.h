// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/lumora-render/Runner.h"

/// Tells people and programs how each photo went: reasons go to the standard error, and where they are wanted a line of
/// JSON for each photo to another stream.
class Report {
public:
    /// -1: no lines.
    explicit Report(int lines)
        : m_lines(lines)
    {
    }

    /// `number` is the photo's among all, from 0.
    void addSkipped(std::size_t number, const Task& task);
    void addResult(std::size_t number, const Task& task, const Result& result);

    bool hasFailures() const { return m_hasFailures; }

private:
    int m_lines;
    bool m_hasFailures = false;
};

/// A line on the standard error.
void complain(const QByteArray& line);
