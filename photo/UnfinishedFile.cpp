// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/UnfinishedFile.h"

#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

// A hidden name is ".lumora-PROCESS-NUMBER". As long as its process lives the file is locked, so that other machines
// and containers, which cannot see the process, know it for unfinished too.

namespace {

constexpr std::string_view prefix = ".lumora-";

/// The process that a hidden name tells of; 0 for any other name.
pid_t processOf(std::string_view name)
{
    if (!name.starts_with(prefix))
        return 0;
    const char* const end = name.data() + name.size();
    pid_t process = 0;
    int number = 0;
    const auto first = std::from_chars(name.data() + prefix.size(), end, process);
    if (first.ec != std::errc() || first.ptr == end || *first.ptr != '-' || process <= 0)
        return 0;
    const auto second = std::from_chars(first.ptr + 1, end, number);
    return second.ec == std::errc() && second.ptr == end && number >= 0 ? process : 0;
}

bool mayLive(pid_t process)
{
    return process != getpid() && (kill(process, 0) == 0 || errno != ESRCH);
}

} // namespace

UnfinishedFile::UnfinishedFile(const std::string& folder, Kind kind, mode_t permissions)
    : m_folder(folder)
{
    if (kind == Unnamed)
        m_descriptor = open(folder.empty() ? "." : folder.c_str(), O_WRONLY | O_TMPFILE | O_CLOEXEC, permissions);
    else
        withHiddenName([&](const char* name) {
            m_descriptor = open(name, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, permissions);
            return m_descriptor >= 0;
        });
    if (m_descriptor >= 0)
        flock(m_descriptor, LOCK_EX | LOCK_NB);
}

UnfinishedFile::~UnfinishedFile()
{
    const int error = errno;
    if (!m_hiddenName.empty())
        unlink(m_hiddenName.c_str());
    if (m_descriptor >= 0)
        close(m_descriptor);
    errno = error;
}

template <class Make> bool UnfinishedFile::withHiddenName(Make make)
{
    for (int number = 0; number < 10000; number++) {
        const std::string name =
            m_folder + std::string(prefix) + std::to_string(getpid()) + "-" + std::to_string(number);
        if (make(name.c_str())) {
            m_hiddenName = name;
            return true;
        }
        if (errno != EEXIST)
            return false;
    }
    return false;
}

bool UnfinishedFile::write(const QByteArray& data)
{
    for (qsizetype written = 0; written < data.size();) {
        const ssize_t count = ::write(m_descriptor, data.constData() + written, std::size_t(data.size() - written));
        if (count < 0 && errno != EINTR)
            return false;
        if (count > 0)
            written += count;
    }
    return true;
}

bool UnfinishedFile::synchronise()
{
    return fsync(m_descriptor) == 0 || errno == EINVAL; // EINVAL: this file system has no such thing
}

bool UnfinishedFile::linkTo(const std::string& name) const
{
    const std::string self = "/proc/self/fd/" + std::to_string(m_descriptor);
    return linkat(AT_FDCWD, self.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

bool UnfinishedFile::place(const std::string& target)
{
    if (m_hiddenName.empty()) {
        // A link never replaces, and a rename needs a name: only a file that is replaced is hidden for that moment.
        if (linkTo(target))
            return true;
        if (errno != EEXIST || !withHiddenName([this](const char* name) { return linkTo(name); }))
            return false;
    }
    if (std::rename(m_hiddenName.c_str(), target.c_str()) != 0)
        return false;
    m_hiddenName.clear();
    return true;
}

bool UnfinishedFile::placeNew(const std::string& target)
{
    if (m_hiddenName.empty())
        return linkTo(target);
    // Not every file system has this kind of renaming; those have links.
    const bool renamed = renameat2(AT_FDCWD, m_hiddenName.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0;
    if (!renamed && (errno == EEXIST || linkat(AT_FDCWD, m_hiddenName.c_str(), AT_FDCWD, target.c_str(), 0) != 0))
        return false;
    if (renamed)
        m_hiddenName.clear();
    return true;
}

void removeLeftovers(const std::string& folder)
{
    DIR* const entries = opendir(folder.empty() ? "." : folder.c_str());
    if (!entries)
        return;
    while (const dirent* entry = readdir(entries)) {
        const pid_t process = processOf(entry->d_name);
        if (process == 0 || mayLive(process))
            continue;
        const int descriptor =
            openat(dirfd(entries), entry->d_name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
        struct stat status = {};
        if (descriptor >= 0 && fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == geteuid()
            && flock(descriptor, LOCK_SH | LOCK_NB) == 0)
            unlinkat(dirfd(entries), entry->d_name, 0);
        if (descriptor >= 0)
            close(descriptor);
    }
    closedir(entries);
}
