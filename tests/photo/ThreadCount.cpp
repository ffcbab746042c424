// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/ThreadCount.h"

#include <dlfcn.h>
#include <pthread.h>
#include <utility>

namespace {

int threads = 0;

} // namespace

/// Takes the place of the C library's, to see who begins threads.
extern "C" int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*run)(void*), void* argument)
{
    using Create = int (*)(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*);
    static const auto create = reinterpret_cast<Create>(dlsym(RTLD_NEXT, "pthread_create"));
    threads++;
    return create(thread, attributes, run, argument);
}

int samples::threadsBegunBy(const std::function<void()>& work)
{
    threads = 0;
    work();
    return std::exchange(threads, 0);
}
