// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/DraggedPhoto.h"
#include "app/state/RenderSeed.h"
#include "app/state/Rules.h"
#include "app/window/MainWindowController.h"
#include "render/Scaled.h"
#include "ui_MainWindow.h"

#include <QDrag>
#include <memory>

// The photo is dragged to other programs: as the file that would be saved, and as its picture.

namespace {

constexpr int longestSign = 128; ///< pixels of the small picture under the pointer

} // namespace

/// Without a word about its progress: it is made while the platform waits for it.
QImage MainWindowController::renderForDrag()
{
    if (!m_shownSaved.picture.isNull())
        return m_shownSaved.picture;
    const RenderSeed seed(m_renderSeed);
    QString reason;
    return inOutputSize(renderPhoto(m_photo.original(), renderSettings()), &reason).picture;
}

QString MainWindowController::fileForDrag(const QImage& picture)
{
    if (picture.isNull())
        return {};
    const QByteArray jpeg = encoded(picture);
    return jpeg.isEmpty() ? QString() : m_draggedFiles.write(withJpegEnding(proposedName()), jpeg);
}

void MainWindowController::dragPhotoOut()
{
    const Work work(m_work, 1, false);
    if (!work || m_photo.isNull())
        return;
    const WorkWaits waits(m_work); // nothing else begins until it is dropped
    // The target asks for the file, the picture or both, which are the same.
    const auto picture = [this, kept = std::make_shared<QImage>()] {
        if (kept->isNull())
            *kept = renderForDrag();
        return *kept;
    };
    auto* drag = new QDrag(m_ui->mainImageView); // which the platform deletes when the target has what it wants
    drag->setMimeData(new DraggedPhoto([this, picture] { return fileForDrag(picture()); }, picture));
    const QImage shown = m_ui->mainImageView->image();
    const QSize sign = shown.size().scaled(longestSign, longestSign, Qt::KeepAspectRatio).expandedTo({1, 1});
    drag->setPixmap(QPixmap::fromImage(scaledTo(shown, sign)));
    drag->exec(Qt::CopyAction);
}
