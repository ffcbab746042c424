// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/CharImage.h"
#include "image/passes/Block.h"

#include <vector>

namespace lumora {

/// New rows of a picture, for a look that reads around the pixel that it writes. A new row is kept aside until some
/// more rows are begun; only then it replaces the old one, which can be read until then. A copy of the whole picture
/// would take more memory.
class DelayedRows {
public:
    /// A row waits until `count` more are begun, 1 at least.
    DelayedRows(CharImage& picture, int count)
        : m_picture(picture)
        , m_waiting(std::size_t(count), {-1, std::vector<unsigned char>(inWholeBlocks(picture.width) * 4)})
    {
    }

    /// Where row `y` is to be made, in whole blocks of pixels: all of it, but for the spare bytes, which stay the
    /// picture's.
    unsigned char* begin(int y)
    {
        Row& row = m_waiting[m_next];
        m_next = (m_next + 1) % m_waiting.size();
        replace(row);
        row.y = y;
        return row.pixels.data();
    }

    /// The rows that still wait replace the picture's.
    void finish()
    {
        for (Row& row : m_waiting)
            replace(row);
    }

private:
    struct Row {
        int y; ///< in the picture; -1 for none
        std::vector<unsigned char> pixels;
    };

    void replace(Row& row)
    {
        if (row.y < 0)
            return;
        unsigned char* const to = m_picture.data + std::size_t(row.y) * m_picture.width * 4;
        Block::copyColours(to, row.pixels.data(), m_picture.width);
        row.y = -1;
    }

    CharImage& m_picture;
    std::vector<Row> m_waiting;
    std::size_t m_next = 0;
};

} // namespace lumora
