#include "app/preview/DragDropImageView.h"

#include "app/preview/CornerLabel.h"
#include "render/Scaled.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QUrl>
#include <cmath>

namespace {

/// The paths of the files that a drag carries, byte for byte as the file system has them.
QByteArrayList filePaths(const QMimeData* content)
{
    QByteArrayList paths;
    for (const QUrl& url : content->urls())
        if (url.isLocalFile())
            paths << QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    return paths;
}

} // namespace

DragDropImageView::DragDropImageView(QWidget* parent)
    : QWidget(parent)
{
    setAcceptDrops(true);
    tellState();
}

/// For whoever listens to the screen.
void DragDropImageView::tellState()
{
    setAccessibleDescription(m_comparing ? tr("Before: the photo without its looks, in its crop and border.")
                                         : tr("The photo under the applied looks. Hold the mouse or the space bar to "
                                              "see it before."));
}

void DragDropImageView::setImage(const QImage& image, const QString& reason)
{
    const QRect before = shownArea();
    m_comparing = false;
    m_rendered = image;
    m_reason = reason;
    tellState();
    update(before | shownArea());
}

void DragDropImageView::setComparing(bool on)
{
    if (m_comparing == on)
        return;
    if (on)
        m_compared = m_before ? m_before() : QImage();
    m_comparing = on;
    tellState();
    update();
}

const QImage& DragDropImageView::shownImage() const
{
    return m_comparing && !m_compared.isNull() ? m_compared : m_rendered;
}

QSize DragDropImageView::shownPixels() const
{
    const QSize room = (QSizeF(size()) * devicePixelRatioF()).toSize();
    const QSize pixels = shownImage().size();
    if (pixels.width() <= room.width() && pixels.height() <= room.height())
        return pixels;
    return pixels.scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1});
}

QRectF DragDropImageView::imageRect() const
{
    // On whole pixels of the screen, so that the picture is painted as it is.
    const qreal ratio = devicePixelRatioF();
    const QSizeF shown = QSizeF(shownPixels()) / ratio;
    const auto snapped = [ratio](qreal v) { return std::floor(v * ratio) / ratio; };
    return {QPointF(snapped((width() - shown.width()) / 2), snapped((height() - shown.height()) / 2)), shown};
}

QRect DragDropImageView::shownArea() const
{
    return shownImage().isNull() ? rect() : imageRect().toAlignedRect();
}

const QImage& DragDropImageView::fitted()
{
    const QImage& shown = shownImage();
    Fitted& fit = m_fittedImages[m_comparing];
    if (fit.of != shown.cacheKey() || fit.image.size() != shownPixels()) {
        fit.of = shown.cacheKey();
        fit.image = scaledTo(shown, shownPixels());
        fit.image.convertTo(QImage::Format_RGB32); // the screen's, so that painting only copies
    }
    return fit.image;
}

Qt::DropAction DragDropImageView::draggingEntered(const QMimeData* content, Qt::DropActions allowed) const
{
    const bool mayCopy = allowed & (Qt::LinkAction | Qt::CopyAction);
    return mayCopy && !filePaths(content).isEmpty() ? Qt::CopyAction : Qt::IgnoreAction;
}

bool DragDropImageView::performDragOperation(const QMimeData* content)
{
    const QByteArrayList paths = filePaths(content);
    return !paths.isEmpty() && m_dropDelegate && m_dropDelegate->loadImageFromFile(paths.first());
}

QSize DragDropImageView::sizeHint() const
{
    return {800, 500};
}

QSize DragDropImageView::minimumSizeHint() const
{
    return {240, 160};
}

void DragDropImageView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (shownImage().isNull()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        const QString invitation = QStringLiteral("Drop a photo here, or open one.");
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, m_reason.isEmpty() ? invitation : m_reason);
    } else {
        painter.drawImage(imageRect(), fitted());
        if (m_comparing)
            paintCornerLabel(painter, imageRect(), tr("Before"));
    }
    if (m_dropSign)
        paintDropSign(painter);
    if (hasFocus() && m_focusByKey) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void DragDropImageView::paintDropSign(QPainter& painter)
{
    const QColor accent = palette().color(QPalette::Highlight);
    QColor veil = accent;
    veil.setAlpha(60);
    painter.fillRect(rect(), veil);
    painter.setPen(QPen(accent, 4));
    painter.drawRect(rect().adjusted(2, 2, -2, -2));
}

void DragDropImageView::showDropSign(bool on)
{
    m_dropSign = on;
    update();
}

void DragDropImageView::takeDragEnter(QDragEnterEvent& event)
{
    if (draggingEntered(event.mimeData(), event.possibleActions()) == Qt::IgnoreAction) {
        event.ignore();
        return;
    }
    showDropSign(true);
    // A source that only links is told so; the file is read all the same.
    event.setDropAction(event.possibleActions() & Qt::CopyAction ? Qt::CopyAction : Qt::LinkAction);
    event.accept();
}

void DragDropImageView::takeDrop(QDropEvent& event)
{
    showDropSign(false);
    if (!performDragOperation(event.mimeData())) {
        event.setDropAction(Qt::IgnoreAction);
        event.ignore();
        return;
    }
    event.setDropAction(event.possibleActions() & Qt::CopyAction ? Qt::CopyAction : Qt::LinkAction);
    event.accept();
}

void DragDropImageView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        setComparing(true);
}

void DragDropImageView::mouseReleaseEvent(QMouseEvent*)
{
    setComparing(false);
}

void DragDropImageView::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    m_focusByKey = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
}
