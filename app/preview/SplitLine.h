// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractSlider>

/// The line between before and after in a split picture, with a handle by which the mouse drags it across. Its value
/// is the part of the picture's width on its left. For keys and screen readers it is a slider like any other.
class SplitLine : public QAbstractSlider {
    Q_OBJECT

public:
    static constexpr int whole = 10'000; ///< the value of all the width

    /// Stands on `picture`, which it splits.
    explicit SplitLine(QWidget* picture);

    /// The picture stands there now, in the coordinates of its widget.
    void setRoom(const QRectF& room);
    /// The part of the room on its left, on whole pixels of the screen, and the part on its right.
    QRectF before() const;
    QRectF after() const;
    /// An undrawn one keeps its place and the focus.
    void setDrawn(bool on);

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent*) override { setSliderDown(false); }
    void wheelEvent(QWheelEvent* event) override;
    void sliderChange(SliderChange change) override;

private:
    qreal place() const; ///< of the line in the picture's widget
    void followPlace();

    QRectF m_room;
    bool m_drawn = true;
    qreal m_grip = 0; ///< how far the mouse holds it beside the line
};
