// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/MonitorColors.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <utility>

MonitorColors::MonitorColors(QWidget* window)
    : QObject(window)
    , m_window(window)
{
    window->installEventFilter(this);
    connect(&m_root, &RootProfile::changed, this, &MonitorColors::look);
    connect(&m_colord, &ColordProfile::found, this, &MonitorColors::use);
}

bool MonitorColors::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && !m_follows && m_window->windowHandle()) {
        m_follows = connect(m_window->windowHandle(), &QWindow::screenChanged, this, &MonitorColors::look);
        look();
    }
    return QObject::eventFilter(watched, event);
}

void MonitorColors::look()
{
    const QByteArray icc = m_root.of(int(QGuiApplication::screens().indexOf(m_window->screen())));
    if (icc.isEmpty())
        return m_colord.lookFor(m_window->screen()->name());
    m_colord.stop();
    use(icc);
}

void MonitorColors::use(const QByteArray& icc)
{
    if (icc == m_icc)
        return;
    m_icc = icc;
    const auto former = std::exchange(m_colors, ScreenColors::of(icc));
    if (former || m_colors)
        emit changed();
}
