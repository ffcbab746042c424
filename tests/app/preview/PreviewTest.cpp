// SPDX-License-Identifier: GPL-3.0-or-later
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

    void nothingIsLeftOfALargerPicture()
    {
        Preview preview;
        for (const QSize size : {QSize(300, 100), QSize(100, 200), QSize(60, 40)}) {
            const QImage picture = makePhoto(size.width(), size.height());
            preview.setImage(picture);
            QTRY_COMPARE(preview.onScreen(), Preview::ofNewOne(preview.size(), picture));
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
        QImage before = came;
        const auto shows = [&](const QImage& picture) {
            const QRect below(0, 60, preview.width(), preview.height() - 60); // the label
            return preview.onScreen().copy(below) == Preview::ofNewOne(preview.size(), picture).copy(below);
        };
        preview.setImage(render);
        preview.setBefore([&before] { return before; });
        QTRY_VERIFY(shows(render));
        preview.setComparing(true);
        QTRY_VERIFY(shows(came));
        preview.resize(240, 180);
        QTRY_VERIFY(shows(came));
        preview.setComparing(false);
        QTRY_VERIFY(shows(render));
        const QImage another = before = render.mirrored(false, true);
        preview.setComparing(true);
        QTRY_VERIFY(shows(another));
        preview.setImage(came); // a new render ends it
        QTRY_VERIFY(shows(came));
    }

    void aLabelSaysThatItIsBefore()
    {
        Preview preview;
        const QImage picture = makePhoto(1200, 800);
        preview.setBefore([&picture] { return picture; });
        preview.setImage(picture);
        const QImage plain = Preview::ofNewOne(preview.size(), picture);
        QTRY_COMPARE(preview.onScreen(), plain);
        preview.setComparing(true);
        QTRY_VERIFY(preview.onScreen() != plain);
        const QImage labelled = preview.onScreen();
        QRect place;
        for (int y = 0; y < plain.height(); y++)
            for (int x = 0; x < plain.width(); x++)
                if (labelled.pixel(x, y) != plain.pixel(x, y))
                    place |= QRect(x, y, 1, 1);
        QVERIFY2(QRect(4, 4, 90, 36).contains(place), qPrintable(QDebug::toString(place)));
        QVERIFY(place.width() > 20 && place.height() > 8);
        preview.setComparing(false);
        QTRY_COMPARE(preview.onScreen(), plain);
    }

    void aPictureWithoutRoomForTheLabelHasNone()
    {
        Preview preview;
        for (const QSize size : {QSize(200, 16), QSize(30, 150)}) {
            const QImage picture = makePhoto(size.width(), size.height());
            preview.setBefore([&picture] { return picture; });
            preview.setImage(picture);
            preview.setComparing(true);
            QTRY_COMPARE(preview.onScreen(size), picture);
        }
    }

    void withoutAPictureThereIsNothingToCompare()
    {
        Preview preview;
        const QImage words = Preview::ofNewOne(preview.size(), {});
        QTRY_COMPARE(preview.onScreen(), words);
        preview.setComparing(true);
        QTRY_COMPARE(preview.onScreen(), words);
    }
};

DESK_MAIN(PreviewTest)
#include "PreviewTest.moc"
