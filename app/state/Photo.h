// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/PhotoMetadata.h"

#include <QByteArray>
#include <QImage>

/// The photo that is worked on: its picture at full size, the two copies that are shown, what its file carried, and
/// the file's name. A value: a copy of it shares the pictures.
class Photo {
public:
    bool isNull() const { return m_original.isNull(); } ///< true before the first picture

    const QImage& original() const { return m_original; } ///< at full size
    const QImage& display() const { return m_display; } ///< the copy for the preview
    const QImage& thumb() const { return m_thumb; } ///< the copy for the thumbnails

    /// Takes another picture and makes its copies: one for a preview whose longer side is `displayRes` pixels, and one
    /// for thumbnails that are drawn with `density` pixels to the point. Metadata and name stay.
    void setOriginal(const QImage& image, int displayRes, qreal density);
    /// Makes the copy for the thumbnails anew.
    void setThumbDensity(qreal density);
    qreal thumbDensity() const { return m_thumbDensity; }

    PhotoMetadata metadata; ///< of the file
    QByteArray filePath; ///< any bytes; empty for a picture that came without a file
    QByteArray name; ///< of such a picture
    QByteArray fileName() const; ///< the path's last component, or the name

private:
    QImage m_original, m_display, m_thumb;
    qreal m_thumbDensity = 0;
};
