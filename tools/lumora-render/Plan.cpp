// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/lumora-render/Plan.h"

#include "photo/EscapedText.h"
#include "photo/Reason.h"
#include "render/Export.h"

#include <set>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isFolder(const QByteArray& path)
{
    struct stat status = {};
    return stat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// The folder that the outputs go to, with its slash or empty; nothing where they go to a file or a stream.
std::optional<QByteArray> outputFolder(const QByteArray& output)
{
    if (output.isEmpty())
        return QByteArray();
    if (output.endsWith('/'))
        return output;
    return output != "-" && isFolder(output) ? std::optional(output + '/') : std::nullopt;
}

} // namespace

Plan planFor(const Command& command)
{
    Plan plan;
    const std::optional<QByteArray> folder = outputFolder(command.output);
    if (!folder && command.photos.size() > 1)
        plan.fault = "--output " + escaped(command.output) + ": several photos need a folder that is there.";
    else if (folder && !folder->isEmpty() && !isFolder(*folder))
        plan.fault = "--output " + escaped(command.output) + ": there is no such folder.";
    else if (command.output == "-" && isatty(STDOUT_FILENO) != 0)
        plan.fault = "A terminal shows no pictures: name an --output.";
    const Order& order = command.order;
    std::set<QByteArray> outputs;
    for (const QByteArray& photo : command.photos) {
        Task task = {photo, command.output, {}};
        if (folder && photo == "-")
            plan.fault = "The photo of the standard input has no name: name a file as the --output.";
        if (folder)
            task.output = *folder
                + exportName(photo.mid(photo.lastIndexOf('/') + 1), order.looks, order.lossless ? ".png" : ".jpg");
        if (!outputs.insert(task.output).second)
            task.refusal = Reason::tr("Another photo of this run has the same output.");
        else if (const auto number = fileNumber(photo))
            plan.photos.insert(*number);
        plan.tasks.push_back(task);
    }
    return plan;
}

bool isDone(const Task& task, const FileNumbers& photos)
{
    const std::optional<FileNumber> number = fileNumber(task.output);
    return number && !photos.contains(*number);
}
