// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/CharImage.h"
#include "render/RenderPipeline.h"
#include "tests/app/Desk.h"
#include "tests/photo/ScarceMemory.h"

#include <QCheckBox>
#include <QColorSpace>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>

using namespace lumora;

class DocumentTest : public QObject {
    Q_OBJECT

private slots:
    void init() { setPreferences({}); }

    void aHalfPictureIsToldOfUntilTheNextChange()
    {
        Desk desk;
        const auto* note = desk.find<QLabel>("noteText");
        const QString name = desk.folder.filePath("half.jpg");
        QVERIFY(makePhoto(300, 200).save(name, "JPEG", 90));
        QFile file(name);
        QVERIFY(file.resize(file.size() / 2));
        const QByteArray half = QFile::encodeName(name), whole = writePhoto(desk.folder, "b.png", makePhoto(30, 20));
        QVERIFY(desk.window.loadImageFromFile(half));
        QVERIFY(note->isVisible());
        QCOMPARE(note->text(), "The rest of the file is missing.");
        QCOMPARE(desk.window.getoriginalImage().size(), QSize(300, 200));
        desk.click("btnMono");
        QVERIFY(!note->isVisible());
        QVERIFY(desk.window.loadImageFromFile(half));
        QVERIFY(note->isVisible());
        QVERIFY(desk.window.loadImageFromFile(whole));
        QVERIFY(!note->isVisible());
    }

