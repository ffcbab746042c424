// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

/// Takes the rows of a photo while they are decoded, so that no whole picture is made of them first.
class PhotoRows {
public:
    virtual ~PhotoRows() = default;
    /// Comes first: the size of the photo in pixels.
    virtual void begin(QSize size) = 0;
    /// The next whole rows from the top, as Format_RGBX8888 has them, and nothing between them. Throws std::bad_alloc
    /// where there is no room for them.
    virtual void take(const uchar* rows, qint64 bytes) = 0;
};
