// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/Measure.h"

#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <iostream>
#include <sched.h>
#include <string>
#include <time.h>
#include <unistd.h>

namespace {

/// Standard output while it lives: nowhere.
class Silence {
public:
    Silence()
        : kept(dup(STDOUT_FILENO))
    {
        std::cout.flush();
        std::fflush(stdout);
        const int nowhere = open("/dev/null", O_WRONLY);
        dup2(nowhere, STDOUT_FILENO);
        close(nowhere);
    }
    ~Silence()
    {
        std::fflush(stdout);
        dup2(kept, STDOUT_FILENO);
        close(kept);
    }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

private:
    int kept;
};

double processorSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

} // namespace

void stayOnOneCore()
{
    cpu_set_t cores;
    CPU_ZERO(&cores);
    CPU_SET(sched_getcpu(), &cores);
    if (sched_setaffinity(0, sizeof cores, &cores) != 0)
        std::perror("the process may move between cores");
}

double secondsOf(const std::function<void()>& action)
{
    const Silence silence;
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double processorSecondsOf(const std::function<void()>& action)
{
    const Silence silence;
    const double start = processorSeconds();
    action();
    return processorSeconds() - start;
}

double peakMemory(long long process)
{
    std::ifstream status("/proc/" + (process ? std::to_string(process) : "self") + "/status");
    for (std::string line; std::getline(status, line);)
        if (line.rfind("VmHWM:", 0) == 0)
            return std::stod(line.substr(6)) / 1024;
    return 0;
}

void forgetPeakMemory()
{
    std::ofstream("/proc/self/clear_refs") << 5;
}
