// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/FilterNumber.h"
#include "photo/PhotoSaver.h"
#include "tests/app/Desk.h"

#include <QAction>
#include <QApplication>
#include <QScreen>
#include <QSlider>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

using namespace lumora;

namespace {

/// A photo that is larger than the window also at 50 per cent, whatever the screen's density.
QImage photoForScreen()
{
    const qreal ratio = qApp->devicePixelRatio();
    return makePhoto(int(2400 * ratio), int(1600 * ratio));
}

/// A window with a photo that is larger than it.
class CloseDesk : public Desk {
public:
    explicit CloseDesk(const QImage& photo = makePhoto(1800, 1200))
        : Desk(photo)
    {
        choose("btnBorders", "None");
        choose("btnCropping", "None");
        // The pointer of the tests before stays nowhere near the photo.
        QTest::mouseMove(&window, {2, 2});
    }

    DragDropImageView* view = find<DragDropImageView>("mainImageView");

    void type(Qt::Key key, Qt::KeyboardModifiers keys = {})
    {
        window.activateWindow(); // after a panel
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window is not active");
        QTest::keyClick(view, key, keys);
    }
    int percent() const { return view->closeup().percent(); }
    /// The picture of the close look.
    QImage picture() const { return view->closeup().picture(); }
    QPoint middle() const { return view->rect().center(); }
    QSize room() const { return (QSizeF(view->size()) * view->devicePixelRatioF()).toSize(); }
    /// Where the picture stands, in pixels of the screen from the corner of the view.
    QRect placed() const { return view->closeup().placed(room()); }
    /// The pixel of the picture at a point of the view.
    QPoint pixelAt(const QPointF& point) const
    {
        const QPointF at = (point * view->devicePixelRatioF() - placed().topLeft()) * 100 / percent();
        return {int(std::floor(at.x())), int(std::floor(at.y()))};
    }
    /// What the view paints of the picture in pixels of the screen, without the edges where words stand on it.
    QImage painted() const { return pixelsOf(view->grab().toImage()).copy(paintedArea()); }
    QRect paintedArea() const
    {
        const int words = int(50 * view->devicePixelRatioF());
        return (placed() & QRect(QPoint(), room())).adjusted(0, words, 0, -words);
    }
    bool paints(const QImage& picture) const
    {
        const QRect whole = view->closeup().placed(picture.size(), room());
        return painted() == magnifiedPart(picture, percent(), paintedArea().translated(-whole.topLeft()));
    }
    void wheel(int angle, const QPointF& at, Qt::KeyboardModifiers keys = Qt::ControlModifier)
    {
        QWheelEvent turn(at, view->mapToGlobal(at), {}, {0, angle}, {}, keys, Qt::NoScrollPhase, false);
        QApplication::sendEvent(view, &turn);
    }
    /// A mouse that is held down.
    void press(const QPoint& at) { QTest::mousePress(view, Qt::LeftButton, {}, at); }
    void moveTo(const QPoint& at)
    {
        QMouseEvent move(
            QEvent::MouseMove, at, view->mapToGlobal(QPointF(at)), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view, &move);
    }
    void letGo(const QPoint& at) { QTest::mouseRelease(view, Qt::LeftButton, {}, at); }
    /// The bytes that Save writes now.
    QByteArray saved()
    {
        const QString path = folder.filePath(QStringLiteral("saved%1.jpg").arg(m_saves++));
        saveAs(path);
        return contentsOf(QFile::encodeName(path));
    }
    QAction& actualSize()
    {
        for (QAction* action : window.findChildren<QAction*>())
            if (action->shortcut() == QKeySequence(Qt::Key_Z))
                return *action;
        qFatal("there is no such entry");
    }

private:
    int m_saves = 0;
};

} // namespace

class ActualSizeTest : public QObject {
    Q_OBJECT

private slots:
    void init() { setPreferences({}); }

    void withoutAPhotoThereIsNothingToLookAt()
    {
        Desk desk;
        auto* view = desk.find<DragDropImageView>("mainImageView");
        QTest::keyClick(view, Qt::Key_Z);
        QTest::mouseDClick(view, Qt::LeftButton);
        QVERIFY(!view->closeup().isOn());
        QCOMPARE(desk.sheet(), QStringList());
    }

