// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/panels/CancelOnly.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>
#include <utility>

namespace {

bool isFromHands(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::NativeGesture:
        return true;
    default:
        return false;
    }
}

} // namespace

CancelOnly::CancelOnly(const QWidget& button, std::function<void()> cancel)
    : m_button(button)
    , m_cancel(std::move(cancel))
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool CancelOnly::eventFilter(QObject* watched, QEvent* event)
{
    // What the screen sends comes to its windows first, which pass it on to what stands there.
    if (watched->isWindowType() || !isFromHands(event->type()))
        return false;
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
        m_cancel();
    else if (watched == &m_button)
        return false;
    event->accept();
    return true;
}
