#include "app/MainWindowController.h"
#include "app/Rules.h"
#include "photo/FreeMemory.h"
#include "photo/PhotoLoader.h"
#include "photo/PhotoSaver.h"
#include "render/Scaled.h"
#include "ui_MainWindow.h"

#include <QColorSpace>
#include <QFileInfo>
#include <QTransform>
#include <algorithm>
#include <cstdio>

namespace {

constexpr qint64 largeFile = 2'000'000; ///< bytes; a smaller one is decoded in a moment
constexpr int longestStrip = 10; ///< how many times as long as broad a thumbnail copy may be

/// The middle of a long strip, all of any other picture. A thumbnail shows no more than the middle, in a square as
/// large as its copy is long: those of whole strips would take gigabytes.
QImage middleOf(const QImage& image)
{
    const int longest = std::min(image.width(), image.height()) * longestStrip;
    QRect middle(QPoint(), image.size().boundedTo({longest, longest}));
    middle.moveCenter(image.rect().center());
    return middle == image.rect() ? image : image.copy(middle);
}

} // namespace

bool MainWindowController::loadImageFromFile(const QByteArray& path)
{
    const Work work(*this, stepsOfRender() + 1, QFileInfo(QFile::decodeName(path)).size() > largeFile);
    if (!work)
        return false;
    qInfo("%s", path.constData());
    showStep(tr("Decode"));
    LoadedPhoto photo = loadPhoto(path);
    if (photo.image.isNull()) {
        openModalSheetWithText(tr("“%1” cannot be opened.").arg(shownName(fileNameOf(path))), photo.reason);
        return false;
    }
    originalMetadata = photo.metadata;
    setoriginalImage(photo.image);
    updateThumbnailImages();
    setCurrentFile(path);
    applyMultipleFilters();
    return true;
}

void MainWindowController::setCurrentFile(const QByteArray& path)
{
    currentFileName = fileNameOf(path);
    // "[*]" is the platform's placeholder for an unsaved document, and doubled it is itself.
    const QString name = shownName(currentFileName).replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
    setWindowTitle(QStringLiteral("Lumora - ") + name);
}

void MainWindowController::setoriginalImage(const QImage& image)
{
    originalImage = image;
    const QSize size = image.size();
    originalDisplay = scaledTo(image, bitmapSize(displaySize(size, displayRes)));
    // Points of a sharp screen are several pixels.
    const QImage middle = middleOf(image);
    const QSize thumb = bitmapSize(thumbnailSize(middle.size()) * devicePixelRatioF());
    // The display copy shows the same, and a large photo takes a while to read once more.
    const bool isAmple = middle.size() == size && (2 * thumb).boundedTo(originalDisplay.size()) == 2 * thumb;
    originalThumb = scaledTo(isAmple ? originalDisplay : middle, thumb);
    ui->mainImageView->setComparedImage(originalDisplay);
}

QSizeF MainWindowController::downsizeNSImage(QImage& image, int maxSide)
{
    const QSizeF size = exportSize(image.size(), maxSide);
    image = scaledTo(image, bitmapSize(size));
    return size;
}

QImage MainWindowController::rotateNSImage(const QImage& image, float degrees)
{
    // The platform's y axis points down, so that its positive angles turn clockwise. Turning drops the colour space.
    QImage turned = image.transformed(QTransform().rotate(-double(degrees)));
    turned.setColorSpace(image.colorSpace());
    return turned;
}

void MainWindowController::rotateImage(float degrees)
{
    const Work work(*this);
    if (!work || originalImage.isNull())
        return;
    const QImage turned = rotateNSImage(originalImage, degrees);
    if (turned.isNull())
        return openModalSheetWithText(
            tr("The photo cannot be turned."), memoryRefusal(originalImage.size().transposed()));
    setoriginalImage(turned);
    applyMultipleFilters();
    updateThumbnailImages();
}

void MainWindowController::flattenImage()
{
    const Work work(*this, stepsOfRender() + 2, takesLong(originalImage));
    if (!work || originalImage.isNull())
        return;
    QString reason;
    const QImage render = saveMultipleFilters(false, &reason);
    if (render.isNull())
        return openModalSheetWithText(tr("The photo cannot be flattened."), reason);
    setoriginalImage(render);
    applyOriginalFilter();
    updateThumbnailImages();
}

void MainWindowController::saveFilteredImage()
{
    const Work work(*this, stepsOfRender() + 1, takesLong(originalImage));
    if (!work || originalImage.isNull())
        return;
    QString reason;
    QImage render = saveMultipleFilters(false, &reason);
    if (render.isNull())
        return openModalSheetWithText(tr("The photo cannot be saved."), reason);
    QSizeF size = render.size();
    if (imgOutputSize > -1)
        size = downsizeNSImage(render, imgOutputSize);
    if (render.isNull())
        return openModalSheetWithText(tr("The photo cannot be saved."), memoryRefusal(bitmapSize(size)));
    std::printf("downsizing image to %i, ended with %f %f\n", imgOutputSize, size.width(), size.height());
    showStep(tr("Encode"));
    const QByteArray jpeg = encodeJpeg(render, originalMetadata);
    if (jpeg.isEmpty())
        return openModalSheetWithText(tr("The photo cannot be saved."),
            tr("A JPEG cannot hold %1 x %2 pixels. Choose a smaller size.").arg(render.width()).arg(render.height()));
    const QByteArray path = askWhereToSave();
    if (!path.isEmpty() && !writeFileAtomically(path, jpeg, &reason)) {
        std::puts("didn't work!");
        qWarning("%s: %s", path.constData(), qUtf8Printable(reason));
    }
}
