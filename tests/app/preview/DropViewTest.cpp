// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/Desk.h"

#include <QDragEnterEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QPainter>
#include <QPointer>
#include <QUrl>

class DropViewTest : public QObject {
    Q_OBJECT

private:
    /// The delegate of a view that stands alone.
    struct Taker : DropDelegate {
        QByteArrayList paths;
        bool takes = true;
        bool loadImageFromFile(const QByteArray& path) override
        {
            paths << path;
            return takes;
        }
    };

    static constexpr Qt::DropActions all = Qt::CopyAction | Qt::LinkAction | Qt::MoveAction;

    static Qt::DropAction come(QWidget& view, const QMimeData& content, Qt::DropActions allowed)
    {
        QDragEnterEvent event(QPoint(5, 5), allowed, &content, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        QCoreApplication::sendEvent(&view, &event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }

    /// A drag that comes and goes again: the platform remembers where one is that was accepted.
    static Qt::DropAction enter(QWidget& view, const QMimeData& content, Qt::DropActions allowed)
    {
        const Qt::DropAction answer = come(view, content, allowed);
        if (answer != Qt::IgnoreAction) {
            QDragLeaveEvent leave;
            QCoreApplication::sendEvent(&view, &leave);
        }
        return answer;
    }

    /// A drag that ends here; only one that may enter arrives.
    static bool drop(QWidget& view, const QMimeData& content, Qt::DropActions allowed = all)
    {
        if (come(view, content, allowed) == Qt::IgnoreAction)
            return false;
        QDropEvent event(QPointF(5, 5), allowed, &content, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        QCoreApplication::sendEvent(&view, &event);
        return event.isAccepted();
    }

    static void setFiles(QMimeData& content, const QStringList& paths)
    {
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls << QUrl::fromLocalFile(path);
        content.setUrls(urls);
    }

private slots:
    void aViewCannotBeEdited()
    {
        DragDropImageView view;
        QVERIFY(view.acceptDrops());
        QVERIFY(!view.isEditable());
        QVERIFY(!view.allowsCutCopyPaste());
        QCOMPARE(view.delegate(), nullptr);
    }

    void filesMayBeCopiedOrLinked()
    {
        DragDropImageView view;
        QMimeData files;
        setFiles(files, {"/a.jpg"});
        QCOMPARE(view.draggingEntered(&files, all), Qt::CopyAction);
        QCOMPARE(view.draggingEntered(&files, Qt::LinkAction), Qt::CopyAction);
        QCOMPARE(view.draggingEntered(&files, all, &view), Qt::IgnoreAction); // the photo itself
        QCOMPARE(enter(view, files, all), Qt::CopyAction);
        QCOMPARE(enter(view, files, Qt::CopyAction), Qt::CopyAction);
        QCOMPARE(enter(view, files, Qt::LinkAction), Qt::LinkAction); // the answer that such a source understands
    }

    void filesThatMayOnlyMoveAreRefused()
    {
        DragDropImageView view;
        QMimeData files;
        setFiles(files, {"/a.jpg"});
        QCOMPARE(enter(view, files, Qt::MoveAction), Qt::IgnoreAction);
        QCOMPARE(enter(view, files, Qt::IgnoreAction), Qt::IgnoreAction);
    }

    void textPicturesAndWebAddressesAreRefused()
    {
        Taker taker;
        DragDropImageView view;
        view.setDelegate(&taker);
        QMimeData text, picture, address;
        text.setText("/a.jpg");
        picture.setImageData(makePhoto(4, 4));
        address.setUrls({QUrl("https://example.org/a.jpg")});
        for (const QMimeData* content : {&text, &picture, &address}) {
            QCOMPARE(enter(view, *content, all), Qt::IgnoreAction);
            QVERIFY(!drop(view, *content));
            QVERIFY(!view.performDragOperation(content));
        }
        QVERIFY(taker.paths.isEmpty());
    }

    void onlyTheFirstFileIsTaken()
    {
        Taker taker;
        DragDropImageView view;
        view.setDelegate(&taker);
        QMimeData files;
        setFiles(files, {"/one two%.jpg", "/b.jpg", "/c.jpg"});
        QVERIFY(drop(view, files));
        QCOMPARE(taker.paths, QByteArrayList({"/one two%.jpg"}));
    }

    void theDelegatesAnswerIsPassedOn()
    {
        Taker taker;
        taker.takes = false;
        DragDropImageView view;
        view.setDelegate(&taker);
        QMimeData files;
        setFiles(files, {"/a.jpg"});
        QVERIFY(!drop(view, files));
        QVERIFY(!view.performDragOperation(&files));
        taker.takes = true;
        QVERIFY(view.performDragOperation(&files));
        QVERIFY(view.image().isNull()); // the view takes nothing as its own
    }

    void withoutADelegateNothingHappens()
    {
        DragDropImageView view;
        QMimeData files, none;
        setFiles(files, {"/a.jpg"});
        setFiles(none, {});
        QVERIFY(!drop(view, files));
        QVERIFY(!view.performDragOperation(&none));
    }

    void namesOfAnyBytesArrive()
    {
        Taker taker;
        DragDropImageView view;
        view.setDelegate(&taker);
        QMimeData files;
        files.setData("text/uri-list", "file:///tmp/%FF%FE%0A.jpg\r\n");
        QVERIFY(drop(view, files));
        QCOMPARE(taker.paths, QByteArrayList({"/tmp/\xff\xfe\n.jpg"}));
    }

    void threeFilesOnTheWindowOpenTheFirst()
    {
        setPreferences({});
        Desk desk;
        const QByteArray first = writePhoto(desk.folder, "1.png", makePhoto(60, 40));
        const QByteArray second = writePhoto(desk.folder, "2.png", makePhoto(80, 40));
        auto* view = desk.find<DragDropImageView>("mainImageView");
        QMimeData files;
        setFiles(files, {first, second});
        QVERIFY(drop(*view, files));
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - 1.png"));

        QFile text(desk.folder.filePath("notes.txt"));
        QVERIFY(text.open(QIODevice::WriteOnly) && text.write("not a photo") > 0);
        text.close();
        setFiles(files, {text.fileName(), second});
        QVERIFY(!drop(*view, files));
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - 1.png"));
        QVERIFY(desk.sheet().size() == 2 && desk.sheet()[0].contains("notes.txt"));
    }

    void aDragThatMayBeDroppedShowsASign()
    {
        Taker taker;
        DragDropImageView view;
        view.setDelegate(&taker);
        view.resize(200, 150);
        for (const QImage& picture : {QImage(), makePhoto(100, 150)}) {
            view.setImage(picture);
            const QImage before = view.grab().toImage();
            QMimeData files, text;
            setFiles(files, {"/a.jpg"});
            text.setText("/a.jpg");
            enter(view, text, all);
            QCOMPARE(view.grab().toImage(), before);
            come(view, files, all);
            const QImage during = view.grab().toImage();
            QCOMPARE(during.pixelColor(1, 75), view.palette().color(QPalette::Highlight));
            QVERIFY(during.pixel(100, 75) != before.pixel(100, 75));
            QDragLeaveEvent leave;
            QCoreApplication::sendEvent(&view, &leave);
            QCOMPARE(view.grab().toImage(), before);
            drop(view, files);
            QCOMPARE(view.grab().toImage(), before);
        }
    }

    void aFileMayBeDroppedAnywhereOnTheWindow()
    {
        Desk desk;
        auto* view = desk.find<DragDropImageView>("mainImageView");
        const QImage before = view->grab().toImage();
        QMimeData files, text;
        setFiles(files, {QFile::decodeName(writePhoto(desk.folder, "1.png", makePhoto(60, 40)))});
        text.setText("words");
        QCOMPARE(enter(desk.window, text, all), Qt::IgnoreAction);
        QCOMPARE(come(desk.window, files, all), Qt::CopyAction);
        QVERIFY(view->grab().toImage() != before);
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(&desk.window, &leave);
        QCOMPARE(view->grab().toImage(), before);
        QVERIFY(drop(desk.window, files));
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - 1.png"));
        QCOMPARE(pixelsOf(view->image()), makePhoto(60, 40));
    }

    void aFileMayBeDroppedOnASheet()
    {
        Desk desk;
        QVERIFY(!desk.window.loadImageFromFile("/nowhere"));
        const QPointer<QMessageBox> sheet = desk.window.findChild<QMessageBox*>();
        QVERIFY(sheet && sheet->acceptDrops());
        QMimeData files;
        setFiles(files, {QFile::decodeName(writePhoto(desk.folder, "1.png", makePhoto(60, 40)))});
        QVERIFY(drop(*sheet, files));
        QVERIFY(!sheet || !sheet->isVisible());
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - 1.png"));
    }

    void wordsStandInThePlaceOfAPicture()
    {
        DragDropImageView view;
        view.resize(300, 150);
        QWidget plain;
        plain.resize(300, 150);
        const auto withWords = [&](const char* words) {
            QPixmap expected = plain.grab();
            QPainter painter(&expected);
            painter.setPen(plain.palette().color(QPalette::PlaceholderText));
            painter.drawText(plain.rect(), Qt::AlignCenter | Qt::TextWordWrap, words);
            painter.end();
            return expected.toImage();
        };
        QVERIFY(withWords("Drop a photo here, or open one.") != plain.grab().toImage());
        QCOMPARE(view.grab().toImage(), withWords("Drop a photo here, or open one."));
        view.setImage({}, "There is no room for it.");
        QCOMPARE(view.grab().toImage(), withWords("There is no room for it."));
        view.setImage({});
        QCOMPARE(view.grab().toImage(), withWords("Drop a photo here, or open one."));
    }

    void aPictureIsFittedAndNeverEnlarged()
    {
        DragDropImageView view;
        view.resize(400, 300);
        view.setImage(makePhoto(100, 50));
        QCOMPARE(view.imageRect(), QRectF(150, 125, 100, 50));
        view.setImage(makePhoto(800, 200));
        QCOMPARE(view.imageRect(), QRectF(0, 100, 400, 100));
        view.setImage(makePhoto(3000, 6000));
        QCOMPARE(view.imageRect(), QRectF(125, 0, 150, 300));
        const QImage thin = makePhoto(2000, 1);
        view.setImage(thin);
        QCOMPARE(view.imageRect().size(), QSizeF(400, 1));
    }

    void aShrunkPictureIsAveraged()
    {
        QImage stripes(1600, 1200, QImage::Format_RGB32);
        for (int y = 0; y < 1200; y++)
            for (int x = 0; x < 1600; x++)
                stripes.setPixel(x, y, x % 2 ? 0xffffffff : 0xff000000);
        DragDropImageView view;
        view.resize(400, 300);
        view.setImage(stripes);
        const QImage painted = view.grab().toImage();
        for (int x = 1; x < 399; x++)
            QVERIFY(qAbs(painted.pixelColor(x, 150).red() - 127) < 4);
    }
};

DESK_MAIN(DropViewTest)
#include "DropViewTest.moc"
