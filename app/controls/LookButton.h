// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QToolButton>

/// The button of one look: the photo under that look with the look's name below, and whether it is applied.
class LookButton : public QToolButton {
    Q_OBJECT

public:
    explicit LookButton(QWidget* parent = nullptr);

    /// The filter number of the look, which gives the button its name.
    void setFilter(int filter);
    int filter() const { return m_filter; }
    /// Which of several applied looks it is, counted from 1, as a sign on the picture; 0 for none.
    void setPlace(int place);
    int place() const { return m_place; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int m_filter = -1;
    int m_place = 0;
};
