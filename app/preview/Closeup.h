// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/preview/Magnification.h"

/// A close look at a photo: its picture at full size, and which part of it stands in the room. All lengths are pixels
/// of the screen. A value; it shares its picture.
class Closeup {
public:
    bool isOn() const { return !m_magnification.isFitted(); }
    int percent() const { return m_magnification.percent(); } ///< 0: it is off
    const QImage& picture() const { return m_picture; } ///< null: it was let go

    /// Takes another picture of the photo, which is looked at in the same place.
    void setPicture(const QImage& picture);
    /// The same with a picture of which the photo has so many per cent; the rest is another one of the same size. Only
    /// what is seen is mixed.
    void setMix(const QImage& before, const QImage& picture, int strength);
    /// Frees the picture. What is seen of it can be painted on until the next one comes.
    void letPictureGo(const QSize& room);
    /// The fitted picture is looked at again.
    void end() { *this = {}; }

    /// `point` of the room comes into its middle. `fitted`: where the fitted picture stands, if it is looked at.
    void centreOn(const QPointF& point, int percent, const QRectF& fitted, const QSize& room);
    /// By so many steps, larger where positive; what is at `point` stays there. It ends where the fitted picture is the
    /// next smaller one.
    void zoom(int steps, const QPointF& point, const QRectF& fitted, const QSize& room);
    void panBy(const QPoint& distance, const QSize& room) { m_magnification.panBy(distance, m_size, room); }

    /// Where a picture of the photo lies; it may reach beyond the room.
    QRect placed(const QSize& picture, const QSize& room) const { return m_magnification.placed(picture, room); }
    QRect placed(const QSize& room) const { return placed(m_size, room); }

    /// Pixels of the screen, and where they stand.
    struct Part {
        QRect area;
        QImage pixels;
    };
    /// What an area of the room shows of the photo; of a picture that was let go as much as was seen. Nothing but that
    /// part is copied, and nothing where the pixels stand as they are.
    Part part(const QRect& area, const QSize& room) const;
    /// The same of another picture of the photo.
    Part part(const QImage& picture, const QRect& area, const QSize& room) const;

private:
    /// Where the photo stands until now.
    QRectF before(const QRectF& fitted, const QSize& room) const;
    QRect seen(const QSize& picture, const QRect& area, const QSize& room) const;

    Magnification m_magnification;
    QImage m_picture;
    QImage m_mixedWith; ///< null where there is nothing to mix
    int m_strength = 0; ///< of the picture in the mix
    QSize m_size; ///< of the picture, also of one that was let go
    Part m_seen; ///< of the one that was let go
};
