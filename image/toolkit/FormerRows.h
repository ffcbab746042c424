#pragma once

#include "image/CharImage.h"

#include <cstring>
#include <vector>

/// The rows of a picture as they were, for a look that reads around the pixel that it writes: each row is kept before
/// it is written over, in the place of the one that was kept longest ago. That spares the memory of a whole copy.
class FormerRows {
public:
    /// `count` rows are kept at a time, 1 at least.
    FormerRows(const CharImage& picture, int count)
        : m_picture(picture)
        , m_rowBytes(std::size_t(picture.width) * 4)
        , m_kept(std::size_t(count), std::vector<unsigned char>(m_rowBytes + 4))
    {
        for (int y = 0; y < picture.height; y++)
            m_rows.push_back(picture.data + std::size_t(y) * m_rowBytes);
        m_last.assign(m_rows.back(), m_rows.back() + m_rowBytes);
        m_last.resize(m_rowBytes + 4);
        m_rows.back() = m_last.data();
        m_rows.push_back(m_last.data());
    }

    /// The row `y` is about to be written over.
    void keep(int y)
    {
        unsigned char* const to = m_kept[m_next].data();
        std::memcpy(to, m_picture.data + std::size_t(y) * m_rowBytes, m_rowBytes);
        m_rows[std::size_t(y)] = to;
        m_next = (m_next + 1) % m_kept.size();
    }

    /// The first pixel of each row. One pixel after the last of a row and one row after the last can be read, though
    /// what stands there means nothing.
    const unsigned char* const* table() const { return m_rows.data(); }

private:
    const CharImage& m_picture;
    std::size_t m_rowBytes, m_next = 0;
    std::vector<std::vector<unsigned char>> m_kept;
    std::vector<unsigned char> m_last;
    std::vector<const unsigned char*> m_rows;
};
