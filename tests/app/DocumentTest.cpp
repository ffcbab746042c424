#include "image/CharImage.h"
#include "render/PhotoLoader.h"
#include "render/PhotoSaver.h"
#include "render/RenderPipeline.h"
#include "tests/app/Desk.h"
#include "tests/render/ScarceMemory.h"

#include <QColorSpace>
#include <QDirIterator>
#include <QFileOpenEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

class DocumentTest : public QObject {
    Q_OBJECT

private:
    static QImage decoded(const QString& path)
    {
        return pixelsOf(QImage::fromData(contentsOf(QFile::encodeName(path)), "JPEG"));
    }

    /// What saving must write: the full-size render, encoded.
    static QImage expected(Desk& desk)
    {
        const QImage render = renderPhoto(desk.window.getoriginalImage(),
            {.filterIDs = &desk.window.filterIDs,
                .cropFilter = desk.window.cropFilter,
                .borderFilter = desk.window.borderFilter});
        return pixelsOf(QImage::fromData(encodeJpeg(render, {}), "JPEG"));
    }

private slots:
    void init() { setPreferences({}); }

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

    void loadingShowsThePhotoAndItsName()
    {
        Desk desk;
        const QImage photo = makePhoto(64, 48);
        const QByteArray path = writePhoto(desk.folder, "100%s [*] é.png", photo);
        QTest::ignoreMessage(QtInfoMsg, path.constData());
        QVERIFY(desk.window.loadImageFromFile(path));
        QCOMPARE(desk.window.windowTitle(), QString::fromUtf8("Lumora - 100%s [*][*] é.png"));
        QCOMPARE(desk.find<DragDropImageView>("mainImageView")->image().size(), photo.size());
        QCOMPARE(pixelsOf(desk.find<DragDropImageView>("mainImageView")->image()), photo);
    }

