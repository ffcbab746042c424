// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>

class QWidget;

/// For as long as this lives, keys and pointers reach nothing of the program but one button, and Esc does what that
/// button does. Windows can still be moved, resized and closed by their frames, and files be dropped on them.
class CancelOnly : public QObject {
public:
    /// `cancel` is called for Esc.
    CancelOnly(const QWidget& button, std::function<void()> cancel);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const QWidget& m_button;
    std::function<void()> m_cancel;
};
