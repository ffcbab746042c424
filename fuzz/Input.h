// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

/// Takes an input apart; zeros beyond its end.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size)
        : m_data(data)
        , m_size(size)
    {
    }

    void take(void* to, std::size_t count)
    {
        std::memset(to, 0, count);
        const std::size_t taken = count < m_size ? count : m_size;
        if (taken > 0)
            std::memcpy(to, m_data, taken);
        m_data += taken;
        m_size -= taken;
    }
    int below(int limit)
    {
        std::uint16_t v;
        take(&v, sizeof v);
        return v % limit;
    }
    /// Any float at all, or one of a likely range.
    float number(float range)
    {
        if (below(4) == 0) {
            float v;
            take(&v, sizeof v);
            return v;
        }
        return float(below(1001)) / 1000.0f * range;
    }

private:
    const std::uint8_t* m_data;
    std::size_t m_size;
};
