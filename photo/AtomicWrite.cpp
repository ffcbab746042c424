#include "photo/PhotoSaver.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

// QSaveFile takes names as text only and would lose one that is not valid UTF-8, so the same steps stand here.

namespace {

QString failure(int error)
{
    switch (error) {
    case EACCES:
    case EPERM:
    case EROFS:
        return QStringLiteral("There is no permission to write there.");
    case ENOSPC:
    case EDQUOT:
        return QStringLiteral("The disk is full.");
    case EFBIG:
        return QStringLiteral("The file is larger than may be written there.");
    case ENOENT:
    case ENOTDIR:
        return QStringLiteral("The folder does not exist.");
    case ENAMETOOLONG:
        return QStringLiteral("The file's name is too long.");
    case ELOOP:
        return QStringLiteral("The link leads to itself.");
    case EISDIR:
        return QStringLiteral("There is a folder of that name.");
    default:
        return QStringLiteral("The file cannot be written: %1.").arg(qt_error_string(error));
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

/// A file that gets its name only when it is complete; it is removed otherwise.
class UnfinishedFile {
public:
    explicit UnfinishedFile(const std::string& folder)
    {
        for (int number = 0; number < 10000; number++) {
            m_name = folder + ".lumora-" + std::to_string(getpid()) + "-" + std::to_string(number);
            m_descriptor = open(m_name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
            if (m_descriptor >= 0 || errno != EEXIST)
                return;
        }
    }

    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    ~UnfinishedFile()
    {
        if (m_descriptor < 0)
            return;
        close(m_descriptor);
        unlink(m_name.c_str());
    }

    bool isOpen() const { return m_descriptor >= 0; }

    /// Owner, group and permissions of the file that is to be replaced. Another user's file becomes one's own; where
    /// its group cannot be kept, the new one may no more than everybody.
    void takePermissions(const struct stat& replaced)
    {
        mode_t permissions = replaced.st_mode & 07777;
        if (fchown(m_descriptor, replaced.st_uid, replaced.st_gid) != 0
            && fchown(m_descriptor, uid_t(-1), replaced.st_gid) != 0)
            permissions = (permissions & 0707) | (permissions & 07) << 3;
        fchmod(m_descriptor, permissions);
    }

    bool write(const QByteArray& data)
    {
        for (qsizetype written = 0; written < data.size();) {
            const ssize_t count = ::write(m_descriptor, data.constData() + written, std::size_t(data.size() - written));
            if (count < 0 && errno != EINTR)
                return false;
            if (count > 0)
                written += count;
        }
        return fsync(m_descriptor) == 0;
    }

    bool rename(const std::string& target)
    {
        if (std::rename(m_name.c_str(), target.c_str()) != 0)
            return false;
        close(m_descriptor);
        m_descriptor = -1;
        return true;
    }

private:
    std::string m_name;
    int m_descriptor = -1;
};

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

/// Writes the file; the error number when it could not be done, 0 otherwise.
int write(const std::string& target, const QByteArray& data)
{
    const std::string folder = target.substr(0, target.rfind('/') + 1);
    struct stat replaced;
    const bool replaces = stat(target.c_str(), &replaced) == 0;
    if (!replaces && errno == ELOOP)
        return ELOOP;
    if (replaces && S_ISDIR(replaced.st_mode))
        return EISDIR;
    if (replaces && (!S_ISREG(replaced.st_mode) || access(target.c_str(), W_OK) != 0))
        return EACCES;
    const SizeLimitFails sizeLimitFails;
    UnfinishedFile file(folder);
    if (!file.isOpen())
        return errno;
    if (replaces)
        file.takePermissions(replaced);
    if (!file.write(data) || !file.rename(target))
        return errno;
    // The new name is on the disk when its folder is.
    const int descriptor = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        fsync(descriptor);
        close(descriptor);
    }
    return 0;
}

} // namespace

bool writeFileAtomically(const QByteArray& path, const QByteArray& data, QString* reason)
{
    const int error = write(linkTarget(path.toStdString()), data);
    if (error != 0)
        *reason = failure(error);
    return error == 0;
}
