// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/controls/ChoiceMenu.h"
#include "app/state/RecentPhotos.h"
#include "app/state/Rules.h"
#include "app/window/MainWindowController.h"
#include "core/SixPlaces.h"
#include "photo/EscapedText.h"
#include "photo/PhotoSaver.h"
#include "render/Export.h"
#include "ui_MainWindow.h"

#include <QColorSpace>
#include <QFileInfo>
#include <QPainter>
#include <QTransform>
#include <cmath>
#include <cstdio>

namespace {

constexpr qint64 largeFile = 2'000'000; ///< bytes; a smaller one is decoded in a moment

} // namespace

bool MainWindowController::loadImageFromFile(const QByteArray& path)
{
    QString reason;
    const bool opened = openPhoto(path, &reason);
    if (!reason.isEmpty()) // not modal: another photo may be dropped on the window at once
        showSheet(tr("“%1” cannot be opened.").arg(shownName(fileNameOf(path))), reason, Qt::NonModal);
    return opened;
}

bool MainWindowController::openPhoto(const QByteArray& path, QString* reason)
{
    const Work work(m_work, stepsOfRender() + 1, QFileInfo(QFile::decodeName(path)).size() > largeFile);
    if (!work)
        return false;
    qInfo("%s", escaped(path).constData());
    if (m_sheet)
        m_sheet->close(); // what it said is answered by what comes now
    const LoadedPhoto loaded = readPhoto(path);
    if (loaded.image.isNull()) {
        if (m_reader->end() != PhotoReader::End::Cancelled)
            *reason = loaded.reason;
        return false;
    }
    takePhoto(loaded, path);
    addRecentPhoto(path);
    if (loaded.restIsMissing)
        showNote(tr("The rest of the file is missing."));
    return true;
}

void MainWindowController::takePhoto(const LoadedPhoto& photo, const QByteArray& path)
{
    showFitted();
    m_photo.metadata = photo.metadata;
    setoriginalImage(photo.image);
    updateThumbnailImages();
    setCurrentFile(path);
    applyMultipleFilters();
    beginHistory();
}

void MainWindowController::setCurrentFile(const QByteArray& path)
{
    m_photo.filePath = path;
    if (!path.isEmpty())
        m_panelFolder = QFileInfo(QFile::decodeName(path)).absolutePath(); // where the panels start
    // "[*]" is the platform's placeholder for an unsaved document, and doubled it is itself.
    const QString name = shownName(m_photo.fileName()).replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
    setWindowTitle(tr("Lumora - %1").arg(name));
}

void MainWindowController::setoriginalImage(const QImage& image)
{
    m_photo.setOriginal(image, displayRes, thumbDensity());
    m_framedFullSize = {};
    m_framedOriginal = {}; // it may be as large as the photo
    showWhatCanBeDone();
}

/// At the end of the line with the looks, until something else happens.
void MainWindowController::showNote(const QString& line)
{
    m_ui->noteText->setText(line);
    m_ui->noteText->setToolTip(line);
    m_ui->noteText->setVisible(!line.isEmpty());
}

QSizeF MainWindowController::downsizeNSImage(QImage& image, int maxSide)
{
    return scaleForExport(image, maxSide);
}

QImage MainWindowController::rotateNSImage(const QImage& image, float degrees)
{
    // The platform's y axis points down, so that its positive angles turn clockwise. Turning drops the colour space.
    const double angle = -double(std::remainder(degrees, 360.0f));
    const QImage whole = image.transformed(QTransform().rotate(angle), Qt::SmoothTransformation);
    QImage turned = whole;
    if (!whole.isNull() && whole.size() != image.size().transposed()) {
        turned = QImage(image.size().transposed(), QImage::Format_RGB32);
        turned.fill(Qt::white);
        if (!turned.isNull())
            QPainter(&turned).drawImage(
                (turned.width() - whole.width()) / 2, (turned.height() - whole.height()) / 2, whole);
    }
    turned.setColorSpace(image.colorSpace());
    return turned;
}

void MainWindowController::rotateImage(int quarterTurns)
{
    const Work work = renderOfPreview();
    if (!work || m_photo.isNull())
        return;
    if (!turnPhoto(quarterTurns))
        return;
    applyMultipleFilters();
    updateThumbnailImages();
    addStep(quarterTurns > 0 ? tr("Rotate left") : tr("Rotate right"), {quarterTurns, {}});
}

void MainWindowController::flattenImage()
{
    const Work work(m_work, stepsOfRender() + 2, takesLong(m_photo.original()));
    if (!work || m_photo.isNull())
        return;
    letSavedPictureGo();
    QString reason;
    const QImage render = renderFullSize(&reason);
    if (render.isNull()) {
        showFitted();
        return openModalSheetWithText(tr("The photo cannot be flattened."), reason);
    }
    const QImage former = m_photo.original();
    setoriginalImage(render);
    removeAllFilters();
    applyMultipleFilters();
    updateThumbnailImages();
    addStep(tr("Flatten"), {0, former});
}

QByteArray MainWindowController::encoded(const QImage& picture) const
{
    return encodeJpeg(picture, m_photo.metadata, Kept(m_kept->chosen()), JpegQuality(m_quality->chosen()));
}

void MainWindowController::saveFilteredImage()
{
    const Work work(m_work, stepsOfRender() + 1, takesLong(m_photo.original()));
    if (!work || m_photo.isNull())
        return;
    QString reason;
    const SavedPicture saved = savedPicture(&reason);
    if (saved.picture.isNull())
        return openModalSheetWithText(tr("The photo cannot be saved."), reason);
    std::printf("downsizing image to %i, ended with %s %s\n", imgOutputSize,
        lumora::sixPlaces(saved.size.width()).c_str(), lumora::sixPlaces(saved.size.height()).c_str());
    m_work.beginStep(tr("Encode"));
    const QByteArray jpeg = encoded(saved.picture);
    if (jpeg.isEmpty())
        return openModalSheetWithText(tr("The photo cannot be saved."), jpegRefusal(saved.picture.size()));
    const QByteArray path = askWhereToSave(jpeg.size());
    if (path.isEmpty())
        return;
    if (!writeFileAtomically(path, jpeg, &reason)) {
        std::puts("didn't work!");
        qWarning("%s: %s", escaped(path).constData(), qUtf8Printable(reason));
        return showNote({});
    }
    showNote(savedLine(fileNameOf(path), saved.picture.size(), jpeg.size()));
}