    void namesOfAnyBytesOpen_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char* name : {"two words.png", "100%n%s.png", "two\nlines.png", "\xd0\xba\xd0\xbe\xd1\x82.png",
                 "\xff\xfe.png", "-rf.png", ".png"})
            QTest::newRow(QByteArray(name).toPercentEncoding().constData()) << QByteArray(name);
    }

    void namesOfAnyBytesOpen()
    {
        QFETCH(QByteArray, name);
        Desk desk;
        const QByteArray plain = writePhoto(desk.folder, "plain", makePhoto(30, 20));
        const QByteArray path = QFile::encodeName(desk.folder.path()) + '/' + name;
        QCOMPARE(rename(plain.constData(), path.constData()), 0);
        QVERIFY(desk.window.loadImageFromFile(path));
        QVERIFY(desk.window.windowTitle().endsWith(QLatin1String("png")));
        QVERIFY(!desk.window.windowTitle().contains('\n'));
        // Saved under the proposed name into the folder of the photo: the very same file.
        desk.withPanel(
            [&](QFileDialog& panel) {
                panel.setOption(QFileDialog::DontConfirmOverwrite);
                const QString proposed = panel.findChild<QLineEdit*>("fileNameEdit")->text();
                typeName(panel, desk.folder.path() + '/' + proposed);
            },
            [&] { desk.click("btnSave"); });
        QFile saved;
        const int descriptor = open(path.constData(), 0);
        QVERIFY(descriptor >= 0 && saved.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle));
        QCOMPARE(saved.read(3), QByteArray("\xff\xd8\xff"));
        QCOMPARE(unlink(path.constData()), 0); // the folder cannot name them all when it goes
    }

    void anUnreadableFileChangesNothing()
    {
        Desk desk(makePhoto(60, 40));
        desk.click("btnHelga");
        const QImage original = desk.window.getoriginalImage(), render = desk.window.getFiltersAppliedImage();
        const QString title = desk.window.windowTitle();
        QFile text(desk.folder.filePath("notes.jpg"));
        QVERIFY(text.open(QIODevice::WriteOnly) && text.write("not a photo") > 0);
        text.close();
        for (const QByteArray& path : {QFile::encodeName(text.fileName()), QByteArray("/nowhere/at.all"),
                 QFile::encodeName(desk.folder.path()), QByteArray()})
            QVERIFY(!desk.window.loadImageFromFile(path));
        QCOMPARE(desk.window.getoriginalImage(), original);
        QCOMPARE(desk.window.getFiltersAppliedImage().cacheKey(), render.cacheKey());
        QCOMPARE(desk.window.windowTitle(), title);
        QCOMPARE(desk.looks(), (std::vector<int> {1}));
        QCOMPARE(desk.sheet(), QStringList());
    }

    void theDesktopHearsOfARefusalInASheet()
    {
        Desk desk(makePhoto(60, 40));
        QFile text(desk.folder.filePath("<b>notes.jpg"));
        QVERIFY(text.open(QIODevice::WriteOnly) && text.write("not a photo") > 0);
        text.close();
        QFileOpenEvent open(text.fileName());
        QCoreApplication::sendEvent(qApp, &open);
        QCOMPARE(desk.sheet().size(), 2);
        QVERIFY(desk.sheet()[0].contains("<b>notes.jpg"));
        QVERIFY(desk.sheet()[1].contains("not a picture"));
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - photo.png"));
    }

    void theDesktopOpensAFile()
    {
        Desk desk;
        QFileOpenEvent open(QFile::decodeName(writePhoto(desk.folder, "sent.png", makePhoto(60, 40))));
        QCoreApplication::sendEvent(qApp, &open);
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - sent.png"));
        QCOMPARE(desk.sheet(), QStringList());
    }

    void theProgramsFileComesAfterTheWindow()
    {
        QTemporaryDir folder;
        const QByteArray path = writePhoto(folder, "argument.png", makePhoto(60, 40));
        MainWindowController window;
        window.openFileWhenShown(path);
        QCoreApplication::processEvents();
        QVERIFY(window.getoriginalImage().isNull());
        window.show();
        QTRY_COMPARE(window.windowTitle(), QString("Lumora - argument.png"));
    }

    void theOpenPanelOffersTheSixTypesAndOpensOne()
    {
        Desk desk;
        writePhoto(desk.folder, "one.png", makePhoto(60, 40));
        desk.withPanel(
            [&](QFileDialog& panel) {
                QCOMPARE(panel.windowTitle(), QString("Select a file to open"));
                QVERIFY(qAbs(panel.windowOpacity() - 0.95) < 0.005); // the platform keeps 8 bits
                QCOMPARE(panel.fileMode(), QFileDialog::ExistingFile);
                QVERIFY(panel.nameFilters().first().endsWith("(*.jpg *.jpeg *.gif *.png *.psd *.tga)"));
                typeName(panel, desk.folder.filePath("one.png"));
            },
            [&] { desk.click("btnLoad"); });
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - one.png"));

        // The next panel stands where this one was left, also the other kind.
        desk.withPanel(
            [&](QFileDialog& panel) {
                QCOMPARE(panel.directory().canonicalPath(), QDir(desk.folder.path()).canonicalPath());
                panel.reject();
            },
            [&] { desk.click("btnSave"); });
        desk.withPanel(
            [&](QFileDialog& panel) {
                QCOMPARE(panel.directory().canonicalPath(), QDir(desk.folder.path()).canonicalPath());
                panel.reject();
            },
            [&] { desk.click("btnLoad"); });
        QCOMPARE(desk.window.windowTitle(), QString("Lumora - one.png"));
    }

    void aRefusedFileFromTheOpenPanelGetsASheet()
    {
        Desk desk;
        QFile empty(desk.folder.filePath("empty.jpg"));
        QVERIFY(empty.open(QIODevice::WriteOnly));
        empty.close();
        desk.withPanel([&](QFileDialog& panel) { typeName(panel, empty.fileName()); }, [&] { desk.click("btnLoad"); });
        QVERIFY(desk.sheet().size() == 2 && desk.sheet()[0].contains("empty.jpg"));
        QCOMPARE(desk.sheet()[1], QString("The file is empty."));
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
        QCOMPARE(desk.looks(), (std::vector<int> {5}));
        // Clockwise: what was at the bottom left stands at the top left.
        QCOMPARE(desk.window.getoriginalImage().pixel(0, 0), photo.pixel(0, 1999));
        QCOMPARE(desk.window.getoriginalImage().pixel(1999, 0), photo.pixel(0, 0));
        desk.click("btnLeft");
        QCOMPARE(pixelsOf(desk.window.getoriginalImage()), photo);
        desk.click("btnLeft");
        QCOMPARE(desk.window.getoriginalImage().pixel(0, 0), photo.pixel(2999, 0));
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
        QCOMPARE(desk.looks(), (std::vector<int> {0}));
    }

    void withoutAPhotoNothingHappens()
    {
        Desk desk;
        const QByteArray printed = printedBy([&] {
            for (const char* button : {"btnLeft", "btnRight", "btnFlatten", "btnSave"})
                desk.click(button);
        });
        QCOMPARE(printed, QByteArray());
        QVERIFY(desk.window.getoriginalImage().isNull() && desk.window.getFiltersAppliedImage().isNull());
        QCOMPARE(desk.sheet(), QStringList());
    }

    void savingWritesTheFullSizeRender()
    {
        Desk desk;
        desk.window.displayRes = 800;
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "a.png", makePhoto(1200, 900))));
        desk.choose("btnBorders", "None");
        desk.click("btnMono");
        const QString path = desk.folder.filePath("out.jpg");
        const QByteArray printed = printedBy([&] { desk.saveAs(path); });
        QVERIFY(printed.contains("downsizing image to -1, ended with 1200.000000 900.000000\n"));
        QCOMPARE(decoded(path), expected(desk));
    }

    void savingScalesToTheChosenSizeAlsoUpwards()
    {
        Desk desk(makePhoto(640, 480));
        desk.choose("btnImgSize", "1000");
        const QString path = desk.folder.filePath("large.jpg");
        QByteArray printed = printedBy([&] { desk.saveAs(path); });
        QVERIFY(printed.contains("downsizing image to 1000, ended with 1000.000000 750.000000\n"));
        QCOMPARE(decoded(path).size(), QSize(1000, 750));

        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "b.png", makePhoto(300, 200))));
        desk.choose("btnImgSize", "800");
        printed = printedBy([&] { desk.saveAs(path + "2.jpg"); });
        QVERIFY(printed.contains("downsizing image to 800, ended with 800.000000 533.333333\n"));
        QCOMPARE(decoded(path + "2.jpg").size(), QSize(800, 533));
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
            auto* sheet = desk.window.findChild<QMessageBox*>();
            QVERIFY(sheet->isModal());
            QTest::mouseClick(sheet->button(QMessageBox::Ok), Qt::LeftButton);
            QTRY_VERIFY(!desk.window.findChild<QMessageBox*>());
            QCOMPARE(desk.window.getoriginalImage().cacheKey(), photo);
            QCOMPARE(desk.looks(), (std::vector<int> {5}));
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
            QTest::mouseClick(desk.window.findChild<QMessageBox*>()->button(QMessageBox::Ok), Qt::LeftButton);
        }
        desk.click("btnMono");
        QCOMPARE(desk.looks(), std::vector<int>());
        QCOMPARE(pixelsOf(desk.find<DragDropImageView>("mainImageView")->image()), makePhoto(4000, 4000));
    }

    void theSavePanelProposesTheNameAndTheBytesAreAlwaysJpeg()
    {
        Desk desk(makePhoto(60, 40));
        desk.withPanel(
            [&](QFileDialog& panel) {
                QCOMPARE(panel.acceptMode(), QFileDialog::AcceptSave);
                QCOMPARE(panel.findChild<QLineEdit*>("fileNameEdit")->text(), QString("photo.png"));
                QVERIFY(panel.nameFilters().first().endsWith("(*.jpg *.jpeg *.gif *.png *.psd *.tga)"));
                typeName(panel, desk.folder.filePath("picture.tga"));
            },
            [&] { desk.click("btnSave"); });
        QVERIFY(contentsOf(QFile::encodeName(desk.folder.filePath("picture.tga"))).startsWith("\xff\xd8\xff"));
        desk.saveAs(desk.folder.filePath("no extension"));
        QVERIFY(QFile::exists(desk.folder.filePath("no extension.jpg")));
        QVERIFY(!QFile::exists(desk.folder.filePath("no extension")));
    }

    void aCancelledPanelWritesNothing()
    {
        Desk desk(makePhoto(60, 40));
        desk.withPanel([](QFileDialog& panel) { QTest::keyClick(&panel, Qt::Key_Escape); },
            [&] { desk.click("btnSave"); });
        QCOMPARE(QDir(desk.folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("photo.png"));
    }

    void nothingElseIsWritten()
    {
        const auto written = [] {
            QStringList files;
            for (QDirIterator it(configFolder(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); it.hasNext();)
                files << it.next();
            return files;
        };
        Desk desk(makePhoto(60, 40));
        desk.withPanel([&](QFileDialog& panel) { typeName(panel, desk.folder.filePath("photo.png")); },
            [&] { desk.click("btnLoad"); });
        desk.saveAs(desk.folder.filePath("out.jpg"));
        QCOMPARE(written(), QStringList());
        desk.window.applicationWillTerminate();
        QCOMPARE(written(), QStringList(preferencesFile()));
        QCOMPARE(QDir(desk.folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList({"out.jpg", "photo.png"}));
    }

    void aFailedWriteIsLoggedAndLeavesTheOldFile()
    {
        Desk desk(makePhoto(600, 400));
        const QString path = desk.folder.filePath("kept.jpg");
        QFile kept(path);
        QVERIFY(kept.open(QIODevice::WriteOnly) && kept.write("the old one") > 0);
        kept.close();
        QTest::ignoreMessage(QtWarningMsg, "didn't work!");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("kept.jpg: The file is larger than may be written"));
        desk.withPanel(
            [&](QFileDialog& panel) {
                panel.setOption(QFileDialog::DontConfirmOverwrite);
                rlimit limit;
                getrlimit(RLIMIT_FSIZE, &limit);
                limit.rlim_cur = 2000;
                setrlimit(RLIMIT_FSIZE, &limit);
                typeName(panel, path);
            },
            [&] { desk.click("btnSave"); });
        rlimit limit;
        getrlimit(RLIMIT_FSIZE, &limit);
        limit.rlim_cur = limit.rlim_max;
        setrlimit(RLIMIT_FSIZE, &limit);
        QCOMPARE(contentsOf(QFile::encodeName(path)), QByteArray("the old one"));
        QCOMPARE(QDir(desk.folder.path()).entryList(QDir::Files | QDir::Hidden),
            QStringList({"kept.jpg", "photo.png"}));
        QCOMPARE(desk.sheet(), QStringList());

        QTest::ignoreMessage(QtWarningMsg, "didn't work!");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("gone/out.jpg: The folder does not exist"));
        desk.saveAs(desk.folder.filePath("gone/out.jpg"));
    }

    void theOpenPhotosOwnFileCanBeReplacedAndOpenedAgain()
    {
        Desk desk(makePhoto(60, 40));
        const QString path = desk.folder.filePath("photo.png");
        desk.click("btnMono");
        desk.withPanel(
            [&](QFileDialog& panel) {
                panel.setOption(QFileDialog::DontConfirmOverwrite);
                typeName(panel, path);
            },
            [&] { desk.click("btnSave"); });
        QCOMPARE(pixelsOf(desk.window.getoriginalImage()), makePhoto(60, 40));
        QCOMPARE(decoded(path), expected(desk));
        QVERIFY(desk.window.loadImageFromFile(QFile::encodeName(path)));
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
        desk.saveAs(desk.folder.filePath("large.jpg"));
        QCOMPARE(watch.steps, QStringList({"Fit", "Mono", "Border", "Encode"}));
        watch.steps.clear();
        desk.click("btnFlatten");
        QCOMPARE(watch.steps, QStringList({"Fit", "Mono", "Border", "Fit", "Border"})); // the photo, then its preview
        QVERIFY(!bar->isVisible());
        QCOMPARE(desk.looks(), std::vector<int>());
        QVERIFY(watch.entered > 3);
        QCOMPARE(desk.window.getoriginalImage().width(), 2600); // never turned
    }

    void aWindowThatIsClosedDuringWorkFinishesItFirst()
    {
        Desk desk;
        auto* bar = desk.find<QProgressBar>("progressBar");
        Watch watch(desk.window, *bar);
        watch.closes = true;
        QVERIFY(desk.window.loadImageFromFile(writePhoto(desk.folder, "large.png", makePhoto(2600, 1700))));
        QVERIFY(desk.window.isVisible());
        desk.click("btnMono");
        desk.window.flattenImage();
        QTRY_VERIFY(!desk.window.isVisible());
        QVERIFY(!desk.window.getoriginalImage().isNull());
    }

private:
    /// Whoever meddles while the progress is painted.
    class Watch : public QObject {
    public:
        Watch(MainWindowController& controller, QProgressBar& progress)
            : window(controller)
            , bar(progress)
        {
            bar.installEventFilter(this);
        }

        QStringList steps;
        int entered = 0;
        bool closes = false;

        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() != QEvent::Paint)
                return false;
            if (steps.isEmpty() || steps.last() != bar.format())
                steps << bar.format();
            entered++;
            if (closes)
                window.close();
            window.pressFilterButton(1);
            window.rotateImageRight();
            window.flattenImage();
            window.saveFilteredImage();
            window.loadImageButtonPressed();
            window.reExpose();
            return false;
        }

    private:
        MainWindowController& window;
        QProgressBar& bar;
    };
};

DESK_MAIN(DocumentTest)
#include "DocumentTest.moc"
