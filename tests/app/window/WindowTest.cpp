// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/controls/LookStrip.h"
#include "app/state/Rules.h"
#include "image/CharImage.h"
#include "render/RenderPipeline.h"
#include "tests/app/Desk.h"

#include <QApplication>
#include <QDesktopServices>
#include <QLabel>
#include <QLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QSet>
#include <QUrl>
#include <cstdlib>
#include <vector>

using namespace lumora;

namespace {

/// What stands where a thumbnail will be.
bool isEmptyPlace(const QIcon& icon)
{
    return icon.pixmap(1).toImage().pixelColor(0, 0).alpha() == 0;
}

} // namespace

class WindowTest : public QObject {
    Q_OBJECT

public slots:
    void noteOpened(const QUrl& url) { m_opened << url; }

private:
    QList<QUrl> m_opened;

private slots:
    void init() { setPreferences({}); }

    void startsDarkAndEmpty()
    {
        Desk desk;
        QCOMPARE(desk.window.windowTitle(), QString("Lumora by Dovrel"));
        QCOMPARE(desk.breadcrumb(), QString("Original"));
        QCOMPARE(desk.window.palette().color(QPalette::Window), QColor(51, 51, 51));
        QCOMPARE(desk.window.grab().toImage().pixelColor(3, desk.window.height() - 3), QColor(51, 51, 51));
        QVERIFY(desk.find<DragDropImageView>("mainImageView")->image().isNull());
        for (int i = 0; i < desk.window.filterButtons.numThings; i++)
            QVERIFY(isEmptyPlace(desk.window.filterButtons.theArray[i]->icon()));
        QVERIFY(desk.window.filterIDs.numThings == 0);
    }

    void everyStartDrawsTheRandomTable()
    {
        std::fill(std::begin(CharImage::random), std::end(CharImage::random), -1.0f);
        Desk desk;
        for (float value : CharImage::random)
            QVERIFY(value >= 0.0f && value < 1.0f);
    }

    void theTableDoesNotFollowFromWhatCameBefore()
    {
        const auto table = [] {
            return std::vector<float>(std::begin(CharImage::random), std::end(CharImage::random));
        };
        std::srand(5);
        std::srand(unsigned(std::rand())); // the window draws the table's own seed
        CharImage::renewRandomNumbers();
        const std::vector<float> withoutASeed = table();
        std::srand(5);
        const MainWindowController window;
        QVERIFY(table() != withoutASeed);
    }

    void theTenLookButtonsStandInTheirOrder()
    {
        Desk desk;
        const char* const names[] = {"btnOriginal", "btnHelga", "btnLolo", "btnCinema", "btn1962", "btn1974", "btnMono",
            "btnFishEye", "btnInstant", "btnMagazine"};
        QCOMPARE(desk.window.filterButtons.numThings, 10);
        int x = -1;
        for (int i = 0; i < 10; i++) {
            const QToolButton* button = desk.window.filterButtons.theArray[i];
            QCOMPARE(button->objectName(), QString(names[i]));
            QCOMPARE(button->text(), QString(CharImage::getFilterName(buttonFilters[i])));
            QVERIFY(button->mapTo(&desk.window, QPoint()).x() > x);
            x = button->mapTo(&desk.window, QPoint()).x();
        }
    }

    void thumbnailsShowThePhotoUnderEachLook()
    {
        Desk desk(makePhoto(300, 200));
        desk.choose("btnBorders", "Instant");
        desk.choose("btnCropping", "Cinema");
        desk.window.updateThumbnailImages();
        for (int i = 0; i < 10; i++) {
            const QImage expected = renderPhoto(desk.window.getoriginalThumb(),
                {.filter = buttonFilters[i],
                    .cropFilter = Filter::cinema,
                    .borderFilter = Filter::instant,
                    .asThumbnail = true});
            QCOMPARE(expected.width(), expected.height());
            QVERIFY(expected.width() < 150); // fitted inside the wide border, which is not drawn
            const QIcon icon = desk.window.filterButtons.theArray[i]->icon();
            QCOMPARE(icon.availableSizes().first(), expected.size());
            QCOMPARE(pixelsOf(icon.pixmap(expected.size()).toImage()), pixelsOf(expected));
        }
    }

    void thumbnailsFollowLoadsTurnsFlatteningAndRandomness()
    {
        Desk desk(makePhoto(300, 200));
        const auto key = [&] { return desk.find<QToolButton>("btnHelga")->icon().cacheKey(); };
        for (const char* button : {"btnLeft", "btnRight", "btnFlatten", "chkRandomness", "btnReExpose"}) {
            const qint64 before = key();
            desk.click(button);
            QVERIFY2(key() != before, button);
        }
        const qint64 before = key();
        desk.click("btnMono");
        QCOMPARE(key(), before);
    }

