// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <cstdlib>

#ifndef __GLIBC__
#error "Only the GNU C library draws rand() from the state that initstate() puts in its place."
#endif

namespace lumora {

/// While this lives, `rand()` draws from `seed` on, from a state of its own, as after `srand(seed)`. Then the sequence
/// of the program that holds the library goes on where it was.
class HostRandom {
public:
    explicit HostRandom(unsigned seed)
        : m_hosts(initstate(seed, m_state, sizeof m_state))
    {
    }
    ~HostRandom() { setstate(m_hosts); }
    HostRandom(const HostRandom&) = delete;
    HostRandom& operator=(const HostRandom&) = delete;

private:
    char m_state[128]; ///< the size with which the GNU C library begins
    char* m_hosts;
};

} // namespace lumora
