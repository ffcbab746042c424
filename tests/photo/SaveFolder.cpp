// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/SaveFolder.h"

#include "photo/PhotoSaver.h"

#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <grp.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

SaveFolder::SaveFolder()
{
    chmod(path().constData(), 0777);
}

QByteArray SaveFolder::path(const QByteArray& name) const
{
    return m_folder.path().toLocal8Bit() + '/' + name;
}

std::set<std::string> SaveFolder::names() const
{
    std::set<std::string> found;
    DIR* folder = opendir(path().constData());
    while (const dirent* entry = readdir(folder))
        found.insert(entry->d_name);
    closedir(folder);
    found.erase(".");
    found.erase("..");
    return found;
}

int SaveFolder::leftovers() const
{
    int count = 0;
    for (const std::string& name : names())
        count += name.starts_with(".lumora-");
    return count;
}

bool saves(const QByteArray& path, const QByteArray& data)
{
    QString reason;
    const bool written = writeFileAtomically(path, data, &reason);
    if (!reason.isEmpty())
        qWarning("%s", qPrintable(reason));
    return written && reason.isEmpty();
}

mode_t permissionsOf(const QByteArray& path)
{
    struct stat status = {};
    stat(path.constData(), &status);
    return status.st_mode & 07777;
}

int resultInChild(const std::function<int()>& child)
{
    const pid_t process = fork();
    if (process == 0) {
        if (geteuid() == 0
            && (setgroups(1, &sharedGroup) != 0 || setresgid(nobody, nobody, nobody) != 0
                || setresuid(nobody, nobody, nobody) != 0))
            _exit(100);
        _exit(child());
    }
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

FileSystemFaults fileSystem;

// The calls of the program of this test come here instead of to the C library, which only passes them on too.

namespace {

int refused(int error)
{
    errno = error;
    return -1;
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const auto mode = (flags & (O_CREAT | __O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : mode_t(0);
    va_end(arguments);
    if (fileSystem.noUnnamedFiles && (flags & O_TMPFILE) == O_TMPFILE)
        return refused(EOPNOTSUPP);
    return int(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept
{
    return fileSystem.noLinks ? refused(EPERM) : int(syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
}

ssize_t write(int descriptor, const void* data, size_t size)
{
    if (fileSystem.atWrite)
        std::exchange(fileSystem.atWrite, nullptr)();
    return syscall(SYS_write, descriptor, data, size);
}

int rename(const char* from, const char* to) noexcept
{
    if (fileSystem.atRename)
        std::exchange(fileSystem.atRename, nullptr)();
    return int(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned int flags) noexcept
{
    return fileSystem.noNewNames ? refused(EINVAL) : int(syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}

int fsync(int descriptor)
{
    return fileSystem.synchronising != 0 ? refused(fileSystem.synchronising) : int(syscall(SYS_fsync, descriptor));
}

int fchmod(int descriptor, mode_t mode) noexcept
{
    return fileSystem.noRights ? refused(EPERM) : int(syscall(SYS_fchmod, descriptor, mode));
}

int fchown(int descriptor, uid_t owner, gid_t group) noexcept
{
    return fileSystem.noRights ? refused(EPERM) : int(syscall(SYS_fchown, descriptor, owner, group));
}

ssize_t listxattr(const char* path, char* names, size_t size) noexcept
{
    return fileSystem.noRights ? refused(ENOTSUP) : syscall(SYS_listxattr, path, names, size);
}

ssize_t getxattr(const char* path, const char* name, void* value, size_t size) noexcept
{
    return fileSystem.noRights ? refused(ENOTSUP) : syscall(SYS_getxattr, path, name, value, size);
}

int fsetxattr(int descriptor, const char* name, const void* value, size_t size, int flags) noexcept
{
    if (fileSystem.noRights)
        return refused(ENOTSUP);
    if (fileSystem.settingLists != 0 && std::strncmp(name, "system.", 7) == 0)
        return refused(fileSystem.settingLists);
    return int(syscall(SYS_fsetxattr, descriptor, name, value, size, flags));
}

} // extern "C"
