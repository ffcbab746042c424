// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/DragDropImageView.h"
#include "app/state/LocalFiles.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>

// What is dropped on the preview.

Qt::DropAction DragDropImageView::draggingEntered(
    const QMimeData* content, Qt::DropActions allowed, const QObject* source) const
{
    const bool mayCopy = allowed & (Qt::LinkAction | Qt::CopyAction);
    return mayCopy && !source && !localFiles(*content).isEmpty() ? Qt::CopyAction : Qt::IgnoreAction;
}

bool DragDropImageView::performDragOperation(const QMimeData* content)
{
    const QByteArrayList paths = localFiles(*content);
    return !paths.isEmpty() && m_dropDelegate && m_dropDelegate->loadImageFromFile(paths.first());
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
    if (draggingEntered(event.mimeData(), event.possibleActions(), event.source()) == Qt::IgnoreAction) {
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
