// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/controls/ShownOnly.h"
#include "app/window/MainWindowController.h"
#include "image/CharImage.h"
#include "photo/FreeMemory.h"
#include "ui_MainWindow.h"

#include <QAction>
#include <QMenu>
#include <algorithm>

using namespace lumora;

// Steps that can be taken back. Every action ends by adding what it did to the history.

namespace {

constexpr int shareOfMemory = 4; ///< former photos take at most this part of the free memory

} // namespace

qint64 MainWindowController::roomForFormerPhotos()
{
    return freeMemory() / shareOfMemory;
}

void MainWindowController::buildEditMenu()
{
    QMenu* edit = m_ui->menubar->addMenu(tr("&Edit"));
    const auto addEntry = [&](QKeySequence::StandardKey keys, void (MainWindowController::*action)()) {
        QAction* entry = edit->addAction(QString(), this, action);
        entry->setShortcuts(keys);
        entry->setAutoRepeat(false);
        return entry;
    };
    m_undoAction = addEntry(QKeySequence::Undo, &MainWindowController::undo);
    m_redoAction = addEntry(QKeySequence::Redo, &MainWindowController::redo);
    showHistory();
    buildClipboardEntries(*edit);
}

void MainWindowController::showHistory()
{
    showNote({}); // the steps have changed, and with them what a saved file would be
    const auto show = [](QAction& entry, bool can, const QString& alone, const QString& withName, const QString& name) {
        entry.setEnabled(can);
        entry.setText(can ? withName.arg(name) : alone);
    };
    show(*m_undoAction, m_history.canUndo(), tr("&Undo"), tr("&Undo %1"), m_history.undoName());
    show(*m_redoAction, m_history.canRedo(), tr("&Redo"), tr("&Redo %1"), m_history.redoName());
}

Shown MainWindowController::shownNow() const
{
    Choices choices;
    choices.looks.assign(filterIDs.theArray, filterIDs.theArray + filterIDs.numThings);
    choices.strength = m_ui->sldStrength->value();
    choices.multi = m_ui->chkMultiFilter->isChecked();
    choices.border = m_ui->btnBorders->currentIndex();
    choices.crop = m_ui->btnCropping->currentIndex();
    choices.size = m_ui->btnImgSize->currentIndex();
    choices.varied = m_ui->chkRandomness->isChecked();
    choices.variation = m_variation;
    return {choices, m_renderSeed};
}

void MainWindowController::setShown(const Shown& shown)
{
    const Choices& choices = shown.choices;
    filterIDs.clear();
    for (const int look : choices.looks)
        filterIDs.add(look);
    showStrength(choices.strength);
    doMultiFiltering = choices.multi;
    showAppliedFilters();
    showSwitch(*m_ui->chkMultiFilter, choices.multi);
    showSwitch(*m_ui->chkRandomness, choices.varied);
    showItem(*m_ui->btnBorders, choices.border);
    showItem(*m_ui->btnCropping, choices.crop);
    showItem(*m_ui->btnImgSize, choices.size);
    CharImage::useRandom = choices.varied ? 1 : 0;
    drawVariation(choices.variation);
    m_renderSeed = shown.seed;
}

bool MainWindowController::turnPhoto(int quarterTurns)
{
    const QImage turned = rotateNSImage(m_photo.original(), 90.0f * float(quarterTurns));
    if (turned.isNull()) {
        openModalSheetWithText(
            tr("The photo cannot be turned."), memoryRefusal(m_photo.original().size().transposed()));
        return false;
    }
    setoriginalImage(turned);
    return true;
}

QImage MainWindowController::exchangePhoto(const QImage& picture)
{
    const QImage former = m_photo.original();
    setoriginalImage(picture);
    return former;
}

void MainWindowController::addStep(const QString& name, const PhotoChange& change)
{
    m_history.add(name, shownNow(), change);
    showHistory();
}

void MainWindowController::beginHistory()
{
    m_history.begin(shownNow());
    showHistory();
}

void MainWindowController::undo()
{
    travel(&History::undo);
}

void MainWindowController::redo()
{
    travel(&History::redo);
}

void MainWindowController::travel(void (History::*step)())
{
    const Work work = renderOfPreview();
    if (!work)
        return;
    const Choices before = shownNow().choices;
    const qint64 thumbBefore = m_photo.thumb().cacheKey();
    (m_history.*step)();
    renderPreview();
    updateBreadcrumb();
    if (m_photo.thumb().cacheKey() != thumbBefore || before.variesUnlike(shownNow().choices))
        updateThumbnailImages();
    showHistory();
}
