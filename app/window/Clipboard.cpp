// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/LocalFiles.h"
#include "app/state/Rules.h"
#include "app/window/MainWindowController.h"
#include "photo/ColorProfile.h"
#include "photo/OnWhite.h"
#include "photo/PhotoLimits.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>

// Photos by way of the clipboard: out as the picture that would be saved, in as a picture or as a copied file.

void MainWindowController::buildClipboardEntries(QMenu& edit)
{
    const auto addEntry = [&](const QString& text, QKeySequence::StandardKey keys,
                              void (MainWindowController::*action)()) {
        QAction* entry = edit.addAction(text, this, action);
        entry->setShortcuts(keys);
        return entry;
    };
    edit.addSeparator();
    m_copyAction = addEntry(tr("&Copy"), QKeySequence::Copy, &MainWindowController::copyPhoto);
    m_photoActions << m_copyAction;
    m_pasteAction = addEntry(tr("&Paste"), QKeySequence::Paste, &MainWindowController::paste);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &MainWindowController::showWhatCanBePasted);
    showWhatCanBePasted();
}

void MainWindowController::showWhatCanBePasted()
{
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    m_pasteAction->setEnabled(content && (content->hasImage() || !localFiles(*content).isEmpty()));
}

void MainWindowController::copyPhoto()
{
    const Work work(m_work, stepsOfRender(), takesLong(m_photo.original()));
    if (!work || m_photo.isNull())
        return;
    QString reason;
    const QImage picture = savedPicture(&reason).picture;
    if (picture.isNull())
        return openModalSheetWithText(tr("The photo cannot be copied."), reason);
    QGuiApplication::clipboard()->setImage(picture);
    showNote(tr("Copied, %1 x %2").arg(shownNumber(picture.width()), shownNumber(picture.height())));
}

/// A copied file is opened, as most programs that copy one also copy its icon as a picture.
void MainWindowController::paste()
{
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    if (!content || !m_work.mayBegin())
        return;
    if (const QByteArrayList files = localFiles(*content); !files.isEmpty())
        loadImageFromFile(files.first());
    else
        takePastedPicture(qvariant_cast<QImage>(content->imageData()));
}

void MainWindowController::takePastedPicture(QImage picture)
{
    const Work work(m_work, stepsOfRender() + 1, takesLong(picture));
    if (!work)
        return;
    if (picture.isNull() || qint64(picture.width()) * picture.height() > maxPhotoPixels)
        return openModalSheetWithText(tr("The picture cannot be pasted."),
            picture.isNull() ? tr("The program that it was copied from does not give it.")
                             : tr("It has more pixels than a photo may have."));
    picture.convertTo(picture.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    picture.setDevicePixelRatio(1);
    LoadedPhoto photo;
    photo.image = onWhiteInEitherOrder(inSRgb(picture));
    m_photo.name = tr("Pasted picture").toUtf8();
    takePhoto(photo, {});
}
