// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/preview/Closeup.h"
#include "photo/ScreenColors.h"

#include <QBasicTimer>
#include <QByteArray>
#include <QImage>
#include <QWidget>
#include <functional>
#include <utility>

class QMimeData;
class SplitLine;

/// Takes dropped files.
class DropDelegate {
public:
    virtual ~DropDelegate() = default;
    /// True when the file of that path (any bytes) was taken.
    virtual bool loadImageFromFile(const QByteArray& path) = 0;
};

/// The preview: shows a picture fitted and never enlarged, a pixel of the picture being a pixel of the screen at the
/// most, and accepts files dropped on it. While the mouse is held on it, or comparing is set, it shows another picture,
/// "Before".
class DragDropImageView : public QWidget {
    Q_OBJECT

public:
    explicit DragDropImageView(QWidget* parent = nullptr);

    QImage image() const { return m_rendered; }
    /// Also ends comparing: what is new must be seen. `reason`: why there is no picture, shown in its place; without
    /// one a null picture invites to drop a photo.
    void setImage(const QImage& image, const QString& reason = {});
    /// Gives the picture that is shown while comparing, which has the size of the one that is shown otherwise. It is
    /// asked each time that comparing begins and, while it is split, for each new picture, not while comparing goes on.
    void setBefore(std::function<QImage()> before) { m_before = std::move(before); }
    void setComparing(bool on);
    /// Shows before on the left and after on the right of a line that is dragged across; comparing goes before it. It
    /// stays for new pictures and for a close look, and ends where there is no picture.
    void setSplit(bool on);
    bool isSplit() const { return m_isSplit; }
    SplitLine* splitLine() const { return m_splitLine; }
    /// All pictures are painted in these colours of the screen; null: as they are.
    void setScreenColors(const std::shared_ptr<const ScreenColors>& colors);
    /// The picture that is shown now.
    const QImage& shownImage() const;
    /// Where the picture stands, in the coordinates of the widget. A magnified one may reach beyond it.
    QRectF imageRect() const;

    /// The close look, if any: the full-size picture is shown at 50, 100 or 200 per cent, and the mouse and the arrow
    /// keys move it. Points are in the coordinates of the widget.
    const Closeup& closeup() const { return m_closeup; }
    /// The full-size picture of the photo, which a close look begins with, or goes on with.
    void setFullImage(const QImage& image);
    /// The same with a picture of which so many per cent are seen; the rest is what it is compared with. Where that has
    /// another size nothing changes, and the answer is false.
    bool setFullMix(const QImage& before, const QImage& image, int strength);
    /// Frees it. What is seen of it stays on the screen until the next one comes.
    void letFullImageGo();
    void magnify(const QPointF& at, int percent); ///< that point comes into the middle
    void zoom(int steps, const QPointF& at); ///< that point stays where it is
    void fit(); ///< ends the close look, and frees the full-size picture

    DropDelegate* delegate() const { return m_dropDelegate; }
    void setDelegate(DropDelegate* delegate) { m_dropDelegate = delegate; } ///< not owned

    bool isEditable() const { return false; }
    bool allowsCutCopyPaste() const { return false; }

    /// What a drag of that content may do here: copy, or nothing. `source` is that of a drag that began in this
    /// program, which carries this photo: its file would be made now, only to be opened.
    Qt::DropAction draggingEntered(
        const QMimeData* content, Qt::DropActions allowed, const QObject* source = nullptr) const;
    /// Hands the first file of a drop to the delegate; true when it was taken.
    bool performDragOperation(const QMimeData* content);
    /// Answers a drag that comes over the window, and shows a sign while one that may be dropped stays.
    void takeDragEnter(QDragEnterEvent& event);
    void takeDrop(QDropEvent& event);
    void showDropSign(bool on);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void draggedOut(); ///< the fitted picture is being dragged away
    void actualSizeAsked(const QPointF& at); ///< by a double click
    void zoomAsked(int steps, const QPointF& at); ///< by the wheel with Ctrl; larger where positive
    void splitAnswered(bool on); ///< to each setSplit: what it is now

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent*) override { placeSplit(); }
    void dragEnterEvent(QDragEnterEvent* event) override { takeDragEnter(*event); }
    void dragLeaveEvent(QDragLeaveEvent*) override { showDropSign(false); }
    void dropEvent(QDropEvent* event) override { takeDrop(*event); }
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    /// A picture scaled to the widget, in the colours of the screen, kept between two paintings.
    struct Fitted {
        qint64 of = 0; ///< cache key of the picture
        QImage image;
    };
    QSize room() const; ///< of the widget in pixels of the screen
    QSize fittedPixels(const QSize& picture) const; ///< of the screen
    QRectF fittedRect(const QSize& picture) const;
    /// What the picture takes of the widget; all of it without one, for the words that stand there instead.
    QRect shownArea() const;
    QRectF seenRect() const; ///< of the picture
    const QImage& fitted(bool before);
    void askForBefore();
    void takeFullImage();
    void placeSplit();
    void paintSplit(QPainter& painter, const QRect& exposed);
    void paintPhoto(QPainter& painter, const QRect& exposed, bool before);
    void paintDropSign(QPainter& painter);
    void tellState();
    void paintCloseup(QPainter& painter, const QRect& exposed, bool before);
    void showCloseup();
    void beginPan(const QPointF& position);
    void panTo(const QPointF& position);
    bool isFarFromPress(const QPointF& position) const;

    std::function<QImage()> m_before;
    QImage m_rendered, m_compared;
    std::shared_ptr<const ScreenColors> m_screenColors; ///< null: unknown
    Fitted m_fittedImages[2]; ///< of the render and of the compared picture
    Closeup m_closeup;
    QPointF m_pressed; ///< where the mouse went down
    bool m_mayDragOut = false; ///< the left button went down on the fitted picture
    QPoint m_panned; ///< since then, in pixels of the screen
    bool m_panning = false;
    QBasicTimer m_heldStill; ///< runs until a mouse that is held on a close look compares
    int m_wheel = 0; ///< what the wheel was turned since the last step, in eighths of a degree
    QString m_reason;
    bool m_comparing = false;
    bool m_isSplit = false;
    SplitLine* m_splitLine; ///< a child
    bool m_dropSign = false;
    bool m_focusByKey = false; ///< a frame would only disturb whoever points at the photo
    DropDelegate* m_dropDelegate = nullptr;
};
