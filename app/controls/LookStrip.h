// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>
#include <vector>

class LookButton;
class LookList;

/// The buttons of the looks beside each other. Their pictures are as large as the window allows; where the buttons need
/// more room than there is, the strip scrolls: by the wheel, to the button that gets the focus and to an applied look.
/// The arrow keys walk from button to button.
class LookStrip : public QScrollArea {
    Q_OBJECT

public:
    explicit LookStrip(QWidget* parent = nullptr);
    ~LookStrip() override;

    QList<LookButton*> buttons() const; ///< in the order in which they are read
    /// Makes the buttons of further looks behind a thin line.
    void addLooks(const std::vector<int>& filters);
    /// Presses the buttons of the applied looks; several carry their places (`multi`). The last one is scrolled to.
    void showApplied(const LookList& looks, bool multi);
    /// The side of the pictures, in points.
    int side() const { return m_side; }
    /// Makes the pictures as large as the window allows.
    void fit();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fitToButtons();
    void showFocused(QWidget* before, QWidget* now);

    int m_side = 0;
    LookButton* m_lastApplied = nullptr;
};
