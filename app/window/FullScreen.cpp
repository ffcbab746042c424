// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/MainWindowController.h"
#include "ui_MainWindow.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>

// The photo alone on the whole screen, and the menu that opens on it.

void MainWindowController::buildFullScreenEntry(QMenu& menu)
{
    m_fullScreenAction = menu.addAction(tr("&Whole screen"), QKeySequence(Qt::Key_F11), this,
        [this] { setWindowState(windowState() ^ Qt::WindowFullScreen); });
    m_fullScreenAction->setCheckable(true);
    m_marginsOfPhoto = m_ui->centralLayout->contentsMargins();
}

/// On the whole screen the photo stands alone, however the window came to be there.
void MainWindowController::showWhetherAlone()
{
    const bool alone = isFullScreen();
    if (alone == m_ui->menubar->isHidden())
        return;
    m_fullScreenAction->setChecked(alone);
    for (QAction* action : findChildren<QAction*>())
        if (!action->shortcuts().isEmpty())
            addAction(action); // a hidden menu bar would not answer to its keys
    QWidget* const bars[] = {m_ui->menubar, m_ui->wordsBar, m_ui->filtersBox, m_ui->separatorLine, m_ui->optionsBar};
    for (QWidget* bar : bars)
        bar->setVisible(!alone);
    m_ui->centralLayout->setContentsMargins(alone ? QMargins() : m_marginsOfPhoto);
    m_ui->mainImageView->setFocus();
}

/// The nearest of what the menu bar has, and the same entries.
void MainWindowController::buildPhotoMenu(const QList<QAction*>& entries)
{
    m_photoMenu = new QMenu(this);
    m_photoMenu->setAccessibleName(tr("For the photo"));
    for (QAction* entry : entries)
        if (entry)
            m_photoMenu->addAction(entry);
        else
            m_photoMenu->addSeparator();
    // An entry is triggered after its menu has gone.
    const auto forget = [this] { m_menuAt.reset(); };
    connect(m_photoMenu, &QMenu::aboutToHide, this, forget, Qt::QueuedConnection);
}

/// By the right mouse button on the photo, or by its key wherever the focus is.
bool MainWindowController::takesContextMenu(const QWidget* widget, const QContextMenuEvent& event)
{
    const bool byKey = event.reason() == QContextMenuEvent::Keyboard;
    if (widget != m_ui->mainImageView && !byKey)
        return false;
    openPhotoMenu(byKey ? std::nullopt : std::optional(event.globalPos()));
    return true;
}

void MainWindowController::openPhotoMenu(const std::optional<QPoint>& at)
{
    if (!m_work.mayBegin())
        return;
    DragDropImageView* view = m_ui->mainImageView;
    view->setComparing(false);
    if (at)
        m_menuAt = view->mapFromGlobal(QPointF(*at));
    m_photoMenu->popup(at.value_or(view->mapToGlobal(view->rect().center())));
}
