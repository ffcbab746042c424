#pragma once

#include <QByteArray>
#include <QImage>
#include <QWidget>
#include <functional>
#include <utility>

class QMimeData;

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
    /// Gives the picture that is shown while comparing. It is asked each time that comparing begins, not while it goes
    /// on.
    void setBefore(std::function<QImage()> before) { m_before = std::move(before); }
    void setComparing(bool on);
    /// The picture that is shown now.
    const QImage& shownImage() const;
    /// Where the picture stands, in the coordinates of the widget.
    QRectF imageRect() const;

    DropDelegate* delegate() const { return m_dropDelegate; }
    void setDelegate(DropDelegate* delegate) { m_dropDelegate = delegate; } ///< not owned

    bool isEditable() const { return false; }
    bool allowsCutCopyPaste() const { return false; }

    /// What a drag of that content may do here: copy, or nothing.
    Qt::DropAction draggingEntered(const QMimeData* content, Qt::DropActions allowed) const;
    /// Hands the first file of a drop to the delegate; true when it was taken.
    bool performDragOperation(const QMimeData* content);
    /// Answers a drag that comes over the window, and shows a sign while one that may be dropped stays.
    void takeDragEnter(QDragEnterEvent& event);
    void takeDrop(QDropEvent& event);
    void showDropSign(bool on);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override;
    void dragEnterEvent(QDragEnterEvent* event) override { takeDragEnter(*event); }
    void dragLeaveEvent(QDragLeaveEvent*) override { showDropSign(false); }
    void dropEvent(QDropEvent* event) override { takeDrop(*event); }
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    /// A picture scaled to the widget, kept between two paintings.
    struct Fitted {
        qint64 of = 0; ///< cache key of the picture
        QImage image;
    };
    QSize shownPixels() const;
    /// What the picture takes of the widget; all of it without one, for the words that stand there instead.
    QRect shownArea() const;
    const QImage& fitted();
    void paintDropSign(QPainter& painter);
    void tellState();

    std::function<QImage()> m_before;
    QImage m_rendered, m_compared;
    Fitted m_fittedImages[2]; ///< of the render and of the compared picture
    QString m_reason;
    bool m_comparing = false;
    bool m_dropSign = false;
    bool m_focusByKey = false; ///< a frame would only disturb whoever points at the photo
    DropDelegate* m_dropDelegate = nullptr;
};
