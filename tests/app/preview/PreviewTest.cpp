#include "tests/app/Desk.h"

#include <QScreen>

// What stands on the screen, not what a widget would paint if it were asked.

class PreviewTest : public QObject {
    Q_OBJECT

private:
    struct Preview : DragDropImageView {
        Preview()
        {
            resize(300, 200);
            show();
            if (!QTest::qWaitForWindowExposed(this))
                qFatal("the preview does not come up");
        }

        QImage onScreen() const { return pixelsOf(screen()->grabWindow(winId()).toImage()); }
        /// Of the picture in the middle, which must fit.
        QImage onScreen(const QSize& picture) const
        {
            QRect middle(QPoint(), picture);
            middle.moveTopLeft({(width() - picture.width()) / 2, (height() - picture.height()) / 2});
            return onScreen().copy(middle);
        }
        /// What a new preview of that size shows of a picture.
        static QImage ofNewOne(const QSize& size, const QImage& picture)
        {
            DragDropImageView view;
            view.resize(size);
            view.setImage(picture);
            return pixelsOf(view.grab().toImage());
        }
    };

    static QImage flat(int width, int height, Qt::GlobalColor colour)
    {
        QImage picture(width, height, QImage::Format_RGB32);
        picture.fill(colour);
        return picture;
    }

private slots:
    void anotherPictureOfTheSameSizeIsShown()
    {
        Preview preview;
        for (const QSize size : {QSize(120, 80), QSize(1200, 800)})
            for (const Qt::GlobalColor colour : {Qt::red, Qt::blue, Qt::red}) {
                preview.setImage(flat(size.width(), size.height(), colour));
                QTRY_COMPARE(preview.onScreen({120, 80}), flat(120, 80, colour));
            }
    }

    void aPictureFollowsTheSizeOfThePreview()
    {
        Preview preview;
        const QImage picture = makePhoto(1200, 800);
        preview.setImage(picture);
        for (const QSize size : {QSize(300, 200), QSize(420, 260), QSize(200, 300), QSize(300, 200)}) {
            preview.resize(size);
            QTRY_COMPARE(preview.onScreen(), Preview::ofNewOne(size, picture));
        }
    }

    void whatIsComparedWithIsShownAndFollowsToo()
    {
        Preview preview;
        const QImage render = makePhoto(1200, 800), came = render.mirrored(true, false);
        const auto shows = [&](const QImage& picture) {
            return preview.onScreen() == Preview::ofNewOne(preview.size(), picture);
        };
        preview.setImage(render);
        preview.setComparedImage(came);
        QTRY_VERIFY(shows(render));
        preview.setComparing(true);
        QTRY_VERIFY(shows(came));
        preview.resize(240, 180);
        QTRY_VERIFY(shows(came));
        const QImage another = render.mirrored(false, true);
        preview.setComparedImage(another);
        QTRY_VERIFY(shows(another));
        preview.setComparing(false);
        QTRY_VERIFY(shows(render));
        preview.setComparing(true);
        QTRY_VERIFY(shows(another));
        preview.setImage(came); // a new render ends it
        QTRY_VERIFY(shows(came));
    }
};

DESK_MAIN(PreviewTest)
#include "PreviewTest.moc"
