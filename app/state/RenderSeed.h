// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>

/// While this lives, `rand()` draws from `seed` on. The numbers that are drawn afterwards do not depend on it: a step
/// taken back and done anew brings new ones.
class RenderSeed {
public:
    explicit RenderSeed(unsigned seed)
        : m_later(unsigned(std::rand()))
    {
        std::srand(seed);
    }
    ~RenderSeed() { std::srand(m_later); }
    RenderSeed(const RenderSeed&) = delete;
    RenderSeed& operator=(const RenderSeed&) = delete;

private:
    const unsigned m_later;
};
