// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/Preferences.h"
#include "app/window/MainWindowController.h"
#include "image/CharImage.h"
#include "render/FramingChoice.h"
#include "ui_MainWindow.h"

#include <QFile>
#include <QScreen>
#include <utility>

using namespace lumora;

namespace {

constexpr int prefsVersion = 2; ///< of the order of the items in the three pop-ups, which are stored by position

/// Selects the item at a stored index; the first one for an index that the pop-up does not have.
void select(QComboBox& popUp, int index)
{
    popUp.setCurrentIndex(index >= 0 && index < popUp.count() ? index : 0);
}

} // namespace

void MainWindowController::loadOptions()
{
    const bool saved = getPreferenceInt("PrefsVersion") == prefsVersion;
    m_ui->chkMultiFilter->setChecked(saved && getPreferenceBool("UseMultiFilter"));
    select(*m_ui->btnBorders, saved ? getPreferenceInt("BorderStyle") : 0);
    select(*m_ui->btnCropping, saved ? getPreferenceInt("CroppingStyle") : 0);
    select(*m_ui->btnImgSize, saved ? getPreferenceInt("OutputSize") : 0);
    // Variation is a mood of the moment: it is saved, and never restored.
    m_ui->chkRandomness->setChecked(false);
    CharImage::useRandom = 0;
    m_choicesAtStart = shownNow().choices;
}

void MainWindowController::saveOptions() const
{
    // Another window may have saved its choices since this one was opened: what was not touched here stays as it is.
    const bool saved = getPreferenceInt("PrefsVersion") == prefsVersion;
    const Choices now = shownNow().choices, &before = m_choicesAtStart;
    if (!saved || now.multi != before.multi)
        setPreferenceBool("UseMultiFilter", now.multi);
    setPreferenceBool("UseRandomness", now.varied);
    if (!saved || now.border != before.border)
        setPreferenceInt("BorderStyle", now.border);
    if (!saved || now.crop != before.crop)
        setPreferenceInt("CroppingStyle", now.crop);
    if (!saved || now.size != before.size)
        setPreferenceInt("OutputSize", now.size);
    setPreferenceInt("PrefsVersion", prefsVersion);
}

/// Size and state of the window, and where its panels stood: a group of their own, which no version counts.
void MainWindowController::loadWindow()
{
    const QSize saved(getPreferenceInt("Window/Width"), getPreferenceInt("Window/Height"));
    const QSize room = screen()->availableSize() - QSize(0, 40); // for the title bar
    resize((saved.isEmpty() ? size() : saved).boundedTo(room));
    if (getPreferenceBool("Window/Maximised"))
        setWindowState(Qt::WindowMaximized);
    m_panelFolder = QFile::decodeName(QByteArray::fromPercentEncoding(getPreferenceString("Window/Folder").cString()));
}

void MainWindowController::saveWindow() const
{
    const QSize size = isMaximized() || isFullScreen() ? normalGeometry().size() : this->size();
    setPreferenceInt("Window/Width", size.width());
    setPreferenceInt("Window/Height", size.height());
    setPreferenceBool("Window/Maximised", isMaximized());
    // Of any bytes, where preferences are ASCII.
    setPreferenceString("Window/Folder", QFile::encodeName(m_panelFolder).toPercentEncoding("/ ").constData());
}

void MainWindowController::updateFromSettings()
{
    doCropping = doBorders = false;
    const bool before = std::exchange(doMultiFiltering, m_ui->chkMultiFilter->isChecked());
    if (doMultiFiltering != before)
        showAppliedFilters();
    cropFilter = chosenFilter(m_ui->btnCropping->currentData().toString(), filterIDs);
    borderFilter = chosenFilter(m_ui->btnBorders->currentData().toString(), filterIDs);
    strength = m_ui->sldStrength->value();
    imgOutputSize = chosenSize(m_ui->btnImgSize->currentData().toString());
    updateBreadcrumb();
}

void MainWindowController::settingChanged()
{
    applyMultipleFilters();
}
