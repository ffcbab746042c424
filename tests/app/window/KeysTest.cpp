// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "tests/app/Desk.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QMenuBar>
#include <QWheelEvent>

using namespace lumora;

using Looks = std::vector<int>;

namespace {

constexpr int helga = 1, colorcross = 0;

const char* const buttons[] = {"btnOriginal", "btnHelga", "btnLolo", "btnCinema", "btn1962", "btn1974", "btnMono",
    "btnFishEye", "btnInstant", "btnMagazine", "btnLoad", "btnLeft", "btnRight", "chkMultiFilter", "chkRandomness",
    "btnReExpose", "btnFlatten", "btnSave"};
const char* const popUps[] = {"btnBorders", "btnCropping", "btnImgSize"};

/// What the system sends while a key is held on.
void holdOn(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {})
{
    for (int i = 0; i < 5; i++)
        QTest::simulateEvent(widget, true, key, modifiers, text, true);
}

/// At a moment in milliseconds.
void sendSpace(QWidget* widget, QEvent::Type type, quint64 moment)
{
    QKeyEvent event(type, Qt::Key_Space, {}, " ");
    event.setTimestamp(moment);
    QApplication::sendEvent(widget, &event);
}

} // namespace

class KeysTest : public QObject {
    Q_OBJECT

private:
    /// A desk with a photo that has a look, on which every key and click can be tried.
    struct Try : Desk {
        Try()
            : Desk(makePhoto(120, 80))
        {
            click("btnMono");
        }

        DragDropImageView* view = find<DragDropImageView>("mainImageView");
        QWidget* focused(const char* control)
        {
            auto* widget = find<QWidget>(control);
            widget->setFocus(Qt::TabFocusReason);
            if (window.focusWidget() != widget)
                qFatal("%s does not take the focus", control);
            return widget;
        }
        bool compares() const { return view->shownImage() == before(); }
        bool showsRender() const { return view->shownImage() == window.getFiltersAppliedImage(); }
        QList<int> chosen()
        {
            QList<int> indexes;
            for (const char* popUp : popUps)
                indexes << find<QComboBox>(popUp)->currentIndex();
            return indexes;
        }
    };

private slots:
    void init() { setPreferences({}); }

    void aClickLeavesTheFocusOnThePhoto()
    {
        Try desk;
        for (const char* button : buttons) {
            if (QByteArray(button) == "btnLoad" || QByteArray(button) == "btnSave")
                continue; // their panels come up
            desk.focused("btnCropping");
            desk.click(button);
            QCOMPARE(desk.window.focusWidget()->objectName(), QString("mainImageView"));
        }
        for (const char* popUp : popUps) {
            auto* box = desk.find<QComboBox>(popUp);
            QTest::mouseClick(box, Qt::LeftButton);
            QTRY_VERIFY(box->view()->isVisible());
            QTest::keyClick(box->view(), Qt::Key_Escape);
            QTRY_VERIFY(!box->view()->isVisible());
            QCOMPARE(desk.window.focusWidget()->objectName(), QString("mainImageView"));
        }
    }

    void theSpaceBarComparesWhereverTheFocusIs()
    {
        Try desk;
        const QImage photo = desk.window.getoriginalImage();
        const QList<int> chosen = desk.chosen();
        QVERIFY(!desk.compares());
        for (const auto& names : {std::vector(std::begin(buttons), std::end(buttons)),
                 std::vector(std::begin(popUps), std::end(popUps)), std::vector{"mainImageView"}})
            for (const char* name : names) {
                QWidget* widget = desk.focused(name);
                sendSpace(widget, QEvent::KeyPress, 1000);
                QVERIFY2(desk.compares(), name);
                sendSpace(widget, QEvent::KeyRelease, 1400); // a tap would press a look
                QVERIFY2(desk.showsRender(), name);
            }
        QCOMPARE(desk.pressedButtons(), QStringList("Mono"));
        QCOMPARE(desk.window.getoriginalImage().cacheKey(), photo.cacheKey()); // neither turned nor flattened
        QCOMPARE(desk.chosen(), chosen);
        QVERIFY(!desk.find<QCheckBox>("chkMultiFilter")->isChecked());
        QVERIFY(!desk.find<QCheckBox>("chkRandomness")->isChecked());
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
    }

    void digitsPressLooksWhereverTheFocusIs()
    {
        Try desk;
        const QList<int> chosen = desk.chosen();
        for (const char* control : {"btnImgSize", "btnBorders", "btnLeft", "chkMultiFilter", "mainImageView"}) {
            QTest::keyClick(desk.focused(control), Qt::Key_8);
            QCOMPARE(desk.looks(), Looks{colorcross});
            QTest::keyClick(desk.focused(control), Qt::Key_2);
            QCOMPARE(desk.looks(), Looks{helga});
        }
        QCOMPARE(desk.chosen(), chosen);
    }