    void displayAndThumbnailCopiesHaveTheirSizes()
    {
        Desk desk;
        desk.window.displayRes = 800;
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "a.png", makePhoto(3000, 2000))));
        QCOMPARE(desk.window.getoriginalImage().size(), QSize(3000, 2000));
        QCOMPARE(desk.window.getoriginalDisplay().size(), QSize(800, 533));
        QCOMPARE(desk.window.getoriginalThumb().size(), QSize(150, 100));
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "b.png", makePhoto(2000, 2000))));
        QCOMPARE(desk.window.getoriginalDisplay().size(), QSize(2000, 2000));
        QCOMPARE(desk.window.getoriginalThumb().size(), QSize(100, 100));
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "c.png", makePhoto(640, 480))));
        QCOMPARE(desk.window.getoriginalDisplay().size(), QSize(640, 480));
    }

    void thumbnailsOfAStripShowItsMiddle_data()
    {
        QTest::addColumn<QSize>("photo");
        QTest::addColumn<QSize>("thumbnailCopy");
        QTest::newRow("as long as may be") << QSize(4, 40) << QSize(100, 1000);
        QTest::newRow("high") << QSize(1, 65535) << QSize(100, 1000);
        QTest::newRow("wide") << QSize(65535, 1) << QSize(1000, 100);
    }
    void thumbnailsOfAStripShowItsMiddle()
    {
        QFETCH(QSize, photo);
        QFETCH(QSize, thumbnailCopy);
        // Black with a white middle.
        QImage strip(photo, QImage::Format_RGB32);
        strip.fill(Qt::black);
        const QSize part = photo.width() > photo.height() ? QSize(11, photo.height()) : QSize(photo.width(), 11);
        QRect middle(QPoint(), part.boundedTo(photo));
        middle.moveCenter(strip.rect().center());
        for (int y = middle.top(); y <= middle.bottom(); y++)
            for (int x = middle.left(); x <= middle.right(); x++)
                strip.setPixel(x, y, 0xFFFFFFFF);
        Desk desk(strip);
        QCOMPARE(desk.window.getoriginalThumb().size(), thumbnailCopy);
        const QImage icon = desk.find<QToolButton>("btnOriginal")->icon().pixmap(64).toImage();
        QCOMPARE(icon.pixel(icon.rect().center()), 0xFFFFFFFF);
    }

    void rotatingTurnsThePhotoAndItsCopies()
    {
        Desk desk;
        desk.window.displayRes = 800;
        const QImage photo = makePhoto(3000, 2000);
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "a.png", photo)));
        desk.choose("btnBorders", "None");
        desk.click("btnMono");
        desk.click("btnRight");
        QCOMPARE(desk.window.getoriginalImage().size(), QSize(2000, 3000));
        QCOMPARE(desk.window.getoriginalDisplay().size(), QSize(533, 800));
        QCOMPARE(desk.window.getoriginalThumb().size(), QSize(100, 150));
        QCOMPARE(desk.window.getFiltersAppliedImage().size(), QSize(533, 800));
        QCOMPARE(desk.looks(), (std::vector<int>{5}));
        // Clockwise: what was at the bottom left stands at the top left.
        QCOMPARE(desk.window.getoriginalImage().pixel(0, 0), photo.pixel(0, 1999));
        QCOMPARE(desk.window.getoriginalImage().pixel(1999, 0), photo.pixel(0, 0));
        desk.click("btnLeft");
        QCOMPARE(pixelsOf(desk.window.getoriginalImage()), photo);
        desk.click("btnLeft");
        QCOMPARE(desk.window.getoriginalImage().pixel(0, 0), photo.pixel(2999, 0));
    }

    void turningByAnyAngleExchangesWidthAndHeight()
    {
        const QImage photo = makePhoto(60, 40);
        const auto turned = [&](float degrees) {
            return pixelsOf(MainWindowController::rotateNSImage(photo, degrees));
        };
        for (float degrees : {0.0f, 30.0f, 45.0f, 90.0f, 180.0f, 270.0f, -90.0f, 450.0f})
            QCOMPARE(turned(degrees).size(), QSize(40, 60));
        QCOMPARE(turned(90), turned(-270));
        QCOMPARE(turned(90), turned(450));
        QCOMPARE(turned(90).pixel(0, 59), photo.pixel(0, 0)); // counter-clockwise
        QCOMPARE(turned(-90).pixel(39, 0), photo.pixel(0, 0));
        // The middle stays the middle, the sides are cut off, and above and below is nothing.
        QCOMPARE(turned(0).copy(0, 10, 40, 40), photo.copy(10, 0, 40, 40));
        QCOMPARE(turned(180).copy(0, 10, 40, 40), photo.copy(10, 0, 40, 40).mirrored(true, true));
        QCOMPARE(turned(0).pixel(20, 9), 0xFFFFFFFF);
        QCOMPARE(turned(0).pixel(20, 50), 0xFFFFFFFF);
        // A mark that stands right of the middle goes up by 45 degrees.
        QImage marked(61, 41, QImage::Format_RGB32);
        marked.fill(Qt::black);
        for (int y = 18; y < 23; y++)
            for (int x = 42; x < 47; x++)
                marked.setPixel(x, y, 0xFFFFFFFF);
        const QImage up = MainWindowController::rotateNSImage(marked, 45);
        QCOMPARE(up.pixel(20 + 10, 30 - 10), 0xFFFFFFFF);
        QCOMPARE(up.pixel(20 + 10, 30 + 10), 0xFF000000);
    }

    void theDocumentKnowsItsFile()
    {
        Desk desk;
        QCOMPARE(desk.window.currentFilePath(), QByteArray());
        const QByteArray path = writePhoto(desk.folder, "100%s.png", makePhoto(60, 40));
        QVERIFY(desk.window.loadImageFromFile(path));
        QCOMPARE(desk.window.currentFilePath(), path);
        QCOMPARE(desk.window.currentFileName(), QByteArray("100%s.png"));
        QVERIFY(!desk.window.loadImageFromFile("/nowhere/other.png"));
        QCOMPARE(desk.window.currentFilePath(), path);
    }

    void cropAndBorderAreOffOnlyBeforeARender()
    {
        Desk desk(makePhoto(60, 40));
        desk.click("btnMono");
        QVERIFY(desk.window.doCropping && desk.window.doBorders);
        desk.window.updateFromSettings();
        QVERIFY(!desk.window.doCropping && !desk.window.doBorders);
        desk.window.updateThumbnailImages();
        QVERIFY(desk.window.doCropping && desk.window.doBorders);
    }

    void theDocumentKeepsWhatIsLeftInItsSlots()
    {
        Desk desk;
        QCOMPARE(desk.window.getPicData(), QByteArray());
        desk.window.setPicData("data");
        QCOMPARE(desk.window.getPicData(), QByteArray("data"));
        QCOMPARE(desk.window.getLocalChar(), nullptr);
        auto* image = new CharImage(new unsigned char[3 * 2 * 4], 3, 2);
        desk.window.setLocalChar(image);
        desk.window.setLocalChar(image);
        QCOMPARE(desk.window.getLocalChar()->width, 3);
        desk.window.setLocalChar(new CharImage(new unsigned char[5 * 4 * 4], 5, 4));
        QCOMPARE(desk.window.getLocalChar()->width, 5);
        desk.window.setLocalChar(nullptr);
        QCOMPARE(desk.window.getLocalChar(), nullptr);
    }

    void theColourSpaceSurvivesTurningAndFlattening()
    {
        Desk desk(makePhoto(60, 40));
        const QColorSpace sRgb(QColorSpace::SRgb);
        for (const char* button : {"btnRight", "btnRight", "btnLeft", "btnFlatten"}) {
            desk.click(button);
            QCOMPARE(desk.window.getoriginalImage().colorSpace(), sRgb);
            QCOMPARE(desk.window.getFiltersAppliedImage().colorSpace(), sRgb);
        }
        QCOMPARE(MainWindowController::rotateNSImage(desk.window.getoriginalImage(), 180).colorSpace(), sRgb);
        QImage small = desk.window.getoriginalImage();
        MainWindowController::downsizeNSImage(small, 20);
        QCOMPARE(small.colorSpace(), sRgb);
    }

    void flatteningBakesTheLooksIn()
    {
        Desk desk(makePhoto(300, 200));
        desk.click("chkMultiFilter");
        desk.click("btnMono");
        desk.click("btnHelga");
        desk.choose("btnImgSize", "100");
        const QImage render = renderPhoto(desk.window.getoriginalImage(),
            {.filterIDs = &desk.window.filterIDs,
                .cropFilter = desk.window.cropFilter,
                .borderFilter = desk.window.borderFilter});
        desk.click("btnFlatten");
        QCOMPARE(desk.window.getoriginalImage(), render); // full size, whatever size is chosen for saving
        QCOMPARE(desk.looks(), std::vector<int>());
        QCOMPARE(desk.breadcrumb(), QString("Original"));
        QCOMPARE(desk.window.getFiltersAppliedImage(), render);
        desk.click("btnFishEye");
        QCOMPARE(desk.looks(), (std::vector<int>{0}));
    }

    void withoutAPhotoNothingHappens()
    {
        Desk desk;
        const QByteArray printed = printedBy([&] {
            desk.window.rotateImageLeft();
            desk.window.rotateImageRight();
            desk.window.flattenImage();
            desk.window.saveFilteredImage();
        });
        QCOMPARE(printed, QByteArray());
        QVERIFY(desk.window.getoriginalImage().isNull() && desk.window.getFiltersAppliedImage().isNull());
        QCOMPARE(desk.sheet(), QStringList());
    }

    void whatNeedsAPhotoIsShownDisabledWithoutOne()
    {
        Desk desk;
        const auto enabled = [&] {
            QStringList names;
            for (const char* button : {"btnLoad", "btnLeft", "btnRight", "btnReExpose", "btnFlatten", "btnSave"})
                if (desk.find<QWidget>(button)->isEnabled())
                    names << button;
            for (const QAction* action : desk.window.findChildren<QAction*>())
                if (action->isEnabled() && action->shortcut().toString().startsWith("Ctrl+"))
                    names << action->shortcut().toString();
            return names;
        };
        const QStringList always{"btnLoad", "btnReExpose", "Ctrl+O", "Ctrl+Shift+S", "Ctrl+Q", "Ctrl+E"};
        QCOMPARE(enabled(), always);
        QVERIFY(!desk.window.loadImageFromFile("/nowhere") && desk.closeSheet());
        QCOMPARE(enabled(), always);
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "a.png", makePhoto(60, 40))));
        QCOMPARE(enabled(),
            QStringList({"btnLoad", "btnLeft", "btnRight", "btnReExpose", "btnFlatten", "btnSave", "Ctrl+O", "Ctrl+S",
                "Ctrl+Shift+S", "Ctrl+Q", "Ctrl+C", "Ctrl+L", "Ctrl+R", "Ctrl+Shift+F", "Ctrl+E"}));
    }

    void whereMemoryWouldNotDoNothingIsSavedOrFlattened()
    {
        Desk desk(makePhoto(1, 10000));
        desk.window.displayRes = 2000; // no window is larger, so that nothing else renders the preview
        desk.choose("btnCropping", "Square");
        desk.click("btnMono");
        const qint64 photo = desk.window.getoriginalImage().cacheKey();
        const QImage render = desk.window.getFiltersAppliedImage();
        const QImage preview = desk.find<DragDropImageView>("mainImageView")->image();
        const ScarceMemory memory(300 << 20);
        for (const auto& [button, title] : {std::pair("btnSave", "The photo cannot be saved."),
                 std::pair("btnFlatten", "The photo cannot be flattened.")}) {
            desk.click(button);
            QCOMPARE(desk.sheet(),
                QStringList({title, "There is not enough free memory for a picture of 10000 x 10000 pixels."}));
            QVERIFY(desk.window.findChild<QMessageBox*>()->isModal());
            QVERIFY(desk.closeSheet());
            QTRY_VERIFY(!desk.window.findChild<QMessageBox*>());
            QCOMPARE(desk.window.getoriginalImage().cacheKey(), photo);
            QCOMPARE(desk.looks(), (std::vector<int>{5}));
            QCOMPARE(desk.pressedButtons(), QStringList("Mono"));
            QCOMPARE(desk.window.getFiltersAppliedImage(), render);
            QCOMPARE(desk.find<DragDropImageView>("mainImageView")->image().cacheKey(), preview.cacheKey());
        }
    }

    void whereMemoryWouldNotDoForThePreviewASheetSaysSo()
    {
        Desk desk(makePhoto(4000, 4000)); // the display copy of a square is as large as the photo
        {
            const ScarceMemory memory(100 << 20);
            desk.click("btnMono");
            QCOMPARE(desk.sheet(),
                QStringList({"The preview cannot be shown.",
                    "There is not enough free memory for a picture of 4000 x 4000 pixels."}));
            QVERIFY(desk.closeSheet());
            DragDropImageView says(&desk.window);
            says.resize(desk.find<QWidget>("mainImageView")->size());
            says.setImage({}, "There is not enough free memory for a picture of 4000 x 4000 pixels.");
            QCOMPARE(desk.find<QWidget>("mainImageView")->grab().toImage(), says.grab().toImage());
        }
        desk.click("btnMono");
        QCOMPARE(desk.looks(), std::vector<int>());
        QCOMPARE(pixelsOf(desk.find<DragDropImageView>("mainImageView")->image()), makePhoto(4000, 4000));
    }

    void longWorkShowsItsStepsAndCannotBeEntered()
    {
        Desk desk;
        auto* bar = desk.find<QProgressBar>("progressBar");
        Watch watch(desk.window, *bar);
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "large.png", makePhoto(2600, 1700))));
        QVERIFY(!bar->isVisible());
        desk.click("btnMono");
        watch.steps.clear();
        watch.places.clear();
        desk.saveAs(desk.folder.filePath("large.jpg"));
        QCOMPARE(watch.steps, QStringList({"Fit", "Mono", "Border", "Encode"}));
        QCOMPARE(watch.places, QStringList({"0 of 400", "100 of 400", "200 of 400", "300 of 400"}));
        watch.steps.clear();
        desk.click("btnFlatten");
        QCOMPARE(watch.steps, QStringList({"Fit", "Mono", "Border", "Fit", "Border"})); // the photo, then its preview
        QVERIFY(!bar->isVisible());
        QCOMPARE(desk.looks(), std::vector<int>());
        QVERIFY(watch.entered > 3);
        QCOMPARE(desk.window.getoriginalImage().width(), 2600); // never turned
        QVERIFY(!desk.find<QCheckBox>("chkMultiFilter")->isChecked() && !desk.window.doMultiFiltering);
        QVERIFY(!desk.find<QCheckBox>("chkRandomness")->isChecked() && CharImage::useRandom == 0);
    }

    void atActualSizeAPressHasTheStepsOfBothRenders()
    {
        Desk desk;
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "large.png", makePhoto(2600, 1700))));
        auto* view = desk.find<DragDropImageView>("mainImageView");
        QTest::keyClick(view, Qt::Key_Z);
        QVERIFY(view->closeup().isOn());
        Watch watch(desk.window, *desk.find<QProgressBar>("progressBar"));
        desk.click("btnMono");
        QCOMPARE(watch.steps, QStringList({"Fit", "Mono", "Border", "Fit", "Mono", "Border"}));
        QCOMPARE(watch.places,
            QStringList({"0 of 600", "100 of 600", "200 of 600", "300 of 600", "400 of 600", "500 of 600"}));
        QCOMPARE(desk.looks(), std::vector<int>{5});
    }

    void aSwitchPressedDuringTheFirstWorkStaysAsItWasSaved()
    {
        setPreferences("[General]\nPrefsVersion=2\nUseMultiFilter=true\n");
        Desk desk;
        Watch watch(desk.window, *desk.find<QProgressBar>("progressBar"));
        const QByteArray path = writePhoto(desk.folder, "long.png", makePhoto(60, 40));
        QVERIFY(QFile::resize(QFile::decodeName(path), 3000000)); // of which only the beginning is the picture
        QVERIFY(desk.window.loadImageFromFile(path));
        QCOMPARE(watch.steps.first(), QString("Decode")); // before any option was read
        QVERIFY(desk.find<QCheckBox>("chkMultiFilter")->isChecked() && desk.window.doMultiFiltering);
    }

    void aWindowThatIsClosedDuringWorkFinishesItFirst()
    {
        Desk desk;
        auto* bar = desk.find<QProgressBar>("progressBar");
        Watch watch(desk.window, *bar);
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "large.png", makePhoto(2600, 1700))));
        watch.closes = true;
        QVERIFY(desk.window.isVisible());
        desk.click("btnMono");
        const QImage photo = desk.window.getoriginalImage();
        watch.entered = 0;
        desk.window.flattenImage();
        QVERIFY(watch.entered > 0 && !watch.closedAtOnce);
        // The work was done to its end, and only then the window goes.
        QVERIFY(desk.window.isVisible());
        QCOMPARE(desk.looks(), std::vector<int>());
        QCOMPARE(pixelsOf(desk.window.getoriginalImage()),
            pixelsOf(renderPhoto(
                photo, {.filter = Filter::mono, .cropFilter = Filter::mono, .borderFilter = Filter::mono})));
        QTRY_VERIFY(!desk.window.isVisible());
    }

