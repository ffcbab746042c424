// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/reader/Confinement.h"

#include "photo/PhotoDecoder.h"

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <sched.h>
#include <seccomp.h>
#include <span>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

struct ReleaseFilter {
    void operator()(void* filter) const { seccomp_release(filter); }
};
using Filter = std::unique_ptr<void, ReleaseFilter>;

bool setLimit(__rlimit_resource resource, rlim_t soft, rlim_t hard)
{
    rlimit before;
    if (getrlimit(resource, &before) != 0)
        return false;
    const rlimit now = {std::min(soft, before.rlim_max), std::min(hard, before.rlim_max)};
    return setrlimit(resource, &now) == 0;
}

/// The addresses that this process has taken.
rlim_t takenBytes()
{
    QFile memory(QStringLiteral("/proc/self/statm"));
    return memory.open(QIODevice::ReadOnly)
        ? memory.readAll().split(' ').first().toULongLong() * rlim_t(sysconf(_SC_PAGESIZE))
        : 0;
}

constexpr int fileCalls[] = {SCMP_SYS(open), SCMP_SYS(openat), SCMP_SYS(openat2), SCMP_SYS(creat), SCMP_SYS(access),
    SCMP_SYS(faccessat), SCMP_SYS(faccessat2), SCMP_SYS(stat), SCMP_SYS(lstat), SCMP_SYS(readlink),
    SCMP_SYS(readlinkat), SCMP_SYS(rename), SCMP_SYS(renameat), SCMP_SYS(renameat2), SCMP_SYS(link), SCMP_SYS(linkat),
    SCMP_SYS(symlink), SCMP_SYS(symlinkat), SCMP_SYS(unlink), SCMP_SYS(unlinkat), SCMP_SYS(mkdir), SCMP_SYS(mkdirat),
    SCMP_SYS(truncate), SCMP_SYS(chmod), SCMP_SYS(fchmodat), SCMP_SYS(execve), SCMP_SYS(execveat)};

constexpr int networkCalls[] = {
    SCMP_SYS(socket), SCMP_SYS(socketpair), SCMP_SYS(socketcall), SCMP_SYS(connect), SCMP_SYS(bind)};

/// Ends the process in place of such a call. Nothing may be called here that takes a lock.
void endForbidden(int, siginfo_t* info, void*)
{
    const bool isNetwork =
        std::find(std::begin(networkCalls), std::end(networkCalls), info->si_syscall) != std::end(networkCalls);
    _exit(int(isNetwork ? Forbidden::Network : Forbidden::Files));
}

bool forbid(const Filter& filter, std::span<const int> calls)
{
    return std::all_of(calls.begin(), calls.end(),
        [&](int call) { return seccomp_rule_add(filter.get(), SCMP_ACT_TRAP, call, 0) == 0; });
}

bool allow(const Filter& filter, std::initializer_list<int> calls)
{
    return std::all_of(calls.begin(), calls.end(),
        [&](int call) { return seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, call, 0) == 0; });
}

bool allowMemoryAndOpenFiles(const Filter& filter)
{
    return allow(filter,
               {SCMP_SYS(read), SCMP_SYS(readv), SCMP_SYS(pread64), SCMP_SYS(lseek), SCMP_SYS(_llseek), SCMP_SYS(fstat),
                   SCMP_SYS(fstat64), SCMP_SYS(fcntl), SCMP_SYS(fcntl64), SCMP_SYS(write), SCMP_SYS(writev),
                   SCMP_SYS(pwrite64), SCMP_SYS(ftruncate), SCMP_SYS(ftruncate64), SCMP_SYS(close), SCMP_SYS(poll),
                   SCMP_SYS(sendmsg), SCMP_SYS(memfd_create), SCMP_SYS(brk), SCMP_SYS(mmap), SCMP_SYS(mmap2),
                   SCMP_SYS(munmap), SCMP_SYS(mremap), SCMP_SYS(mprotect), SCMP_SYS(madvise)})
        // The C library asks for an open file's state by an empty name beside its descriptor.
        && seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, SCMP_SYS(newfstatat), 1,
               SCMP_A3(SCMP_CMP_MASKED_EQ, AT_EMPTY_PATH, AT_EMPTY_PATH))
        == 0
        && seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, SCMP_SYS(statx), 1,
               SCMP_A2(SCMP_CMP_MASKED_EQ, AT_EMPTY_PATH, AT_EMPTY_PATH))
        == 0;
}

