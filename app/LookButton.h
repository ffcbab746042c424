#pragma once

#include <QToolButton>

/// The button of one look: a picture of the photo under that look with the look's name below, and whether it is
/// applied.
class LookButton : public QToolButton {
    Q_OBJECT

public:
    explicit LookButton(QWidget* parent = nullptr);

    /// The filter number of the look, which gives the button its name.
    void setFilter(int filter);
    int filter() const { return m_filter; }

private:
    int m_filter = -1;
};
