// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QSize>

/// How closely a picture is looked at, and which part of it: fitted into its room, or at 50, 100 or 200 per cent. All
/// lengths are pixels of the screen. The part is kept as a share of the picture, so that another picture of the same
/// photo, of whatever size, is looked at in the same place. A value.
class Magnification {
public:
    bool isFitted() const { return m_percent == 0; }
    int percent() const { return m_percent; } ///< 0: fitted

    void fit() { m_percent = 0; }
    /// `share`: what stands in the middle of the room, from (0, 0), the picture's top left corner, to (1, 1).
    void centreOn(const QPointF& share, int percent);
    /// What stands at a point of the room stays there as far as the room can be filled. `before`: where the picture is
    /// until now, fitted or not.
    void zoomAbout(const QPointF& point, const QRectF& before, int percent, const QSize& picture, const QSize& room);
    /// Moves the picture, as far as the room can be filled.
    void panBy(const QPoint& distance, const QSize& picture, const QSize& room);

    /// Where the whole of a magnified picture lies. It reaches beyond the room where it is larger, and stands in the
    /// middle where it is smaller.
    QRect placed(const QSize& picture, const QSize& room) const;

    /// The next larger or smaller magnification. `fittedPercent`: that of the fitted picture, which none undercuts.
    int stepUp(double fittedPercent) const;
    int stepDown(double fittedPercent) const; ///< 0: fitted

    /// The size of a magnified picture. At 50 per cent an odd side loses its last pixel, but no side all of them.
    static QSize sizeOf(const QSize& picture, int percent);
    /// The pixels of a picture that make a part of it, which is in magnified pixels.
    static QRect pixelsOf(const QRect& part, int percent, const QSize& picture);

private:
    int m_percent = 0;
    QPointF m_centre; ///< a share of the picture
};

/// A point as a share of a rectangle, at most that of its nearest edge.
QPointF shareOf(const QPointF& point, const QRectF& rect);

/// A part of a magnified picture, in its magnified pixels, which it must not exceed: at 200 per cent each pixel is
/// four, at 50 per cent each is the average of four. Format_RGB32, and perhaps over the picture's own bytes. `picture`
/// has four bytes a pixel; nothing but the part is copied of it.
QImage magnifiedPart(const QImage& picture, int percent, const QRect& part);