/// The platform's pictures are converted in several threads; a library may begin some of its own. A new process is
/// none. The newer call for both hides what it begins; the C library then takes the older one.
bool allowThreads(const Filter& filter)
{
    return allow(filter,
               {SCMP_SYS(futex), SCMP_SYS(set_robust_list), SCMP_SYS(rseq), SCMP_SYS(sched_yield),
                   SCMP_SYS(sched_getaffinity), SCMP_SYS(sched_getparam), SCMP_SYS(sched_getscheduler),
                   SCMP_SYS(sched_get_priority_min), SCMP_SYS(sched_get_priority_max), SCMP_SYS(gettid),
                   SCMP_SYS(getpid), SCMP_SYS(eventfd2), SCMP_SYS(rt_sigaction), SCMP_SYS(rt_sigprocmask),
                   SCMP_SYS(rt_sigreturn), SCMP_SYS(sigaltstack), SCMP_SYS(exit), SCMP_SYS(exit_group),
                   SCMP_SYS(restart_syscall)})
        && seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, SCMP_SYS(clone), 1,
               SCMP_A0(SCMP_CMP_MASKED_EQ, CLONE_THREAD, CLONE_THREAD))
        == 0
        && seccomp_rule_add(
               filter.get(), SCMP_ACT_ALLOW, SCMP_SYS(tgkill), 1, SCMP_A0(SCMP_CMP_EQ, scmp_datum_t(getpid())))
        == 0
        && seccomp_rule_add(
               filter.get(), SCMP_ACT_ALLOW, SCMP_SYS(prlimit64), 2, SCMP_A0(SCMP_CMP_EQ, 0), SCMP_A2(SCMP_CMP_EQ, 0))
        == 0;
}

bool allowClocks(const Filter& filter)
{
    return allow(filter,
        {SCMP_SYS(clock_gettime), SCMP_SYS(clock_gettime64), SCMP_SYS(clock_getres), SCMP_SYS(clock_nanosleep),
            SCMP_SYS(nanosleep), SCMP_SYS(gettimeofday), SCMP_SYS(time), SCMP_SYS(getrandom), SCMP_SYS(sysinfo),
            SCMP_SYS(uname), SCMP_SYS(getrusage), SCMP_SYS(times)});
}

} // namespace

bool limit(const ReadingLimits& limits)
{
    const auto seconds = rlim_t(limits.seconds);
    const rlim_t addresses = takenBytes() + rlim_t(limits.memory), file = rlim_t(maxPhotoPixels * 4 + maxBlockBytes);
    // The memory stands last: what comes before may take some.
    return prctl(PR_SET_DUMPABLE, 0) == 0 && setLimit(RLIMIT_CORE, 0, 0) && setLimit(RLIMIT_FSIZE, file, file)
        && setLimit(RLIMIT_CPU, seconds, seconds + 1) && setLimit(RLIMIT_AS, addresses, addresses);
}

bool confine()
{
    struct sigaction action = {};
    action.sa_sigaction = endForbidden;
    action.sa_flags = SA_SIGINFO;
    if (sigaction(SIGSYS, &action, nullptr) != 0)
        return false;
    const Filter filter(seccomp_init(SCMP_ACT_ERRNO(ENOSYS)));
    return filter && forbid(filter, fileCalls) && forbid(filter, networkCalls) && allowMemoryAndOpenFiles(filter)
        && allowThreads(filter) && allowClocks(filter) && seccomp_load(filter.get()) == 0;
}