    void inAnOpenListKeysBelongToTheList()
    {
        Try desk;
        auto* sizes = desk.find<QComboBox>("btnImgSize");
        QTest::mouseClick(sizes, Qt::LeftButton);
        QTRY_VERIFY(sizes->view()->isVisible());
        QTest::keyClick(sizes->view(), Qt::Key_8);
        QCOMPARE(sizes->view()->currentIndex().data().toString(), QString("800"));
        QTest::keyClick(sizes->view(), Qt::Key_Return);
        QCOMPARE(sizes->currentText(), QString("800"));
        QCOMPARE(desk.looks(), Looks{5});
        QVERIFY(!desk.compares());
    }

    void returnDoesWhatAClickDoes()
    {
        Try desk;
        QTest::keyClick(desk.focused("btnHelga"), Qt::Key_Return);
        QCOMPARE(desk.looks(), Looks{helga});
        QTest::keyClick(desk.focused("chkMultiFilter"), Qt::Key_Enter, Qt::KeypadModifier);
        QVERIFY(desk.window.doMultiFiltering);
        QTest::keyClick(desk.focused("btnRight"), Qt::Key_Return);
        QCOMPARE(desk.window.getoriginalImage().size(), QSize(80, 120));
        QTest::keyClick(desk.focused("btnRight"), Qt::Key_Return, Qt::AltModifier);
        QCOMPARE(desk.window.getoriginalImage().size(), QSize(80, 120));
        auto* crops = static_cast<QComboBox*>(desk.focused("btnCropping"));
        QTest::keyClick(crops, Qt::Key_Return);
        QTRY_VERIFY(crops->view()->isVisible());
        QTest::keyClick(crops->view(), Qt::Key_Escape);
        QCOMPARE(desk.window.focusWidget(), crops); // who came by key stays
    }