    void whatIsShownIsWhatIsSaved_data()
    {
        QTest::addColumn<QString>("look");
        QTest::addColumn<QString>("border");
        QTest::addColumn<QString>("crop");
        QTest::addColumn<QString>("size");
        QTest::addColumn<int>("strength");
        QTest::newRow("as it came") << "Original"
                                    << "None"
                                    << "None"
                                    << "Original" << 100;
        QTest::newRow("a look with its frame") << "Instant"
                                               << "By Filter"
                                               << "By Filter"
                                               << "Original" << 100;
        QTest::newRow("a look that draws anew") << "Lightleak"
                                                << "None"
                                                << "None"
                                                << "Original" << 100;
        QTest::newRow("in part") << "Lightleak"
                                 << "Thick"
                                 << "Square"
                                 << "Original" << 40;
        QTest::newRow("in another size") << "Helga"
                                         << "Thin"
                                         << "None"
                                         << "1000" << 70;
    }
    void whatIsShownIsWhatIsSaved()
    {
        QFETCH(QString, look);
        QFETCH(QString, border);
        QFETCH(QString, crop);
        QFETCH(QString, size);
        QFETCH(int, strength);
        CloseDesk desk;
        desk.choose("btnBorders", qPrintable(border));
        desk.choose("btnCropping", qPrintable(crop));
        desk.choose("btnImgSize", qPrintable(size));
        for (QAction* action : desk.window.findChildren<QAction*>())
            if (action->text() == look && look != "Original")
                action->trigger();
        desk.find<QSlider>("sldStrength")->setValue(strength);
        const QByteArray before = desk.saved();
        desk.type(Qt::Key_Z);
        QCOMPARE(desk.percent(), 100);
        const QImage shown = desk.picture();
        QVERIFY(desk.paints(shown));
        QCOMPARE(encodeJpeg(shown, {}), before); // what a save just before wrote
        const qint64 render = desk.render();
        QCOMPARE(desk.saved(), before);
        QCOMPARE(desk.render(), render); // it was not rendered once more
        QCOMPARE(desk.picture().cacheKey(), shown.cacheKey());
        desk.type(Qt::Key_Z);
        QCOMPARE(desk.saved(), before);
    }

    void aClickedPointComesIntoTheMiddle()
    {
        CloseDesk desk(photoForScreen());
        const QPoint at = desk.middle() + QPoint(40, -30);
        const QRectF fitted = desk.view->imageRect();
        const QPointF share((at.x() - fitted.x()) / fitted.width(), (at.y() - fitted.y()) / fitted.height());
        QTest::mouseDClick(desk.view, Qt::LeftButton, {}, at);
        QCOMPARE(desk.percent(), 100);
        const QPointF middle = QPointF(desk.room().width(), desk.room().height()) / 2 - desk.placed().topLeft();
        QVERIFY(qAbs(middle.x() - share.x() * desk.picture().width()) <= 1);
        QVERIFY(qAbs(middle.y() - share.y() * desk.picture().height()) <= 1);
        QVERIFY(desk.paints(desk.picture()));
        QVERIFY(desk.actualSize().isChecked());
        QTest::mouseDClick(desk.view, Qt::MiddleButton, {}, at);
        QCOMPARE(desk.percent(), 100);
        QTest::mouseDClick(desk.view, Qt::LeftButton, {}, at);
        QCOMPARE(desk.percent(), 0);
        QVERIFY(!desk.actualSize().isChecked());
    }

    void byKeyTheMiddleOrThePointer()
    {
        CloseDesk desk(photoForScreen());
        const auto centre = [&] {
            return QPointF(
                desk.room().width() / 2.0 - desk.placed().x(), desk.room().height() / 2.0 - desk.placed().y());
        };
        desk.type(Qt::Key_Z);
        const QSize photo = desk.picture().size();
        QVERIFY(qAbs(centre().x() - photo.width() / 2) <= 1 && qAbs(centre().y() - photo.height() / 2) <= 1);
        desk.type(Qt::Key_Escape);
        QCOMPARE(desk.percent(), 0);
        const QRectF fitted = desk.view->imageRect();
        QTest::mouseMove(
            desk.view, fitted.topLeft().toPoint() + QPoint(int(fitted.width() * 0.3), int(fitted.height() / 2)));
        desk.type(Qt::Key_Z);
        QVERIFY(qAbs(centre().x() - photo.width() * 0.3) <= 2 * photo.width() / fitted.width()); // two points
        desk.actualSize().trigger();
        QCOMPARE(desk.percent(), 0);
    }

