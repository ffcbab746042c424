// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/RenderSeed.h"
#include "app/window/MainWindowController.h"
#include "image/CharImage.h"
#include "photo/FreeMemory.h"
#include "render/Export.h"
#include "ui_MainWindow.h"

#include <QAction>
#include <QCursor>
#include <QMenu>

using namespace lumora;

// The photo as it will be saved: what a close look shows is the very picture that is encoded, and no other is made for
// the file.

namespace {

constexpr int actualSize = 100; ///< per cent

} // namespace

void MainWindowController::buildZoomEntries(QMenu& menu)
{
    m_actualSizeAction =
        menu.addAction(tr("&Actual size"), Qt::Key_Z, this, [this] { toggleActualSize(pointLookedAt()); });
    m_actualSizeAction->setCheckable(true);
    QAction* in = menu.addAction(tr("Zoom &in"), Qt::Key_Plus, this, [this] { zoom(1, pointLookedAt()); });
    in->setShortcuts({Qt::Key_Plus, Qt::Key_Equal}); // the key of the plus sign, also without Shift
    QAction* out = menu.addAction(tr("Zoom &out"), Qt::Key_Minus, this, [this] { zoom(-1, pointLookedAt()); });
    m_photoActions << m_actualSizeAction << in << out;
    DragDropImageView* view = m_ui->mainImageView;
    connect(view, &DragDropImageView::actualSizeAsked, this, &MainWindowController::toggleActualSize);
    connect(view, &DragDropImageView::zoomAsked, this, [this](int steps, const QPointF& at) { zoom(steps, at); });
}

/// Where a menu was opened on the photo, where the pointer is on it, or the middle of what is seen.
QPointF MainWindowController::pointLookedAt() const
{
    if (m_menuAt)
        return *m_menuAt;
    const DragDropImageView* view = m_ui->mainImageView;
    const QPointF pointer = view->mapFromGlobal(QPointF(QCursor::pos()));
    const QRectF seen = view->imageRect() & QRectF(view->rect());
    return view->underMouse() && seen.contains(pointer) ? pointer : seen.center();
}

/// The full-size render, with the random numbers of the preview: what is seen is what is written.
QImage MainWindowController::renderFullSize(QString* reason)
{
    const RenderSeed seed(m_renderSeed);
    return saveMultipleFilters(false, reason);
}

MainWindowController::SavedPicture MainWindowController::inOutputSize(QImage render, QString* reason)
{
    SavedPicture saved{render, render.size(), strength};
    if (!render.isNull() && imgOutputSize > -1) {
        saved.size = downsizeNSImage(saved.picture, imgOutputSize);
        if (saved.picture.isNull())
            *reason = memoryRefusal(bitmapSize(saved.size));
    }
    return saved;
}

MainWindowController::SavedPicture MainWindowController::savedPicture(QString* reason)
{
    return m_shownSaved.picture.isNull() ? inOutputSize(renderFullSize(reason), reason) : m_shownSaved;
}

/// Before the next one is made: each may be as large as the photo.
void MainWindowController::letSavedPictureGo()
{
    m_ui->mainImageView->letFullImageGo();
    m_shownSaved = {};
    m_filtersAppliedImage = m_ui->mainImageView->image();
}

/// False where it cannot be shown: then a sheet says why, and the fitted photo is shown.
bool MainWindowController::showSavedPicture(const SavedPicture& saved, const QString& reason)
{
    if (saved.picture.isNull()) {
        showFitted();
        openModalSheetWithText(tr("The photo cannot be shown at its actual size."), reason);
        return false;
    }
    m_shownSaved = saved;
    m_ui->mainImageView->setFullImage(saved.picture);
    return true;
}

bool MainWindowController::renderActualSize()
{
    const Work work(m_work, stepsOfRender(), takesLong(m_photo.original()));
    if (!work || m_photo.isNull())
        return false;
    letSavedPictureGo();
    m_wholeLooks = {};
    QString reason;
    return showSavedPicture(savedPicture(&reason), reason);
}

/// False where there is no memory for them.
bool MainWindowController::takeWholeLooks()
{
    if (!m_wholeLooks.isNull())
        return true;
    const bool isShown = m_shownSaved.strength == CharImage::wholeStrength;
    if (isShown)
        m_wholeLooks = m_shownSaved.picture;
    letSavedPictureGo();
    if (m_wholeLooks.isNull()) {
        const RenderSeed seed(m_renderSeed);
        RenderSettings whole = renderSettings();
        whole.strength = CharImage::wholeStrength;
        QString reason;
        m_wholeLooks = inOutputSize(renderPhoto(m_photo.original(), whole, shownProgress(), &reason), &reason).picture;
    }
    return !m_wholeLooks.isNull();
}

/// While the slider is held only what is seen is mixed, of finished pictures: another whole one would take as much
/// memory as the photo.
void MainWindowController::mixActualSize()
{
    if (!m_ui->sldStrength->isSliderDown() || !takeWholeLooks()
        || !m_ui->mainImageView->setFullMix(fullSizeBefore(), m_wholeLooks, strength))
        renderActualSize();
}

/// The slider was let go: now it is what is saved.
void MainWindowController::endMixing()
{
    if (!m_wholeLooks.isNull())
        renderActualSize();
}

/// What a close look is compared with: it has the size of what is saved.
const QImage& MainWindowController::fullSizeBefore()
{
    return m_framedFullSize.of(m_photo.original(), cropFilter, borderFilter, imgOutputSize);
}

void MainWindowController::showFitted()
{
    m_ui->mainImageView->fit();
    m_framedFullSize = {};
    m_wholeLooks = {};
    letSavedPictureGo();
    showZoom();
}

void MainWindowController::showZoom()
{
    m_actualSizeAction->setChecked(m_ui->mainImageView->closeup().percent() == actualSize);
}

void MainWindowController::toggleActualSize(const QPointF& at)
{
    const Closeup& closeup = m_ui->mainImageView->closeup();
    if (closeup.percent() == actualSize)
        showFitted();
    else if (closeup.isOn() || renderActualSize())
        m_ui->mainImageView->magnify(at, actualSize);
    showZoom();
}

void MainWindowController::zoom(int steps, const QPointF& at)
{
    const Closeup& closeup = m_ui->mainImageView->closeup();
    if (!closeup.isOn() && (steps < 0 || !renderActualSize()))
        return;
    m_ui->mainImageView->zoom(steps, at);
    if (!closeup.isOn())
        showFitted();
    showZoom();
}