private:
    /// Whoever meddles while the progress is painted.
    class Watch : public QObject {
    public:
        Watch(MainWindowController& controller, QProgressBar& progress)
            : m_window(controller)
            , m_bar(progress)
        {
            m_bar.installEventFilter(this);
        }

        QStringList steps;
        QStringList places; ///< of the bar when each of them began
        int entered = 0;
        bool closes = false, closedAtOnce = false;

        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() != QEvent::Paint)
                return false;
            if (steps.isEmpty() || steps.last() != m_bar.format()) {
                steps << m_bar.format();
                places << QStringLiteral("%1 of %2").arg(m_bar.value()).arg(m_bar.maximum());
            }
            entered++;
            if (closes) {
                m_window.close();
                closedAtOnce |= !m_window.isVisible();
            }
            m_window.pressFilterButton(Filter::helga);
            m_window.rotateImageRight();
            m_window.flattenImage();
            m_window.saveFilteredImage();
            m_window.loadImageButtonPressed();
            m_window.reExpose();
            for (auto* box : m_window.findChildren<QCheckBox*>())
                box->toggle(); // as a screen reader does
            return false;
        }

    private:
        MainWindowController& m_window;
        QProgressBar& m_bar;
    };
};

DESK_MAIN(DocumentTest)
#include "DocumentTest.moc"