    void aHeldKeyActsOnce()
    {
        Try desk;
        QTest::keyPress(desk.view, Qt::Key_2);
        holdOn(desk.view, Qt::Key_2, {}, "2");
        QCOMPARE(desk.looks(), Looks{helga});
        QTest::keyPress(desk.view, Qt::Key_R, Qt::ControlModifier);
        holdOn(desk.view, Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(desk.window.getoriginalImage().size(), QSize(80, 120));
        QTest::keyPress(desk.view, Qt::Key_M, Qt::AltModifier, 0); // the box's own key
        holdOn(desk.view, Qt::Key_M, Qt::AltModifier);
        QTRY_VERIFY(desk.find<QCheckBox>("chkMultiFilter")->isChecked());
        QTest::keyPress(desk.focused("btnRight"), Qt::Key_Return);
        holdOn(desk.find<QWidget>("btnRight"), Qt::Key_Return);
        QCOMPARE(desk.window.getoriginalImage().size(), QSize(120, 80));
        // Flattening a flat photo makes another picture each time.
        QTest::keyPress(desk.view, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
        const qint64 flat = desk.window.getoriginalImage().cacheKey();
        holdOn(desk.view, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(desk.window.getoriginalImage().cacheKey(), flat);
        QTest::keyPress(desk.view, Qt::Key_E, Qt::ControlModifier);
        const float drawn = CharImage::random[0];
        holdOn(desk.view, Qt::Key_E, Qt::ControlModifier);
        QCOMPARE(CharImage::random[0], drawn);
    }

    void aHeldKeyActsOnceWhereTheSystemTakesItsRepeatsForPresses()
    {
        Try desk;
        ulong moment = 1000;
        const auto press = [&](int key, Qt::KeyboardModifiers modifiers, const QString& text = {}) {
            if (qt_sendShortcutOverrideEvent(desk.view, moment, key, modifiers, text))
                return;
            QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
            event.setTimestamp(moment);
            QApplication::sendEvent(desk.view, &event);
        };
        const auto repeat = [&](int key, Qt::KeyboardModifiers modifiers, const QString& text = {}) {
            QKeyEvent event(QEvent::KeyRelease, key, modifiers, text);
            event.setTimestamp(moment += 40);
            QApplication::sendEvent(desk.view, &event);
            press(key, modifiers, text);
        };
        press(Qt::Key_2, {}, "2");
        QCOMPARE(desk.looks(), Looks{helga});
        repeat(Qt::Key_2, {}, "2");
        QCOMPARE(desk.looks(), Looks{helga});
        press(Qt::Key_R, Qt::ControlModifier);
        repeat(Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(desk.window.getoriginalImage().size(), QSize(80, 120));
        press(Qt::Key_Space, {}, " ");
        repeat(Qt::Key_Space, {}, " ");
        QVERIFY(desk.compares());
        press(Qt::Key_8, {}, "8"); // another key at the same moment
        QCOMPARE(desk.looks(), Looks{colorcross});
        repeat(Qt::Key_8, {}, "8");
        moment++;
        press(Qt::Key_8, {}, "8"); // pressed anew
        QCOMPARE(desk.looks(), Looks{});
    }

    void aKeyOfNoKnownMomentActsEachTime()
    {
        Try desk;
        for (const Looks& looks : {Looks{helga}, Looks{}, Looks{helga}})
            for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                if (type == QEvent::KeyPress && qt_sendShortcutOverrideEvent(desk.view, 0, Qt::Key_2, {}, "2"))
                    continue;
                QKeyEvent event(type, Qt::Key_2, {}, "2");
                QCOMPARE(event.timestamp(), 0u);
                QApplication::sendEvent(desk.view, &event);
                QCOMPARE(desk.looks(), looks);
            }
    }

    void aHeldDigitChoosesNoItem()
    {
        Try desk;
        const QList<int> chosen = desk.chosen();
        for (const char* popUp : popUps) {
            QWidget* box = desk.focused(popUp);
            QTest::keyPress(box, Qt::Key_2);
            holdOn(box, Qt::Key_2, {}, "2");
            QTest::keyRelease(box, Qt::Key_2);
        }
        QCOMPARE(desk.chosen(), chosen);
        QCOMPARE(desk.looks(), Looks{helga}); // pressed three times
    }

    void aHeldArrowWalksOn()
    {
        Try desk;
        auto* borders = static_cast<QComboBox*>(desk.focused("btnBorders"));
        QTest::keyPress(borders, Qt::Key_Down);
        holdOn(borders, Qt::Key_Down);
        QCOMPARE(borders->currentIndex(), 6);
    }

    void comparingOutlastsOnlyTheHeldKey()
    {
        Try desk;
        QTest::keyPress(desk.view, Qt::Key_Space);
        QTest::simulateEvent(desk.view, false, Qt::Key_Space, {}, " ", true);
        holdOn(desk.view, Qt::Key_Space, {}, " ");
        QVERIFY(desk.compares());
        QTest::keyRelease(desk.view, Qt::Key_A); // any release ends it
        QVERIFY(desk.showsRender());
        holdOn(desk.view, Qt::Key_Space, {}, " ");
        QVERIFY(desk.showsRender());
    }

    void onlyTheLeftButtonCompares()
    {
        Try desk;
        for (Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
            QTest::mousePress(desk.view, button);
            QVERIFY(desk.showsRender());
            QTest::mouseRelease(desk.view, button);
        }
        QTest::mousePress(desk.view, Qt::LeftButton);
        QVERIFY(desk.compares());
        QTest::mousePress(desk.view, Qt::RightButton);
        QVERIFY(desk.compares());
        QTest::mouseRelease(desk.view, Qt::RightButton);
        QVERIFY(desk.showsRender());
    }

    void comparingEndsWithTheFocus()
    {
        Try desk;
        QTest::keyPress(desk.view, Qt::Key_Space);
        QTest::keyClick(desk.view, Qt::Key_Tab, {}, 0);
        QVERIFY(desk.showsRender());

        desk.view->setFocus();
        QTest::mousePress(desk.view, Qt::LeftButton);
        QVERIFY(desk.compares());
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QVERIFY(desk.showsRender());
    }

    void comparingEndsWithANewRender()
    {
        Try desk;
        QTest::keyPress(desk.view, Qt::Key_Space);
        QVERIFY(desk.compares());
        QTest::mouseClick(desk.find<QWidget>("btnHelga"), Qt::LeftButton);
        QVERIFY(desk.showsRender());
        QCOMPARE(desk.looks(), Looks{helga});
        const QImage shown = desk.view->grab().toImage(); // without the word "Before"
        QTest::keyRelease(desk.view, Qt::Key_Space);
        QCOMPARE(desk.view->grab().toImage(), shown);
    }

    void theWheelPassesAClosedPopUp()
    {
        Try desk;
        const QList<int> chosen = desk.chosen();
        for (const char* popUp : popUps) {
            auto* box = desk.focused(popUp);
            const QPointF at = box->rect().center();
            QWheelEvent turn(at, box->mapToGlobal(at), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
            QApplication::sendEvent(box, &turn);
            QVERIFY(!turn.isAccepted());
        }
        QCOMPARE(desk.chosen(), chosen);
    }
};

DESK_MAIN(KeysTest)
#include "KeysTest.moc"
