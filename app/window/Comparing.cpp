// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/SplitLine.h"
#include "app/window/MainWindowController.h"
#include "ui_MainWindow.h"

#include <QAction>
#include <QMenu>

// The preview beside the photo without its looks.

void MainWindowController::connectComparing()
{
    DragDropImageView* view = m_ui->mainImageView;
    // Crop and border are those of the latest render: each one reads them from the options.
    view->setBefore([this, view] {
        if (view->closeup().isOn())
            return fullSizeBefore();
        return m_framedOriginal.of(m_photo.display(), cropFilter, borderFilter);
    });
    setTabOrder(view, view->splitLine());
}

void MainWindowController::buildSplitEntry(QMenu& photo)
{
    m_splitAction = photo.addAction(
        tr("&Before and after"), Qt::Key_B, this, [this](bool on) { m_ui->mainImageView->setSplit(on); });
    m_splitAction->setCheckable(true);
    connect(m_ui->mainImageView, &DragDropImageView::splitAnswered, m_splitAction, &QAction::setChecked);
    m_photoActions << m_splitAction;
}
