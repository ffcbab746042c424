// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/DragDropImageView.h"

#include "app/preview/CornerLabel.h"
#include "app/preview/SplitLine.h"
#include "app/state/Rules.h"
#include "render/Scaled.h"

#include <QPaintEvent>
#include <QPainter>
#include <cmath>
#include <utility>

namespace {

QRectF scaled(const QRectF& rect, qreal factor)
{
    return {rect.topLeft() * factor, rect.size() * factor};
}

} // namespace

DragDropImageView::DragDropImageView(QWidget* parent)
    : QWidget(parent)
    , m_splitLine(new SplitLine(this))
{
    setAcceptDrops(true);
    tellState();
}

/// For whoever listens to the screen.
void DragDropImageView::tellState()
{
    if (m_comparing)
        setAccessibleDescription(tr("Before: the photo without its looks, in its crop and border."));
    else if (m_closeup.isOn())
        setAccessibleDescription(tr("The photo as it will be saved, at %1 %. Drag it or press the arrow keys to see "
                                    "other parts of it.")
                                     .arg(shownNumber(m_closeup.percent())));
    else if (m_isSplit)
        setAccessibleDescription(tr("Before on the left, after on the right of a line that the arrow keys move."));
    else
        setAccessibleDescription(
            tr("The photo under the applied looks. Hold the mouse or the space bar to see it before."));
}

void DragDropImageView::setImage(const QImage& image, const QString& reason)
{
    const QRect before = shownArea();
    setComparing(false);
    m_rendered = image;
    m_reason = reason;
    if (!m_isSplit)
        m_compared = {};
    else if (image.isNull() || !m_closeup.isOn()) // else its picture is still to come
        setSplit(!image.isNull());
    update(before | shownArea());
}

void DragDropImageView::askForBefore()
{
    m_compared = {}; // may be as large as the next one
    m_compared = m_before ? m_before() : QImage();
}

void DragDropImageView::setComparing(bool on)
{
    if (m_comparing == on)
        return;
    if (on)
        askForBefore();
    m_comparing = on;
    m_splitLine->setDrawn(!on);
    tellState();
    update();
}

void DragDropImageView::setSplit(bool on)
{
    m_isSplit = on && !m_rendered.isNull();
    if (m_isSplit)
        askForBefore();
    placeSplit();
    if (m_splitLine->hasFocus() && !m_isSplit)
        setFocus();
    m_splitLine->setVisible(m_isSplit);
    tellState();
    update(shownArea());
    emit splitAnswered(m_isSplit);
}

void DragDropImageView::setScreenColors(const std::shared_ptr<const ScreenColors>& colors)
{
    m_screenColors = colors;
    for (Fitted& fit : m_fittedImages)
        fit = {};
    update();
}

void DragDropImageView::placeSplit()
{
    m_splitLine->setRoom(seenRect());
}

const QImage& DragDropImageView::shownImage() const
{
    if (m_comparing && !m_compared.isNull())
        return m_compared;
    return m_closeup.isOn() ? m_closeup.picture() : m_rendered;
}

QSize DragDropImageView::room() const
{
    return (QSizeF(size()) * devicePixelRatioF()).toSize();
}

QSize DragDropImageView::fittedPixels(const QSize& picture) const
{
    if (picture.width() <= room().width() && picture.height() <= room().height())
        return picture;
    return picture.scaled(room(), Qt::KeepAspectRatio).expandedTo({1, 1});
}

QRectF DragDropImageView::fittedRect(const QSize& picture) const
{
    // On whole pixels of the screen, so that the picture is painted as it is.
    const qreal ratio = devicePixelRatioF();
    const QSizeF shown = QSizeF(fittedPixels(picture)) / ratio;
    const auto snapped = [ratio](qreal v) { return std::floor(v * ratio) / ratio; };
    return {QPointF(snapped((width() - shown.width()) / 2), snapped((height() - shown.height()) / 2)), shown};
}

QRectF DragDropImageView::imageRect() const
{
    return m_closeup.isOn() ? scaled(m_closeup.placed(room()), 1 / devicePixelRatioF())
                            : fittedRect(shownImage().size());
}

QRect DragDropImageView::shownArea() const
{
    return shownImage().isNull() || m_closeup.isOn() ? rect() : imageRect().toAlignedRect();
}

QRectF DragDropImageView::seenRect() const
{
    return imageRect() & QRectF(rect());
}

