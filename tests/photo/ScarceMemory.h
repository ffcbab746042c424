// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <sys/resource.h>
#include <unistd.h>

/// While it lives, the program can take so many bytes and no more beyond what it has taken already, which is terabytes
/// of addresses under the address sanitizer.
class ScarceMemory {
public:
    explicit ScarceMemory(rlim_t bytes)
    {
        QFile memory("/proc/self/statm");
        if (getrlimit(RLIMIT_AS, &m_before) != 0 || !memory.open(QIODevice::ReadOnly))
            qFatal("the system does not tell the memory");
        const rlim_t taken = memory.readAll().split(' ').first().toULongLong() * rlim_t(getpagesize());
        const rlimit limit = {taken + bytes, m_before.rlim_max};
        if (setrlimit(RLIMIT_AS, &limit) != 0)
            qFatal("the memory cannot be limited");
    }
    ~ScarceMemory() { setrlimit(RLIMIT_AS, &m_before); }
    ScarceMemory(const ScarceMemory&) = delete;
    ScarceMemory& operator=(const ScarceMemory&) = delete;

private:
    rlimit m_before = {};
};
