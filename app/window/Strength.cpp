// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/controls/ShownOnly.h"
#include "app/state/RenderSeed.h"
#include "app/state/Rules.h"
#include "app/window/MainWindowController.h"
#include "ui_MainWindow.h"

#include <QAction>
#include <QMenu>

// How much of the looks is seen. While the slider is dragged, the photo before and after its looks is only mixed anew.

namespace {

constexpr int stepByKey = 10; ///< per cent

} // namespace

void MainWindowController::buildStrengthEntries(QMenu& looks)
{
    looks.addSeparator();
    const auto addEntry = [&](const QString& text, const QString& key, int change) {
        m_strengthActions << looks.addAction(
            text, key, this, [this, change] { m_ui->sldStrength->setValue(m_ui->sldStrength->value() + change); });
    };
    addEntry(tr("&Weaker"), QStringLiteral("["), -stepByKey);
    addEntry(tr("&Stronger"), QStringLiteral("]"), stepByKey);
}

void MainWindowController::connectStrength()
{
    connect(m_ui->sldStrength, &QSlider::valueChanged, this, &MainWindowController::strengthChanged);
    connect(m_ui->sldStrength, &QSlider::sliderReleased, this, [this] {
        endMixing();
        addStep(tr("Strength"));
    });
}

void MainWindowController::strengthChanged()
{
    const Work work = renderOfPreview();
    if (!work)
        return showStrength(strength);
    showStrength(m_ui->sldStrength->value());
    showMixed();
    if (!m_ui->sldStrength->isSliderDown())
        addStep(tr("Strength"));
}

void MainWindowController::showStrength(int percent)
{
    strength = percent;
    showValue(*m_ui->sldStrength, percent);
    m_ui->lblStrength->setText(tr("Stren&gth %1 %").arg(shownNumber(percent)));
}

/// The preview in the strength that is chosen, from the looks as they were rendered last.
void MainWindowController::showMixed()
{
    if (m_photo.isNull())
        return;
    if (!m_renderedLooks) {
        const RenderSeed seed(m_renderSeed);
        m_renderedLooks = RenderedLooks::of(m_photo.display(), renderSettings());
    }
    const QImage picture = m_renderedLooks ? m_renderedLooks->withStrength(strength) : QImage();
    if (picture.isNull())
        return renderPreview(); // which says why
    m_filtersAppliedImage = picture;
    m_ui->mainImageView->setImage(picture);
    if (m_ui->mainImageView->closeup().isOn())
        mixActualSize();
}
