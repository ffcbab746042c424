#pragma once

#include <QScrollArea>

class LookButton;

/// The buttons of the looks beside each other. Their pictures are as large as the window allows; where the buttons need
/// more room than there is, the strip scrolls, also by the wheel, and shows the button that gets the focus.
class LookStrip : public QScrollArea {
    Q_OBJECT

public:
    explicit LookStrip(QWidget* parent = nullptr);

    QList<LookButton*> buttons() const; ///< from left to right
    /// The side of the pictures, in points.
    int side() const { return m_side; }
    /// Makes the pictures as large as the window allows.
    void fit();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void showFocused(QWidget* before, QWidget* now);

    int m_side = 0;
};