    void whenFittedItsMemoryIsGivenBack()
    {
        CloseDesk desk;
        const QImage fitted = desk.view->image();
        desk.type(Qt::Key_Z);
        QCOMPARE(desk.window.getFiltersAppliedImage().size(), QSize(1800, 1200));
        desk.type(Qt::Key_Escape);
        QVERIFY(desk.picture().isNull());
        QCOMPARE(desk.view->image().cacheKey(), fitted.cacheKey());
        QCOMPARE(desk.window.getFiltersAppliedImage().cacheKey(), fitted.cacheKey());
    }

    void stepsByKeysAndWheelKeepWhatIsUnderThePointer()
    {
        CloseDesk desk(photoForScreen());
        const QPointF at = QPointF(desk.middle()) + QPointF(37, 21);
        const QSize photo = desk.window.getoriginalImage().size();
        const QRectF fitted = desk.view->imageRect();
        const int most = int(photo.width() / fitted.width()); // a point of the fitted photo
        const QPoint pixel(int((at.x() - fitted.x()) / fitted.width() * photo.width()),
            int((at.y() - fitted.y()) / fitted.height() * photo.height()));
        const auto stays = [&](const QPoint& which, const QPointF& where) {
            const QPoint way = desk.pixelAt(where) - which;
            return qAbs(way.x()) <= most && qAbs(way.y()) <= most;
        };
        desk.wheel(60, at);
        QCOMPARE(desk.percent(), 0); // half a step
        for (const int percent : {50, 100, 200, 200}) {
            desk.wheel(percent == 50 ? 60 : 120, at);
            QCOMPARE(desk.percent(), percent);
            QVERIFY(stays(pixel, at));
            QVERIFY(desk.paints(desk.picture()));
        }
        desk.wheel(-120, at, Qt::NoModifier);
        QCOMPARE(desk.percent(), 200); // the wheel alone belongs to others
        const QPoint pointer(250, 80); // a dense screen of the tests, and the view there, are small
        const QPoint under = desk.pixelAt(pointer);
        QTest::mouseMove(desk.view, pointer);
        desk.type(Qt::Key_Minus);
        QCOMPARE(desk.percent(), 100);
        QVERIFY(stays(under, pointer));
        desk.type(Qt::Key_Minus);
        QCOMPARE(desk.percent(), 50);
        desk.type(Qt::Key_Minus);
        QCOMPARE(desk.percent(), 0);
        QVERIFY(desk.picture().isNull());
        desk.type(Qt::Key_Minus);
        QCOMPARE(desk.percent(), 0);
        desk.type(Qt::Key_Plus);
        QCOMPARE(desk.percent(), 50);
        desk.type(Qt::Key_Equal);
        QCOMPARE(desk.percent(), 100);
        desk.wheel(-240, at);
        QCOMPARE(desk.percent(), 0);
    }

    void aDragMovesThePhotoAndComparesNothing()
    {
        CloseDesk desk(photoForScreen());
        desk.type(Qt::Key_Z);
        const QPoint start = desk.placed().topLeft(), at = desk.middle();
        const int enough = QApplication::startDragDistance();
        desk.press(at);
        desk.moveTo(at + QPoint(enough - 1, 0));
        QCOMPARE(desk.placed().topLeft(), start); // an unsteady hand
        desk.moveTo(at + QPoint(enough + 20, -13));
        const qreal ratio = desk.view->devicePixelRatioF();
        QCOMPARE(desk.placed().topLeft(), start + (QPointF(enough + 20, -13) * ratio).toPoint());
        desk.moveTo(at + QPoint(3, 4)); // back below the distance
        QCOMPARE(desk.placed().topLeft(), start + (QPointF(3, 4) * ratio).toPoint());
        QVERIFY(desk.paints(desk.picture()));
        QCOMPARE(desk.view->shownImage().cacheKey(), desk.picture().cacheKey());
        desk.letGo(at + QPoint(3, 4));
        desk.press(at + QPoint(60, 60)); // anew, from there
        desk.moveTo(at + QPoint(60 + enough, 60));
        QCOMPARE(desk.placed().topLeft(), start + (QPointF(3 + enough, 4) * ratio).toPoint());
        desk.letGo(at);
    }

