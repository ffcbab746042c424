// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/FileRights.h"
#include "photo/PhotoSaver.h"
#include "photo/Reason.h"
#include "photo/UnfinishedFile.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

// QSaveFile takes names as text only and would lose one that is not valid UTF-8, so the same steps stand here.

namespace {

QString failure(int error)
{
    switch (error) {
    case EACCES:
    case EPERM:
    case EROFS:
        return Reason::tr("There is no permission to write there.");
    case ENOSPC:
    case EDQUOT:
        return Reason::tr("The disk is full.");
    case EFBIG:
        return Reason::tr("The file is larger than may be written there.");
    case ENOENT:
    case ENOTDIR:
        return Reason::tr("The folder does not exist.");
    case ENAMETOOLONG:
        return Reason::tr("The file's name is too long.");
    case ELOOP:
        return Reason::tr("The link leads to itself.");
    case EEXIST:
        return Reason::tr("There is a file of that name already.");
    case EISDIR:
        return Reason::tr("There is a folder of that name.");
    default:
        return Reason::tr("The file cannot be written: %1.").arg(qt_error_string(error));
    }
}

/// The file that a chain of symbolic links leads to, which need not exist.
std::string linkTarget(const std::string& path)
{
    std::filesystem::path target = path;
    std::error_code error;
    for (int links = 0; links < 40 && std::filesystem::is_symlink(target, error); links++)
        target = target.parent_path() / std::filesystem::read_symlink(target, error);
    return target.native();
}

/// The part before a name: empty, or with its slash.
std::string folderOf(const std::string& path)
{
    return path.substr(0, path.rfind('/') + 1);
}

/// Lets a write beyond the size limit of this process fail instead of ending it.
class SizeLimitFails {
public:
    SizeLimitFails()
        : m_before(std::signal(SIGXFSZ, SIG_IGN))
    {
    }
    ~SizeLimitFails() { std::signal(SIGXFSZ, m_before); }

    SizeLimitFails(const SizeLimitFails&) = delete;
    SizeLimitFails& operator=(const SizeLimitFails&) = delete;

private:
    void (*m_before)(int);
};

/// The new name is on the disk when its folder is.
void synchroniseFolder(const std::string& folder)
{
    const int descriptor = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        fsync(descriptor);
        close(descriptor);
    }
}

/// Replaces `target`, which has that status where one stands there, or makes it; the error number when it could not be
/// done, 0 otherwise.
int replace(const std::string& target, const struct stat* replaced, const QByteArray& data, UnfinishedFile::Kind kind)
{
    // A new file gets the rights that the folder and the umask give at once.
    UnfinishedFile file(folderOf(target), kind, replaced ? 0600 : 0666);
    if (!file.isOpen() || !file.write(data))
        return errno;
    if (replaced)
        takeRights(file.descriptor(), target, *replaced);
    return file.synchronise() && file.place(target) ? 0 : errno;
}

/// What stands where a file is to be written.
struct Standing {
    explicit Standing(const std::string& target)
    {
        exists = stat(target.c_str(), &status) == 0;
        if (!exists)
            error = errno == ENOENT ? 0 : errno;
        else if (S_ISDIR(status.st_mode))
            error = EISDIR;
        else if (!S_ISREG(status.st_mode) || access(target.c_str(), W_OK) != 0)
            error = EACCES;
    }

    bool exists;
    struct stat status = {};
    int error = 0; ///< not 0 where it cannot be replaced, or nothing be put there
};

/// 0, or the error number with which so many bytes could not be written into a folder.
int roomFor(qint64 bytes, const std::string& folder)
{
    for (const auto kind : {UnfinishedFile::Unnamed, UnfinishedFile::Hidden}) {
        const UnfinishedFile file(folder, kind, 0600);
        if (!file.isOpen())
            continue;
        struct statvfs disk = {};
        // File systems that do not count their blocks have none.
        const bool isKnown = fstatvfs(file.descriptor(), &disk) == 0 && disk.f_blocks > 0;
        return isKnown && quint64(bytes) > quint64(disk.f_bavail) * disk.f_frsize ? ENOSPC : 0;
    }
    return errno;
}

/// Writes the file; the error number when it could not be done, 0 otherwise.
int write(const std::string& target, const QByteArray& data, Leftovers leftovers)
{
    const std::string folder = folderOf(target);
    const Standing standing(target);
    if (standing.error != 0)
        return standing.error;
    const struct stat* const replaced = standing.exists ? &standing.status : nullptr;
    const SizeLimitFails sizeLimitFails;
    if (leftovers == Leftovers::Remove)
        removeLeftovers(folder);
    // Whatever keeps a file without a name from being made or named, one with a hidden name may do.
    int error = replace(target, replaced, data, UnfinishedFile::Unnamed);
    if (error != 0)
        error = replace(target, replaced, data, UnfinishedFile::Hidden);
    if (error != 0)
        return error;
    synchroniseFolder(folder);
    return 0;
}

int makeNew(const std::string& target, const QByteArray& data, UnfinishedFile::Kind kind)
{
    UnfinishedFile file(folderOf(target), kind, 0666);
    const bool made = file.isOpen() && file.write(data) && file.synchronise() && file.placeNew(target);
    return made ? 0 : errno;
}

/// Writes a file where none stands; the error number when it could not be done, 0 otherwise.
int writeNew(const std::string& target, const QByteArray& data, Leftovers leftovers)
{
    const std::string folder = folderOf(target);
    const SizeLimitFails sizeLimitFails;
    int error = makeNew(target, data, UnfinishedFile::Unnamed);
    if (error != 0 && error != EEXIST) {
        if (leftovers == Leftovers::Remove)
            removeLeftovers(folder);
        error = makeNew(target, data, UnfinishedFile::Hidden);
    }
    if (error == 0)
        synchroniseFolder(folder);
    return error;
}

} // namespace

bool writeFileAtomically(const QByteArray& path, const QByteArray& data, QString* reason, Leftovers leftovers)
{
    const int error = write(linkTarget(path.toStdString()), data, leftovers);
    if (error != 0)
        *reason = failure(error);
    return error == 0;
}

bool writeNewFile(const QByteArray& path, const QByteArray& data, QString* reason, Leftovers leftovers)
{
    const int error = writeNew(path.toStdString(), data, leftovers);
    if (error != 0)
        *reason = failure(error);
    return error == 0;
}

bool mayWriteFile(const QByteArray& path, qint64 bytes, QString* reason)
{
    const std::string target = linkTarget(path.toStdString());
    int error = Standing(target).error;
    if (error == 0)
        error = roomFor(bytes, folderOf(target));
    if (error != 0)
        *reason = failure(error);
    return error == 0;
}
