// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/reader/ReaderProcess.h"

#include "photo/reader/Channel.h"
#include "photo/reader/Confinement.h"

#include <QSocketNotifier>
#include <algorithm>
#include <csignal>
#include <ctime>
#include <filesystem>
#include <memory>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <utility>
#include <vector>

namespace {

constexpr qint64 smallFile = 2'000'000; ///< bytes
constexpr qint64 smallFileTime = 2600, longestTime = 120'000; ///< milliseconds

constexpr int lastMoment = 2000; ///< milliseconds in which a process ends that has closed its channel

QByteArray& chosenProgram()
{
    static QByteArray program;
    return program;
}

/// Can be read from when the process has ended.
Descriptor watchOf(pid_t process)
{
    return Descriptor(int(syscall(SYS_pidfd_open, process, 0)));
}

void forgetEnded();

/// A process that was ended and may still be ending: one that waits for a slow disk takes its time. It is waited for
/// when the event loop sees its end, and otherwise before the next one is started.
class EndingProcess {
public:
    explicit EndingProcess(pid_t process)
        : m_process(process)
        , m_watch(watchOf(process))
    {
        if (!m_watch)
            return;
        m_notifier.reset(new QSocketNotifier(m_watch.number(), QSocketNotifier::Read));
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [] { forgetEnded(); });
    }

    bool hasEnded() const { return waitpid(m_process, nullptr, WNOHANG) != 0; }

private:
    /// It may be in the middle of its signal.
    struct DeleteLater {
        void operator()(QSocketNotifier* notifier) const
        {
            notifier->setEnabled(false);
            notifier->deleteLater();
        }
    };

    pid_t m_process;
    Descriptor m_watch;
    std::unique_ptr<QSocketNotifier, DeleteLater> m_notifier;
};

std::vector<EndingProcess>& endingProcesses()
{
    static std::vector<EndingProcess> processes;
    return processes;
}

void forgetEnded()
{
    std::erase_if(endingProcesses(), [](const EndingProcess& process) { return process.hasEnded(); });
}

/// The channel in place of the standard input, the standard error for whatever is printed, the usual signals.
int spawn(const QByteArray& program, int channel, pid_t& process)
{
    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;
    posix_spawn_file_actions_init(&files);
    posix_spawnattr_init(&attributes);
    posix_spawn_file_actions_adddup2(&files, channel, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&files, STDERR_FILENO, STDOUT_FILENO);
    posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);
    sigset_t none, all;
    sigemptyset(&none);
    sigfillset(&all);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setsigdefault(&attributes, &all);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    char* const arguments[] = {const_cast<char*>(program.constData()), nullptr};
    const int error = posix_spawn(&process, program.constData(), &files, &attributes, arguments, environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    return error;
}

PhotoReader::End endOfStatus(int status)
{
    using End = PhotoReader::End;
    if (WIFEXITED(status)) {
        switch (Forbidden(WEXITSTATUS(status))) {
        case Forbidden::Files:
            return End::TriedFiles;
        case Forbidden::Network:
            return End::TriedNetwork;
        }
        return End::BrokeDown;
    }
    switch (WTERMSIG(status)) {
    case SIGXCPU:
        return End::TookTooLong;
    case SIGXFSZ:
    case SIGKILL: // by the system, which does so where the memory runs out
        return End::TookTooMuchMemory;
    default:
        return End::BrokeDown;
    }
}

} // namespace

ReaderProcess::ReaderProcess(const QByteArray& program)
{
    forgetEnded();
    ChannelEnds ends = openChannel();
    pid_t process = -1;
    if (!ends.here || spawn(program, ends.there.number(), process) != 0)
        return;
    m_channel = std::move(ends.here);
    m_process = process;
}

ReaderProcess::~ReaderProcess()
{
    kill();
}

qint64 ReaderProcess::milliseconds() const
{
    clockid_t clock;
    timespec time;
    if (!isRunning() || clock_getcpuclockid(m_process, &clock) != 0 || clock_gettime(clock, &time) != 0)
        return 0;
    return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1000000;
}

PhotoReader::End ReaderProcess::end()
{
    const Descriptor watch = isRunning() ? watchOf(m_process) : Descriptor();
    pollfd ended = {watch.number(), POLLIN, 0};
    int status = 0;
    if (!watch || poll(&ended, 1, lastMoment) != 1 || waitpid(m_process, &status, 0) != m_process) {
        kill();
        return PhotoReader::End::BrokeDown;
    }
    m_process = -1;
    return endOfStatus(status);
}

void ReaderProcess::kill()
{
    if (!isRunning())
        return;
    ::kill(m_process, SIGKILL);
    endingProcesses().emplace_back(m_process);
    m_process = -1;
    forgetEnded();
}

void PhotoReader::setProgram(const QByteArray& path)
{
    chosenProgram() = path;
}

QByteArray readerProgram()
{
    if (!chosenProgram().isEmpty())
        return chosenProgram();
    std::error_code error;
    const auto here = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
    return QByteArray::fromStdString((here / LUMORA_READER_PROGRAM).native());
}

qint64 readingTime(qint64 fileBytes)
{
    // A second more for each megabyte more, many times what the slowest formats take.
    return std::min(smallFileTime + std::max(fileBytes - smallFile, qint64(0)) / 1000, longestTime);
}
