// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/controls/ShownOnly.h"
#include "app/state/RenderSeed.h"
#include "app/state/Rules.h"
#include "app/window/MainWindowController.h"
#include "image/CharImage.h"
#include "ui_MainWindow.h"

#include <QAction>
#include <cstdlib>

using namespace lumora;

void MainWindowController::addAppliedFilter(int filter)
{
    filterIDs.addOnce(filter);
    showAppliedFilters();
}

void MainWindowController::removeAppliedFilter(int filter)
{
    filterIDs.remove(filter);
    showAppliedFilters();
}

void MainWindowController::toggleAppliedFilter(int filter)
{
    filterIDs.toggle(filter);
    showAppliedFilters();
}

void MainWindowController::removeAllFilters()
{
    filterIDs.clear();
    showStrength(CharImage::wholeStrength);
    showAppliedFilters();
}

void MainWindowController::removeOtherFilters(int filter)
{
    filterIDs.keepOnly(filter);
    showAppliedFilters();
}

void MainWindowController::pressFilterButton(int filter)
{
    const Work work = renderOfPreview(1);
    if (!work)
        return showAppliedFilters();
    filterIDs.press(filter, doMultiFiltering);
    if (!doMultiFiltering || filterIDs.numThings == 0)
        showStrength(CharImage::wholeStrength); // a new list begins
    showAppliedFilters();
    applyMultipleFilters();
    addStep(QString::fromUtf8(CharImage::getFilterName(filter)));
}

void MainWindowController::applyOriginalFilter()
{
    const Work work = renderOfPreview();
    if (!work)
        return showAppliedFilters();
    removeAllFilters();
    applyMultipleFilters();
    addStep(QString::fromUtf8(CharImage::getFilterName(Filter::original)));
}

void MainWindowController::applyMultipleFilters()
{
    m_renderSeed = unsigned(std::rand());
    renderPreview();
}

void MainWindowController::renderPreview()
{
    const Work work = renderOfPreview();
    if (!work || m_photo.isNull())
        return;
    m_renderedLooks.reset();
    const RenderSeed seed(m_renderSeed);
    QString reason;
    const QImage render = saveMultipleFilters(true, &reason);
    m_ui->mainImageView->setImage(render, reason);
    if (!reason.isEmpty())
        openModalSheetWithText(tr("The preview cannot be shown."), reason);
    if (m_ui->mainImageView->closeup().isOn())
        renderActualSize();
}

QImage MainWindowController::saveMultipleFilters(bool preview, QString* reason)
{
    // The render before is let go first: it may be as large as the photo.
    m_filtersAppliedImage = preview ? m_photo.display() : m_photo.original();
    const QImage render = filterNSImage(m_filtersAppliedImage, -1, false, reason);
    m_filtersAppliedImage = render.isNull() ? m_ui->mainImageView->image() : render;
    return render;
}

RenderSettings MainWindowController::renderSettings()
{
    updateFromSettings();
    doCropping = doBorders = true;
    RenderSettings settings;
    settings.filterIDs = &filterIDs;
    settings.cropFilter = cropFilter;
    settings.borderFilter = borderFilter;
    settings.strength = strength;
    return settings;
}

RenderProgress MainWindowController::shownProgress()
{
    return [this](const char* step) { m_work.beginStep(shownStep(step)); };
}

QImage MainWindowController::filterNSImage(const QImage& image, int usingFilter, bool asThumbnail, QString* reason)
{
    RenderSettings settings = renderSettings();
    settings.filter = usingFilter;
    settings.asThumbnail = asThumbnail;
    // Painting the bar takes longer than a thumbnail.
    return renderPhoto(image, settings, asThumbnail ? RenderProgress() : shownProgress(), reason);
}

void MainWindowController::updateBreadcrumb()
{
    const QString text = breadcrumb(filterIDs, doMultiFiltering);
    m_ui->filtersText->setText(text);
    m_ui->filtersText->setToolTip(text);
}

void MainWindowController::multiFilterToggled()
{
    const Work work = renderOfPreview();
    if (!work)
        return showSwitch(*m_ui->chkMultiFilter, !m_ui->chkMultiFilter->isChecked());
    doMultiFiltering = m_ui->chkMultiFilter->isChecked();
    showAppliedFilters();
    if (!doMultiFiltering) {
        // Only the look that was added last stays.
        removeOtherFilters(filterIDs.last());
        applyMultipleFilters();
    }
    updateBreadcrumb();
    addStep(tr("Multiple looks"));
}

void MainWindowController::useRandomToggled()
{
    const Work work = renderOfPreview();
    if (!work)
        return showSwitch(*m_ui->chkRandomness, !m_ui->chkRandomness->isChecked());
    CharImage::useRandom = m_ui->chkRandomness->isChecked() ? 1 : 0;
    settingChanged();
    updateThumbnailImages();
    addStep(tr("Randomness"));
}

/// Fills the table that looks vary with. The numbers that are drawn afterwards do not depend on it.
void MainWindowController::drawVariation(unsigned seed)
{
    const RenderSeed meanwhile(seed);
    CharImage::renewRandomNumbers();
    m_variation = seed;
}

void MainWindowController::reExpose()
{
    const Work work = renderOfPreview();
    if (!work)
        return;
    drawVariation(unsigned(std::rand()));
    showSwitch(*m_ui->chkRandomness, true);
    CharImage::useRandom = 1;
    settingChanged();
    updateThumbnailImages();
    addStep(tr("Re-expose"));
}

/// Buttons and menu entries show which looks are in the list; "Original" stands for an empty one.
void MainWindowController::showAppliedFilters()
{
    for (QAction* action : m_lookActions)
        action->setChecked(filterIDs.isShownAsApplied(action->data().toInt()));
    m_ui->filtersBox->showApplied(filterIDs, doMultiFiltering);
    m_ui->sldStrength->setEnabled(filterIDs.numThings > 0);
    for (QAction* action : m_strengthActions)
        action->setEnabled(filterIDs.numThings > 0);
}