    void withoutAPhotoThereAreNoThumbnails()
    {
        Desk desk;
        desk.window.updateThumbnailImages();
        desk.click("chkRandomness");
        QVERIFY(isEmptyPlace(desk.find<QToolButton>("btnOriginal")->icon()));
    }

    void displayResFollowsTheFrame()
    {
        MainWindowController fresh;
        QCOMPARE(fresh.displayRes, displayResAtLoad(qMax(fresh.width(), fresh.height())));
        // The frame comes round the window when it is shown.
        fresh.resize(1000, 700);
        fresh.displayRes = 1000;
        fresh.show();
        QVERIFY(QTest::qWaitForWindowExposed(&fresh));
        QVERIFY(fresh.frameGeometry().width() > 1000 && fresh.frameGeometry().width() <= 1020);
        QTRY_COMPARE(fresh.displayRes, 1020);

        Desk desk(makePhoto(1600, 900));
        desk.window.displayRes = 800;
        desk.window.setoriginalImage(desk.window.getoriginalImage());
        QCOMPARE(desk.window.getoriginalDisplay().width(), 800);

        const qint64 render = desk.render(), icon = desk.find<QToolButton>("btnHelga")->icon().cacheKey();
        desk.window.resize(980, 600);
        desk.window.resize(1000, 600);
        QCOMPARE(desk.window.displayRes, 800); // not before the size has settled
        QTRY_COMPARE(desk.window.displayRes, 1152);
        QCOMPARE(desk.window.getoriginalDisplay().width(), 1152);
        QVERIFY(desk.render() != render);
        QCOMPARE(desk.find<QToolButton>("btnHelga")->icon().cacheKey(), icon);

        const qint64 larger = desk.render();
        desk.window.resize(900, 560);
        desk.window.windowDidResize();
        QCOMPARE(desk.window.displayRes, 1152);
        QCOMPARE(desk.render(), larger);
    }

    void aResizeWithoutAPhotoOnlyCounts()
    {
        Desk desk;
        desk.window.displayRes = 800;
        desk.window.resize(1000, 600);
        QTRY_COMPARE(desk.window.displayRes, 1152);
        QVERIFY(desk.window.getFiltersAppliedImage().isNull());
    }

    void holdingShowsThePhotoWithoutItsLooks()
    {
        Desk desk(makePhoto(300, 200));
        desk.click("btnMono");
        auto* view = desk.find<DragDropImageView>("mainImageView");
        const qint64 render = desk.render();
        const auto showsRender = [&] { return view->shownImage() == desk.window.getFiltersAppliedImage(); };
        const auto showsPhoto = [&] { return view->shownImage() == desk.before(); };
        QVERIFY(showsRender());
        QTest::mousePress(view, Qt::LeftButton);
        QVERIFY(showsPhoto());
        QTest::mouseRelease(view, Qt::LeftButton);
        QVERIFY(showsRender());

        view->setFocus();
        QTest::keyPress(view, Qt::Key_Space);
        QVERIFY(showsPhoto());
        QTest::keyRelease(view, Qt::Key_Space);
        QVERIFY(showsRender());
        QCOMPARE(desk.render(), render);
    }

    void aboutIsASheet()
    {
        Desk desk;
        desk.window.openAbout();
        QCOMPARE(desk.sheet()[0], QString("Lumora Mac, Version 1.0"));
        QVERIFY(desk.sheet()[1].contains("Dovrel"));
        auto* sheet = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QVERIFY(sheet && sheet->windowModality() == Qt::WindowModal);
        QTest::keyClick(sheet, Qt::Key_Return);
        QCOMPARE(desk.sheet(), QStringList());
    }

    void sheetsShowTextAsItIs()
    {
        Desk desk;
        desk.window.openModalSheetWithText("100%s <b>one</b>", "%n %1 <b>two</b>");
        QCOMPARE(desk.sheet(), QStringList({"100%s <b>one</b>", "%n %1 <b>two</b>"}));
        int shown = 0;
        for (const QLabel* label : qobject_cast<QDialog*>(QApplication::activeModalWidget())->findChildren<QLabel*>())
            if (!label->text().isEmpty()) {
                QCOMPARE(label->textFormat(), Qt::PlainText);
                shown++;
            }
        QCOMPARE(shown, 2);
    }

    void helpOpensItsDocumentOrSaysWhereItShouldBe()
    {
        Desk desk;
        QDesktopServices::setUrlHandler("file", this, "noteOpened");
        const QString document = QCoreApplication::applicationDirPath() + "/../share/lumora/help.pdf";
        QFile::remove(document);
        QTest::keyClick(&desk.window, Qt::Key_F1);
        QVERIFY(desk.sheet().size() == 2 && desk.sheet()[1].contains("help.pdf"));
        QVERIFY(m_opened.isEmpty());
        QApplication::activeModalWidget()->close();

        QDir().mkpath(QFileInfo(document).path());
        QFile file(document);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QTest::keyClick(&desk.window, Qt::Key_F1);
        QCOMPARE(m_opened, QList<QUrl>({QUrl::fromLocalFile(QFileInfo(document).canonicalFilePath())}));
        QDesktopServices::unsetUrlHandler("file");
    }

