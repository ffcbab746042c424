// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/FreeMemory.h"

#include "photo/Reason.h"

#include <QByteArray>
#include <QFile>
#include <algorithm>
#include <limits>
#include <sys/resource.h>

namespace {

constexpr qint64 unknown = std::numeric_limits<qint64>::max();

/// The bytes that a line "Name:   1234 kB" of a system file tells; `unknown` when there is no such line.
qint64 readKilobytes(const char* file, const QByteArray& name)
{
    QFile lines(QString::fromLatin1(file));
    if (!lines.open(QIODevice::ReadOnly))
        return unknown;
    for (const QByteArray& line : lines.readAll().split('\n'))
        if (line.startsWith(name))
            return line.simplified().split(' ').value(1).toLongLong() * 1024;
    return unknown;
}

} // namespace

qint64 freeMemory()
{
    qint64 available = readKilobytes("/proc/meminfo", "MemAvailable:");
    rlimit limit;
    if (getrlimit(RLIMIT_AS, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY) {
        const qint64 used = readKilobytes("/proc/self/status", "VmSize:");
        if (used != unknown)
            available = std::min(available, qint64(limit.rlim_cur) - used);
    }
    return std::max<qint64>(available, 0);
}

QString memoryRefusal(const QSize& picture)
{
    return Reason::tr("There is not enough free memory for a picture of %1 x %2 pixels.")
        .arg(picture.width())
        .arg(picture.height());
}
