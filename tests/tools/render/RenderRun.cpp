// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/tools/render/RenderRun.h"

#include "tests/photo/Samples.h"

#include <QJsonDocument>
#include <QtGlobal>
#include <csignal>
#include <dirent.h>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

RenderRun::RenderRun(const QByteArray& folder, const QList<QByteArray>& arguments, Input input)
{
    int in[2], out[2];
    if (pipe2(in, O_CLOEXEC) != 0 || pipe2(out, O_CLOEXEC) != 0)
        qFatal("no pipes");
    const QByteArray errors = m_errors.filePath("err").toLocal8Bit();
    m_process = fork();
    if (m_process == 0) {
        dup2(in[0], STDIN_FILENO);
        dup2(out[1], STDOUT_FILENO);
        dup2(open(errors.constData(), O_WRONLY | O_CREAT, 0600), STDERR_FILENO);
        setpgid(0, 0); // a terminal's Ctrl+C goes to the whole group
        if (chdir(folder.constData()) != 0)
            _exit(100);
        std::vector<char*> words = {const_cast<char*>(RENDER_PROGRAM)};
        for (const QByteArray& argument : arguments)
            words.push_back(const_cast<char*>(argument.constData()));
        words.push_back(nullptr);
        execv(RENDER_PROGRAM, words.data());
        _exit(101);
    }
    setpgid(m_process, m_process);
    close(in[0]);
    close(out[1]);
    m_input = in[1];
    m_output = out[0];
    if (input == Input::Nothing)
        write({});
}

RenderRun::~RenderRun()
{
    if (m_process > 0) {
        kill(-m_process, SIGKILL);
        wait();
    }
}

void RenderRun::write(const QByteArray& input)
{
    // It may have ended already.
    const auto before = std::signal(SIGPIPE, SIG_IGN);
    for (qsizetype at = 0, count = 1; at < input.size() && count > 0; at += count)
        count = ::write(m_input, input.constData() + at, std::size_t(input.size() - at));
    std::signal(SIGPIPE, before);
    close(std::exchange(m_input, -1));
}

QByteArray RenderRun::readLine()
{
    while (!m_read.contains('\n')) {
        char part[4096];
        const ssize_t count = read(m_output, part, sizeof part);
        if (count <= 0)
            return {};
        m_read.append(part, count);
    }
    const qsizetype end = m_read.indexOf('\n');
    const QByteArray line = m_read.left(end);
    m_read.remove(0, end + 1);
    return line;
}

void RenderRun::send(int signal)
{
    kill(-m_process, signal);
}

RenderRun::Ended RenderRun::wait()
{
    if (m_input >= 0)
        close(std::exchange(m_input, -1));
    Ended ended = {};
    char part[4096];
    for (ssize_t count; (count = read(m_output, part, sizeof part)) > 0;)
        m_read.append(part, count);
    close(m_output);
    int status = 0;
    waitpid(std::exchange(m_process, 0), &status, 0);
    ended.status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    ended.out = m_read;
    ended.err = samples::readFile(m_errors.filePath("err").toLocal8Bit());
    return ended;
}

RenderRun::Ended runRender(const QByteArray& folder, const QList<QByteArray>& arguments, const QByteArray& input)
{
    RenderRun run(folder, arguments, RenderRun::Input::Open);
    run.write(input);
    return run.wait();
}

QList<QJsonObject> jsonLines(const QByteArray& out)
{
    QList<QJsonObject> lines;
    for (const QByteArray& line : out.split('\n'))
        if (!line.isEmpty())
            lines << QJsonDocument::fromJson(line).object();
    return lines;
}

QByteArray ByteFolder::path(const QByteArray& name) const
{
    return m_folder.path().toLocal8Bit() + '/' + name;
}

std::set<std::string> ByteFolder::names(const QByteArray& below) const
{
    std::set<std::string> found;
    DIR* folder = opendir(path(below).constData());
    while (const dirent* entry = readdir(folder))
        found.insert(entry->d_name);
    closedir(folder);
    found.erase(".");
    found.erase("..");
    return found;
}
