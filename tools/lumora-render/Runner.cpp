// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/lumora-render/Runner.h"

#include "photo/Reason.h"
#include "photo/reader/Descriptor.h"
#include "tools/lumora-render/Interrupt.h"

#include <QDataStream>
#include <QElapsedTimer>
#include <QIODevice>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <list>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QByteArray packed(const Outcome& outcome)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << outcome.reason << outcome.width << outcome.height << outcome.bytes << outcome.warning;
    return bytes;
}

/// False where the report is not whole.
bool unpack(const QByteArray& bytes, Outcome& outcome)
{
    QDataStream stream(bytes);
    stream >> outcome.reason >> outcome.width >> outcome.height >> outcome.bytes >> outcome.warning;
    return stream.status() == QDataStream::Ok && stream.atEnd();
}

Outcome failure(const QString& reason)
{
    Outcome outcome;
    outcome.reason = reason;
    return outcome;
}

/// Of a process that ended without a report.
Outcome brokenDown(int status)
{
    if (WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) // by the system, which does so where the memory runs out
        return failure(Reason::tr("Rendering it was ended from outside, as happens where the memory runs out."));
    return failure(Reason::tr("Rendering it failed: the program broke down."));
}

/// A process at work on a task.
struct Worker {
    std::size_t number;
    pid_t process;
    Descriptor reportEnd;
    QElapsedTimer clock = {};
    QByteArray report = {};

    /// Reads what has come; true at the end.
    bool receive()
    {
        char part[4096];
        const ssize_t count = read(reportEnd.number(), part, sizeof part);
        if (count > 0)
            report.append(part, count);
        return count == 0 || (count < 0 && errno != EINTR);
    }

    Result end()
    {
        int status = 0;
        while (waitpid(process, &status, 0) < 0 && errno == EINTR)
            ;
        Result result = {number, {}, clock.elapsed()};
        if (!unpack(report, result.outcome))
            result.outcome = brokenDown(status);
        return result;
    }
};

class Run {
public:
    Run(const std::vector<Task>& tasks, const Order& order, const FileNumbers& photos, int standardOutput)
        : m_tasks(tasks)
        , m_order(order)
        , m_photos(photos)
        , m_standardOutput(standardOutput)
        , m_whileWaiting(noteInterrupts())
    {
    }

    int doAll(std::size_t jobs, const std::function<void(const Result&)>& tell)
    {
        std::size_t next = 0;
        bool isCutShort = false;
        while (true) {
            while (interrupt() == 0 && next < m_tasks.size() && m_workers.size() < jobs) {
                const QString refusal = begin(next);
                if (!refusal.isEmpty())
                    tell({next, failure(refusal)});
                next++;
            }
            if (m_workers.empty())
                return isCutShort || next < m_tasks.size() ? interrupt() : 0;
            for (const Result& result : wait())
                if (interrupt() == 0 || result.outcome.reason.isEmpty())
                    tell(result);
                else // it has been ended
                    isCutShort = true;
        }
    }

private:
    /// Begins a task; the reason where that cannot be.
    QString begin(std::size_t number)
    {
        const Task& task = m_tasks[number];
        int ends[2];
        if (!task.refusal.isEmpty() || pipe2(ends, O_CLOEXEC) != 0)
            return task.refusal.isEmpty() ? noProcess() : task.refusal;
        Descriptor here(ends[0]);
        const Descriptor there(ends[1]);
        const pid_t parent = getpid(), process = fork();
        if (process == 0)
            work(task, parent, there.number());
        if (process < 0)
            return noProcess();
        m_workers.push_back({number, process, std::move(here)});
        m_workers.back().clock.start();
        return {};
    }

    static QString noProcess() { return Reason::tr("No process can be started for it."); }

    /// In the process of the task.
    [[noreturn]] void work(const Task& task, pid_t parent, int report)
    {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != parent)
            _exit(1);
        dup2(STDOUT_FILENO, STDERR_FILENO); // which is nowhere: decoders tell of damage in words without a name
        endByInterrupts(m_whileWaiting);
        const QByteArray bytes = packed(renderOne(task, m_order, m_photos, m_standardOutput));
        _exit(write(report, bytes.constData(), std::size_t(bytes.size())) == bytes.size() ? 0 : 1);
    }

    /// Waits until something has happened, and gives what has ended by then.
    std::vector<Result> wait()
    {
        std::vector<pollfd> reports;
        for (const Worker& worker : m_workers)
            reports.push_back({worker.reportEnd.number(), POLLIN, 0});
        if (ppoll(reports.data(), reports.size(), nullptr, &m_whileWaiting) < 0) {
            for (const Worker& worker : m_workers)
                kill(worker.process, SIGTERM);
            return {};
        }
        std::vector<Result> ended;
        auto report = reports.begin();
        std::erase_if(m_workers, [&](Worker& worker) {
            if ((report++)->revents == 0 || !worker.receive())
                return false;
            ended.push_back(worker.end());
            return true;
        });
        return ended;
    }

    const std::vector<Task>& m_tasks;
    const Order& m_order;
    const FileNumbers& m_photos;
    int m_standardOutput;
    sigset_t m_whileWaiting;
    std::list<Worker> m_workers;
};

} // namespace

int doTasks(const std::vector<Task>& tasks, const Order& order, const FileNumbers& photos, int jobs, int standardOutput,
    const std::function<void(const Result&)>& tell)
{
    return Run(tasks, order, photos, standardOutput).doAll(std::size_t(jobs), tell);
}