void DragDropImageView::setFullImage(const QImage& image)
{
    m_closeup.setPicture(image);
    takeFullImage();
}

bool DragDropImageView::setFullMix(const QImage& before, const QImage& image, int strength)
{
    if (before.size() != image.size())
        return false;
    m_closeup.setMix(before, image, strength);
    takeFullImage();
    return true;
}

void DragDropImageView::takeFullImage()
{
    if (m_isSplit && m_closeup.isOn()) {
        askForBefore();
        placeSplit();
    }
    update();
}

void DragDropImageView::letFullImageGo()
{
    m_closeup.letPictureGo(room());
}

void DragDropImageView::magnify(const QPointF& at, int percent)
{
    const qreal ratio = devicePixelRatioF();
    m_closeup.centreOn(at * ratio, percent, scaled(fittedRect(m_rendered.size()), ratio), room());
    showCloseup();
}

void DragDropImageView::zoom(int steps, const QPointF& at)
{
    const qreal ratio = devicePixelRatioF();
    m_closeup.zoom(steps, at * ratio, scaled(fittedRect(m_rendered.size()), ratio), room());
    showCloseup();
}

void DragDropImageView::fit()
{
    m_closeup.end();
    showCloseup();
}

void DragDropImageView::showCloseup()
{
    m_heldStill.stop();
    m_panning = false;
    setComparing(false);
    if (m_isSplit)
        setSplit(true); // of the other picture
    setCursor(m_closeup.isOn() ? Qt::OpenHandCursor : Qt::ArrowCursor);
    tellState();
    update();
}

const QImage& DragDropImageView::fitted(bool before)
{
    const QImage& shown = before && !m_compared.isNull() ? m_compared : m_rendered;
    Fitted& fit = m_fittedImages[before];
    const QSize size = fittedPixels(shownImage().size());
    if (fit.of != shown.cacheKey() || fit.image.size() != size) {
        fit.of = shown.cacheKey();
        fit.image = scaledTo(shown, size);
        fit.image.convertTo(QImage::Format_RGB32); // the screen's, so that painting only copies
        fit.image = onScreen(std::move(fit.image), m_screenColors);
    }
    return fit.image;
}

QSize DragDropImageView::sizeHint() const
{
    return {800, 500};
}

QSize DragDropImageView::minimumSizeHint() const
{
    return {240, 160};
}

void DragDropImageView::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    if (shownImage().isNull() && !m_closeup.isOn()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        const QString invitation = tr("Drop a photo here, or open one.");
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, m_reason.isEmpty() ? invitation : m_reason);
    } else if (m_isSplit && !m_comparing) {
        paintSplit(painter, event->rect());
    } else {
        paintPhoto(painter, event->rect(), m_comparing);
    }
    const QRectF seen = seenRect();
    if (m_comparing)
        paintCornerLabel(painter, seen, tr("Before"));
    if (m_closeup.isOn())
        paintCornerLabel(painter, seen, tr("%1 %").arg(shownNumber(m_closeup.percent())), true, true);
    if (m_dropSign)
        paintDropSign(painter);
    if (hasFocus() && m_focusByKey) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void DragDropImageView::paintPhoto(QPainter& painter, const QRect& exposed, bool before)
{
    if (m_closeup.isOn())
        paintCloseup(painter, exposed, before);
    else
        painter.drawImage(imageRect(), fitted(before));
}

void DragDropImageView::paintCloseup(QPainter& painter, const QRect& exposed, bool before)
{
    const qreal ratio = devicePixelRatioF();
    const QRect area = scaled(exposed, ratio).toAlignedRect();
    const Closeup::Part part =
        before && !m_compared.isNull() ? m_closeup.part(m_compared, area, room()) : m_closeup.part(area, room());
    painter.drawImage(scaled(part.area, 1 / ratio), onScreen(part.pixels, m_screenColors));
}

/// The labels are parts of the two pictures, and are covered with them.
void DragDropImageView::paintSplit(QPainter& painter, const QRect& exposed)
{
    painter.setClipRect(m_splitLine->before());
    paintPhoto(painter, exposed, true);
    paintCornerLabel(painter, seenRect(), tr("Before"));
    painter.setClipRect(m_splitLine->after());
    paintPhoto(painter, exposed, false);
    paintCornerLabel(painter, seenRect(), tr("After"), true);
    painter.setClipping(false);
}
