// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/controls/ChoiceMenu.h"
#include "app/state/Rules.h"
#include "app/window/MainWindowController.h"
#include "image/CharImage.h"
#include "ui_MainWindow.h"

#include <QMenu>

using namespace lumora;

void MainWindowController::buildMenus()
{
    using Self = MainWindowController;

    QMenu* file = m_ui->menubar->addMenu(tr("&File"));
    file->addAction(tr("&Open…"), QKeySequence::Open, this, &Self::loadImageButtonPressed);
    buildRecentMenu(*file);
    QAction* save = file->addAction(tr("&Save…"), QKeySequence::Save, this, &Self::saveFilteredImage);
    file->addAction(tr("Save &Many…"), Qt::CTRL | Qt::SHIFT | Qt::Key_S, this, &Self::saveManyPhotos);
    // What a saved photo carries besides its picture, in the order of Kept.
    m_kept = new ChoiceMenu(tr("&Keep with the photo"), "Saving/Kept",
        {tr("&Everything it carried"), tr("Everything but the &place"), tr("&Nothing")}, file);
    file->addMenu(m_kept);
    m_quality =
        new ChoiceMenu(tr("&JPEG quality"), "Saving/Quality", {tr("&Standard"), tr("&High"), tr("&Best")}, file);
    file->addMenu(m_quality);
    file->addSeparator();
    QAction* quit = file->addAction(tr("&Quit"), Qt::CTRL | Qt::Key_Q, this, &QWidget::close);
    quit->setMenuRole(QAction::QuitRole);

    buildEditMenu();

    QMenu* photo = m_ui->menubar->addMenu(tr("&Photo"));
    QAction* left = photo->addAction(tr("Rotate &left"), Qt::CTRL | Qt::Key_L, this, &Self::rotateImageLeft);
    QAction* right = photo->addAction(tr("Rotate &right"), Qt::CTRL | Qt::Key_R, this, &Self::rotateImageRight);
    QAction* flatten = photo->addAction(tr("&Flatten"), Qt::CTRL | Qt::SHIFT | Qt::Key_F, this, &Self::flattenImage);
    m_photoActions << save << left << right << flatten;
    photo->addSeparator();
    buildSplitEntry(*photo);
    photo->addSeparator();
    photo->addAction(tr("R&e-expose"), Qt::CTRL | Qt::Key_E, this, &Self::reExpose);
    photo->addSeparator();
    buildZoomEntries(*photo);
    buildFullScreenEntry(*photo);
    buildWalkEntries(*photo);
    buildPhotoMenu({m_undoAction, m_copyAction, nullptr, m_splitAction, m_actualSizeAction, m_fullScreenAction, nullptr,
        left, right, flatten, nullptr, save});

    // In the order of the strip; the first ten have digits.
    QMenu* looks = m_ui->menubar->addMenu(tr("&Looks"));
    const auto addLook = [&](int filter) {
        QAction* action = looks->addAction(QString::fromUtf8(CharImage::getFilterName(filter)));
        action->setCheckable(true);
        action->setData(filter);
        m_lookActions << action;
        return action;
    };
    for (int filter : buttonFilters) {
        QAction* action = addLook(filter);
        action->setShortcut(QKeySequence(Qt::Key_0 + m_lookActions.size() % 10));
        if (filter == Filter::original) {
            connect(action, &QAction::triggered, this, &Self::applyOriginalFilter);
            looks->addSeparator();
        }
    }
    looks->addSeparator();
    for (const int filter : furtherLooks())
        addLook(filter);
    for (QAction* action : m_lookActions.sliced(1))
        connect(action, &QAction::triggered, this, [this, action] { pressFilterButton(action->data().toInt()); });
    buildStrengthEntries(*looks);

    QMenu* help = m_ui->menubar->addMenu(tr("&Help"));
    help->addAction(tr("Lumora &Help"), QKeySequence::HelpContents, this, &Self::openHelp);
    help->addAction(tr("&About Lumora"), this, &Self::openAbout)->setMenuRole(QAction::AboutRole);
}

/// Without a photo there is nothing to turn, to flatten or to save.
void MainWindowController::showWhatCanBeDone()
{
    const bool hasPhoto = !m_photo.isNull();
    for (QAction* action : m_photoActions)
        action->setEnabled(hasPhoto);
    for (QWidget* button : {m_ui->btnLeft, m_ui->btnRight, m_ui->btnFlatten, m_ui->btnSave})
        button->setEnabled(hasPhoto);
}