    void aMouseThatIsHeldStillCompares()
    {
        CloseDesk desk;
        desk.choose("btnBorders", "Thick");
        desk.window.pressFilterButton(Filter::mono);
        desk.window.undo(); // what a save writes without the look
        desk.type(Qt::Key_Z);
        const QImage before = pixelsOf(desk.picture());
        desk.window.redo();
        const QImage after = pixelsOf(desk.picture());
        QVERIFY(before != after);
        const int time = QApplication::startDragTime();
        QApplication::setStartDragTime(50);
        desk.press(desk.middle());
        QVERIFY(desk.paints(after)); // not at once: it may become a drag
        QTRY_VERIFY(desk.paints(before));
        QCOMPARE(pixelsOf(desk.view->shownImage()), before);
        desk.moveTo(desk.middle() + QPoint(50, 50)); // moves what is seen before
        QVERIFY(desk.paints(before));
        desk.letGo(desk.middle());
        QVERIFY(desk.paints(after));
        QApplication::setStartDragTime(time);
        QTest::keyPress(desk.view, Qt::Key_Space);
        QVERIFY(desk.paints(before));
        QTest::keyRelease(desk.view, Qt::Key_Space);
        QVERIFY(desk.paints(after));
        desk.choose("btnImgSize", "1000");
        QTest::keyPress(desk.view, Qt::Key_Space);
        QCOMPARE(desk.view->shownImage().size(), desk.picture().size());
        const qint64 kept = desk.view->shownImage().cacheKey();
        QTest::keyRelease(desk.view, Qt::Key_Space);
        QTest::keyPress(desk.view, Qt::Key_Space);
        QCOMPARE(desk.view->shownImage().cacheKey(), kept); // it is not scaled once more
        QTest::keyRelease(desk.view, Qt::Key_Space);
        desk.type(Qt::Key_Escape);
        desk.press(desk.middle()); // fitted, it does at once
        QVERIFY(desk.view->shownImage() != desk.view->image());
        desk.letGo(desk.middle());
    }

    void itsPercentageIsToldToEyesAndScreenReaders()
    {
        CloseDesk desk;
        const QString fitted = desk.view->accessibleDescription();
        desk.type(Qt::Key_Z);
        QVERIFY(desk.view->accessibleDescription().contains("at 100 %"));
        const QImage whole = pixelsOf(desk.view->grab().toImage());
        const QRect corner(QPoint(whole.width() * 3 / 4, whole.height() * 3 / 4), whole.size() / 4);
        const QPoint shift = desk.placed().topLeft();
        QVERIFY(whole.copy(corner) != magnifiedPart(desk.picture(), 100, corner.translated(-shift)));
        desk.type(Qt::Key_Plus);
        QVERIFY(desk.view->accessibleDescription().contains("at 200 %"));
        desk.type(Qt::Key_Escape);
        QCOMPARE(desk.view->accessibleDescription(), fitted);
    }

    void arrowsMoveThePhoto()
    {
        CloseDesk desk(photoForScreen());
        desk.type(Qt::Key_Left); // nothing to move
        desk.type(Qt::Key_Z);
        const QPoint start = desk.placed().topLeft();
        desk.type(Qt::Key_Right);
        QCOMPARE(desk.placed().topLeft(), start - QPoint(qRound(desk.room().width() / 8.0), 0));
        desk.type(Qt::Key_Left);
        desk.type(Qt::Key_Up);
        QCOMPARE(desk.placed().topLeft(), start + QPoint(0, qRound(desk.room().height() / 8.0)));
        desk.type(Qt::Key_Down);
        QCOMPARE(desk.placed().topLeft(), start);
        QVERIFY(desk.paints(desk.picture()));
    }

