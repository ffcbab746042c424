// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/UnfinishedFile.h"
#include "tools/lumora-render/Plan.h"
#include "tools/lumora-render/Report.h"
#include "tools/lumora-render/Runner.h"

#include <QCoreApplication>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int someFailed = 1, wrongArguments = 2,
              interrupted = 128; ///< the program's status; a signal's number is added

/// The standard output, which from now on is nowhere: looks and libraries print to it.
int keptStandardOutput()
{
    const int kept = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3);
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(nowhere, STDOUT_FILENO);
    close(nowhere);
    return kept;
}

int refuse(const QByteArray& fault)
{
    complain(fault + " See lumora-render --help.");
    return wrongArguments;
}

/// Once for all outputs, which go to one folder.
void removeLeftoversOfRuns(const std::vector<Task>& tasks)
{
    if (tasks.empty() || tasks.front().output == "-")
        return;
    const QByteArray& output = tasks.front().output;
    removeLeftovers(output.left(output.lastIndexOf('/') + 1).toStdString());
}

int render(const Command& command)
{
    Plan plan = planFor(command);
    if (!plan.fault.isEmpty())
        return refuse(plan.fault);
    const int standardOutput = keptStandardOutput();
    Report report(command.json ? standardOutput : -1);
    removeLeftoversOfRuns(plan.tasks);
    std::vector<Task> tasks;
    std::vector<std::size_t> numbers; // of the tasks that are left, among all
    for (std::size_t i = 0; i < plan.tasks.size(); i++) {
        Task& task = plan.tasks[i];
        if (task.output != "-" && task.refusal.isEmpty()) {
            if (command.skipExisting && isDone(task, plan.photos)) {
                report.addSkipped(i, task);
                continue;
            }
            task.refusal = outputRefusal(task.output, plan.photos, command.order.mayReplace);
        }
        tasks.push_back(task);
        numbers.push_back(i);
    }
    const int signal = doTasks(tasks, command.order, plan.photos, command.jobs, standardOutput,
        [&](const Result& result) { report.addResult(numbers[result.number], tasks[result.number], result); });
    return signal != 0 ? interrupted + signal : report.hasFailures() ? someFailed : 0;
}

} // namespace

/// lumora-render [OPTION...] PHOTO...
int main(int argc, char** argv)
{
    // The parser asks it for the program's name. It needs no display.
    int count = 1;
    char name[] = "lumora-render";
    char* names[] = {name, nullptr};
    const QCoreApplication application(count, names);
    const Command command = readArguments({argv + 1, argv + argc});
    if (!command.fault.isEmpty())
        return refuse(command.fault);
    if (!command.text.isEmpty())
        return std::fputs(command.text.constData(), stdout) < 0 || std::fflush(stdout) != 0 ? someFailed : 0;
    return render(command);
}
