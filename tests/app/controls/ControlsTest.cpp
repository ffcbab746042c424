// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/Desk.h"

#include <QLabel>
#include <algorithm>

/// What people read at the controls, and the order in which the Tab key walks through them.
class ControlsTest : public QObject {
    Q_OBJECT

private slots:
    void init() { setPreferences({}); }

    void theTabKeyWalksFromTheLeftToTheRight()
    {
        const QStringList order = {"mainImageView", "btnOriginal", "btnHelga", "btnLolo", "btnCinema", "btn1962",
            "btn1974", "btnMono", "btnFishEye", "btnInstant", "btnMagazine", "btnLoad", "btnLeft", "btnRight",
            "btnBorders", "btnCropping", "btnImgSize", "chkMultiFilter", "chkRandomness", "btnReExpose", "btnFlatten",
            "btnSave"};
        Desk desk(makePhoto(60, 40));
        for (const auto key : {Qt::Key_Tab, Qt::Key_Backtab}) {
            QStringList walked;
            desk.find<QWidget>("mainImageView")->setFocus();
            do {
                const QString name = desk.window.focusWidget()->objectName();
                if (order.contains(name))
                    walked << name;
                QTest::keyClick(desk.window.focusWidget(), key);
            } while (desk.window.focusWidget()->objectName() != "mainImageView");
            if (key == Qt::Key_Backtab)
                std::reverse(walked.begin() + 1, walked.end());
            QCOMPARE(walked, order);
        }
    }

    void everyControlSaysWhatItIs_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("toolTip");
        const auto row = [](const char* name, const char* text, const char* toolTip) {
            QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(toolTip);
        };
        row("btnOriginal", "Original", "Original (1)");
        row("btnHelga", "Helga", "Helga (2)");
        row("btnLolo", "Lolo", "Lolo (3)");
        row("btnCinema", "Cinema", "Cinema (4)");
        row("btn1962", "1962", "1962 (5)");
        row("btn1974", "1974", "1974 (6)");
        row("btnMono", "Mono", "Mono (7)");
        row("btnFishEye", "Colorcross", "Colorcross (8)");
        row("btnInstant", "Instant", "Instant (9)");
        row("btnMagazine", "Magazine", "Magazine (0)");
        row("btnLoad", "&Open…", "Open a photo (Ctrl+O)");
        row("btnLeft", "↺", "Rotate left (Ctrl+L)");
        row("btnRight", "↻", "Rotate right (Ctrl+R)");
        row("chkMultiFilter", "&Multiple looks", "Stack looks instead of replacing them");
        row("chkRandomness", "Ra&ndomness", "Vary the looks slightly");
        row("btnReExpose", "Re-e&xpose", "Draw a new variation (Ctrl+E)");
        row("btnFlatten", "Fla&tten", "Bake the looks into the photo (Ctrl+Shift+F)");
        row("btnSave", "&Save…", "Save as JPEG (Ctrl+S)");
    }
    void everyControlSaysWhatItIs()
    {
        QFETCH(QString, text);
        QFETCH(QString, toolTip);
        Desk desk;
        const auto* control = desk.find<QAbstractButton>(QTest::currentDataTag());
        QCOMPARE(control->text(), text);
        QCOMPARE(control->toolTip(), toolTip);
    }

    void everyPopUpHasItsLabel()
    {
        Desk desk;
        for (const auto& [popUp, text] :
            {std::pair("btnBorders", "&Border"), std::pair("btnCropping", "&Crop"), std::pair("btnImgSize", "S&ize")}) {
            const auto labels = desk.window.findChildren<QLabel*>();
            const auto own = std::ranges::find_if(
                labels, [&, box = desk.find<QWidget>(popUp)](const QLabel* label) { return label->buddy() == box; });
            QVERIFY2(own != labels.end(), popUp);
            QCOMPARE((*own)->text(), QString(text));
        }
        QCOMPARE(desk.find<QWidget>("mainImageView")->toolTip(),
            QString("Drop a photo here. Hold to see the photo without its looks."));
    }
};

DESK_MAIN(ControlsTest)
#include "ControlsTest.moc"