    void whatChangesMeanwhileIsShownAsItWillBeSaved()
    {
        CloseDesk desk;
        desk.type(Qt::Key_Z);
        const QPoint seen = desk.pixelAt(desk.middle());
        const auto isSaved = [&] { return encodeJpeg(desk.picture(), {}) == desk.saved(); };
        QImage before = desk.picture();
        const auto hasChanged = [&] { return std::exchange(before, desk.picture()) != before; };
        desk.type(Qt::Key_2);
        QVERIFY(hasChanged() && isSaved());
        QCOMPARE(desk.pixelAt(desk.middle()), seen);
        QVERIFY(desk.paints(desk.picture()));
        const QImage helga = desk.picture();
        desk.type(Qt::Key_BracketLeft);
        QVERIFY(hasChanged() && isSaved());
        desk.choose("btnImgSize", "1600");
        QVERIFY(hasChanged() && isSaved());
        QCOMPARE(desk.picture().size(), QSize(1600, 1067));
        desk.choose("btnImgSize", "Original");
        desk.window.undo();
        desk.window.undo();
        desk.window.undo();
        QCOMPARE(desk.picture(), helga);
        desk.window.redo();
        QVERIFY(isSaved());
        desk.click("btnRight");
        QCOMPARE(desk.picture().size(), QSize(1200, 1800));
        QVERIFY(isSaved());
        const QImage shown = desk.picture();
        desk.click("btnFlatten");
        QCOMPARE(pixelsOf(desk.window.getoriginalImage()), pixelsOf(shown)); // what was seen was flattened
        QCOMPARE(pixelsOf(desk.picture()), pixelsOf(shown));
        QCOMPARE(desk.percent(), 100);
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "other.png", makePhoto(900, 700))));
        QCOMPARE(desk.percent(), 0); // another photo is seen whole
    }

    void aDragOfTheStrengthIsSeenAtOnce()
    {
        CloseDesk desk;
        auto* slider = desk.find<QSlider>("sldStrength");
        desk.type(Qt::Key_Z);
        for (const int look : {Filter::lightleak, Filter::helga}) {
            desk.window.pressFilterButton(look);
            const QImage whole = desk.picture();
            const auto shows = [&](int strength) {
                return desk.paints(mixedPart(desk.window.getoriginalImage(), whole, strength, whole.rect()));
            };
            slider->setSliderDown(true);
            for (const int value : {60, 20, 100}) {
                slider->setSliderPosition(value);
                QVERIFY(shows(value));
                QCOMPARE(desk.picture().cacheKey(), whole.cacheKey()); // no other one was made
            }
            slider->setSliderPosition(30);
            desk.type(Qt::Key_Plus); // 200 per cent
            QVERIFY(shows(30));
            desk.type(Qt::Key_Minus);
            desk.type(Qt::Key_Minus);
            QCOMPARE(desk.percent(), 50);
            QVERIFY(shows(30));
            desk.type(Qt::Key_Z);
            slider->setSliderDown(false);
            QVERIFY(desk.picture() != whole);
            QVERIFY(shows(30) && desk.paints(desk.picture()));
            QCOMPARE(encodeJpeg(desk.picture(), {}), desk.saved());
            // From there the looks are rendered once.
            slider->setSliderDown(true);
            slider->setSliderPosition(50);
            const qint64 rendered = desk.picture().cacheKey();
            slider->setSliderPosition(70);
            QVERIFY(shows(70));
            QCOMPARE(desk.picture().cacheKey(), rendered);
            desk.window.undo(); // in the middle of it
            QVERIFY(desk.paints(desk.picture()));
            slider->setSliderDown(false);
            QCOMPARE(encodeJpeg(desk.picture(), {}), desk.saved());
        }
    }

    void aDragInAnotherFrameOrSizeIsNear_data()
    {
        QTest::addColumn<QString>("border");
        QTest::addColumn<QString>("size");
        QTest::newRow("another size") << "Thin"
                                      << "1600";
        QTest::newRow("round corners") << "Rounded"
                                       << "Original";
    }
    void aDragInAnotherFrameOrSizeIsNear()
    {
        QFETCH(QString, border);
        QFETCH(QString, size);
        CloseDesk desk;
        auto* slider = desk.find<QSlider>("sldStrength");
        desk.choose("btnBorders", qPrintable(border));
        desk.choose("btnImgSize", qPrintable(size));
        desk.window.pressFilterButton(Filter::helga);
        desk.type(Qt::Key_Z);
        slider->setSliderDown(true);
        slider->setSliderPosition(40);
        const QImage whole = desk.picture(), dragged = desk.painted();
        slider->setSliderDown(false);
        const QImage saved = desk.painted();
        QVERIFY(desk.picture() != whole && desk.paints(desk.picture()));
        QCOMPARE(encodeJpeg(desk.picture(), {}), desk.saved());
        QCOMPARE(dragged.size(), saved.size());
        int most = 0;
        for (int y = 0; y < saved.height(); y++)
            for (int x = 0; x < saved.width(); x++) {
                const QRgb a = dragged.pixel(x, y), b = saved.pixel(x, y);
                most = std::max({most, abs(qRed(a) - qRed(b)), abs(qGreen(a) - qGreen(b)), abs(qBlue(a) - qBlue(b))});
            }
        QVERIFY2(most <= 1, qPrintable(QString::number(most)));
    }
};

DESK_MAIN(ActualSizeTest)
#include "ActualSizeTest.moc"
