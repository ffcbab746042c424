// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/controls/LookButton.h"
#include "app/window/MainWindowController.h"
#include "ui_MainWindow.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QFile>
#include <QFileOpenEvent>
#include <QKeyEvent>
#include <QSlider>

// What a key, a click, the wheel and a drag mean in the window does not depend on the control that was used last: a
// click leaves the focus on the photo, and holding the space bar compares wherever the focus is. A tap on it also
// presses the look to which keys brought the focus. Lists, menus, sheets and panels are windows of their own and are
// left alone.

namespace {

constexpr quint64 tapTime = 300; ///< milliseconds; a key that is let go later was held

/// Keys that walk through a pop-up's items or from control to control: the only ones that may repeat when held.
bool walks(int key)
{
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return true;
    default:
        return false;
    }
}

/// Return does what a click on the control would do; false for what cannot be clicked.
bool pressByKey(QWidget* control)
{
    if (auto* button = qobject_cast<QAbstractButton*>(control))
        button->click();
    else if (auto* popUp = qobject_cast<QComboBox*>(control))
        popUp->showPopup();
    else
        return false;
    return true;
}

} // namespace

bool MainWindowController::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FileOpen) {
        openFileWhenShown(QFile::encodeName(static_cast<QFileOpenEvent*>(event)->file()));
        openWaitingFile();
        return true;
    }
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget && (widget == this || widget == m_sheet) && takesDrag(event))
        return true;
    if (!widget || widget->window() != this)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        m_ui->mainImageView->setFocus(Qt::MouseFocusReason);
        return false;
    case QEvent::ContextMenu:
        return takesContextMenu(widget, *static_cast<QContextMenuEvent*>(event));
    case QEvent::WindowStateChange:
        if (widget == this)
            showWhetherAlone();
        return false;
    case QEvent::Wheel: // would change a pop-up or a slider that the pointer merely passes
        event->setAccepted(!qobject_cast<QComboBox*>(widget) && !qobject_cast<QSlider*>(widget));
        return !event->isAccepted();
    case QEvent::ShortcutOverride: // which, accepted, presses no shortcut
        event->setAccepted(m_keyRepeat.isRepeat(*static_cast<QKeyEvent*>(event)));
        return event->isAccepted();
    case QEvent::KeyPress:
        return takesKeyPress(widget, *static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
        return takesKeyRelease(*static_cast<QKeyEvent*>(event));
    default:
        return false;
    }
}

/// A file may be dropped anywhere on the window and on a sheet; the preview shows that, and takes it.
bool MainWindowController::takesDrag(QEvent* event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
        m_ui->mainImageView->takeDragEnter(*static_cast<QDragEnterEvent*>(event));
        return true;
    case QEvent::DragLeave:
        m_ui->mainImageView->showDropSign(false);
        return true;
    case QEvent::Drop:
        m_ui->mainImageView->takeDrop(*static_cast<QDropEvent*>(event));
        return true;
    default:
        return false;
    }
}

bool MainWindowController::takesKeyPress(QWidget* widget, const QKeyEvent& press)
{
    if (m_keyRepeat.isRepeat(press)) {
        if (press.key() == Qt::Key_Space && !press.isAutoRepeat())
            m_ui->mainImageView->setComparing(true); // its release, just before, was part of the repeat
        return !walks(press.key());
    }
    if (press.key() == Qt::Key_F10 && press.modifiers() == Qt::ShiftModifier) { // where there is no menu key
        openPhotoMenu({});
        return true;
    }
    if (press.modifiers() & ~Qt::KeypadModifier)
        return false;
    switch (press.key()) {
    case Qt::Key_Space:
        m_spacePressed = press.timestamp();
        m_ui->mainImageView->setComparing(true);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return pressByKey(widget);
    case Qt::Key_Escape:
        return takesEscape();
    default:
        return false;
    }
}

/// The innermost ends: the split or the close look, then the whole screen.
bool MainWindowController::takesEscape()
{
    if (m_ui->mainImageView->isSplit())
        m_ui->mainImageView->setSplit(false);
    else if (m_ui->mainImageView->closeup().isOn())
        showFitted();
    else if (isFullScreen())
        m_fullScreenAction->trigger();
    else
        return false;
    return true;
}

bool MainWindowController::takesKeyRelease(const QKeyEvent& release)
{
    m_keyRepeat.noteRelease(release);
    if (!release.isAutoRepeat())
        m_ui->mainImageView->setComparing(false);
    if (release.key() != Qt::Key_Space)
        return false;
    auto* look = qobject_cast<LookButton*>(focusWidget());
    if (look && !release.isAutoRepeat() && release.timestamp() - m_spacePressed < tapTime)
        look->click();
    return true;
}
