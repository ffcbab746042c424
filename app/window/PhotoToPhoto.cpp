// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/controls/RecentMenu.h"
#include "app/state/RecentPhotos.h"
#include "app/window/MainWindowController.h"

#include <QMenu>

// From photo to photo: to the next one of the folder, and to those that were opened before. The looks stay on.

void MainWindowController::buildWalkEntries(QMenu& photo)
{
    photo.addSeparator();
    m_photoActions << photo.addAction(
        tr("&Next photo"), Qt::Key_PageDown, this, [this] { goFromPhoto(PhotoWalk::On); });
    m_photoActions << photo.addAction(
        tr("&Previous photo"), Qt::Key_PageUp, this, [this] { goFromPhoto(PhotoWalk::Back); });
}

void MainWindowController::buildRecentMenu(QMenu& file)
{
    auto* recent = new RecentMenu(tr("Open &recent"), &file);
    file.addMenu(recent);
    connect(recent, &RecentMenu::chosen, this, &MainWindowController::loadImageFromFile);
}

void MainWindowController::openFilesWhenShown(const QByteArrayList& paths)
{
    m_walk.setFiles(paths);
    openFileWhenShown(paths.value(0));
}

/// To the nearest photo in that direction; what is none is passed over.
void MainWindowController::goFromPhoto(PhotoWalk::Direction direction)
{
    if (!m_work.mayBegin())
        return;
    for (const QByteArray& path : m_walk.from(m_photo.filePath, direction)) {
        QString reason;
        if (openPhoto(path, &reason) || reason.isEmpty()) // else it was cancelled
            return;
    }
    showNote(direction == PhotoWalk::On ? tr("This is the last photo.") : tr("This is the first photo."));
}
