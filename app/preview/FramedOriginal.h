// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

/// The photo without its looks under the crop and border of a preview: what the preview is compared with, so that only
/// the looks make the difference. It is made when it is first asked for, and kept until something else is asked for.
class FramedOriginal {
public:
    /// What a render of `source` without looks gives for the crop and the border of these filter numbers, scaled to the
    /// longer side `outputSize` in pixels; -1: as it is. `source` itself where they leave it as it is, or where there
    /// is no memory for another picture.
    const QImage& of(const QImage& source, int cropFilter, int borderFilter, int outputSize = -1);

private:
    qint64 m_source = 0; ///< its cache key
    int m_cropFilter = -1, m_borderFilter = -1, m_outputSize = -1;
    QImage m_picture;
};