    void menusHoldEveryActionWithTheDesktopsShortcuts()
    {
        Desk desk;
        QStringList entries;
        for (QAction* title : desk.find<QMenuBar>("menubar")->actions())
            for (QAction* entry : title->menu()->actions())
                if (!entry->isSeparator())
                    entries << title->text().remove('&') + '/' + entry->text().remove('&') + ' '
                            + entry->shortcut().toString();
        for (const char* entry :
            {"File/Open… Ctrl+O", "File/Save… Ctrl+S", "File/Quit Ctrl+Q", "Photo/Rotate left Ctrl+L",
                "Photo/Rotate right Ctrl+R", "Photo/Flatten Ctrl+Shift+F", "Photo/Re-expose Ctrl+E", "Looks/Original 1",
                "Looks/Magazine 0", "Looks/Infrared ", "Looks/Fisheye ", "Looks/Lightleak ", "Looks/Delicious ",
                "Looks/Arctic ", "Looks/Blowout ", "Help/Lumora Help F1", "Help/About Lumora "})
            QVERIFY2(entries.contains(QString::fromUtf8(entry)), entry);
    }

    void noLetterWithAltMeansTwoThings()
    {
        Desk desk;
        QStringList texts;
        for (const QAction* menu : desk.window.menuBar()->actions())
            texts << menu->text();
        for (const auto* button : desk.window.findChildren<QAbstractButton*>())
            texts << button->text();
        for (const auto* label : desk.window.findChildren<QLabel*>())
            if (label->buddy())
                texts << label->text();
        QSet<QKeySequence> met;
        for (const QString& text : texts) {
            const QKeySequence letter = QKeySequence::mnemonic(text);
            QVERIFY2(letter.isEmpty() || !met.contains(letter), qPrintable(text));
            met << letter;
        }
        QVERIFY(met.contains(QKeySequence(Qt::ALT | Qt::Key_E)));
    }

    void noLetterOfAMenuMeansTwoThings()
    {
        Desk desk;
        int letters = 0;
        for (const auto* menu : desk.window.findChildren<QMenu*>()) {
            QSet<QKeySequence> met;
            for (const QAction* entry : menu->actions()) {
                const QKeySequence letter = QKeySequence::mnemonic(entry->text());
                QVERIFY2(letter.isEmpty() || !met.contains(letter), qPrintable(entry->text()));
                met << letter;
                letters += !letter.isEmpty();
            }
        }
        QVERIFY(letters > 15);
    }

    void theTabKeyReachesEveryControl()
    {
        Desk desk(makePhoto(60, 40));
        QSet<QString> reached;
        desk.find<QWidget>("mainImageView")->setFocus();
        for (int i = 0; i < 40; i++) {
            reached << desk.window.focusWidget()->objectName();
            QTest::keyClick(desk.window.focusWidget(), Qt::Key_Tab);
        }
        for (const char* control :
            {"mainImageView", "btnOriginal", "btnHelga", "btnMagazine", "btnLoad", "btnLeft", "btnRight", "btnBorders",
                "btnCropping", "btnImgSize", "chkMultiFilter", "chkRandomness", "btnReExpose", "btnFlatten", "btnSave"})
            QVERIFY2(reached.contains(control), control);
    }

    void fitsA1024By700ScreenWithoutClippingNames()
    {
        Desk desk(makePhoto(60, 40));
        desk.window.resize(1024, 700);
        QTRY_COMPARE(desk.window.size(), QSize(1024, 700));
        QVERIFY(desk.window.minimumSizeHint().width() <= 1024 && desk.window.minimumSizeHint().height() <= 700);
        for (int i = 0; i < 10; i++) {
            const QToolButton* button = desk.window.filterButtons.theArray[i];
            QVERIFY(button->fontMetrics().horizontalAdvance(button->text()) + 8 <= button->width());
        }
        for (const QPushButton* button : desk.window.findChildren<QPushButton*>())
            QVERIFY(button->width() >= button->sizeHint().width() || button->maximumWidth() < 100);
    }

    void noControlMovesWhenTextsChange()
    {
        Desk desk;
        QList<QRect> before, after;
        const auto places = [&] {
            QList<QRect> all;
            for (const QWidget* widget :
                desk.find<QWidget>("centralwidget")->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
                all << widget->geometry();
            return all;
        };
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "p.png", makePhoto(60, 40))));
        QTRY_VERIFY(desk.find<LookStrip>("filtersBox")->height() > 72); // it has room for the thumbnails
        before = places();
        desk.click("chkMultiFilter");
        for (int i = 1; i < 10; i++)
            desk.window.pressFilterButton(buttonFilters[i]);
        desk.window.layout()->activate();
        QCOMPARE(places(), before);
    }
};

DESK_MAIN(WindowTest)
#include "WindowTest.moc"
