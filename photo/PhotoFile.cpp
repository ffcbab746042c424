// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/PhotoFile.h"

#include "photo/Reason.h"

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QString openFailure(int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return Reason::tr("The file does not exist.");
    case EACCES:
    case EPERM:
        return Reason::tr("There is no permission to read the file.");
    default:
        return Reason::tr("The file cannot be opened: %1.").arg(qt_error_string(error));
    }
}

} // namespace

QString openPhotoFile(const QByteArray& path, QFile& file)
{
    const int descriptor = open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0)
        return openFailure(errno);
    struct stat status = {};
    const bool known = fstat(descriptor, &status) == 0;
    if (!known || !S_ISREG(status.st_mode) || status.st_size == 0) {
        close(descriptor);
        if (known && S_ISREG(status.st_mode))
            return Reason::tr("The file is empty.");
        return S_ISDIR(status.st_mode) ? Reason::tr("It is a folder, not a picture.")
                                       : Reason::tr("It is not a file with a picture.");
    }
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        close(descriptor);
        return openFailure(EIO);
    }
    return {};
}
