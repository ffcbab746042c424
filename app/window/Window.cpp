// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/Language.h"
#include "app/desktop/MonitorColors.h"
#include "app/state/Rules.h"
#include "app/window/MainWindowController.h"
#include "image/CharImage.h"
#include "render/FramingChoice.h"
#include "render/FreedBlocks.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>
#include <cstdlib>
#include <ctime>
#include <utility>

using namespace lumora;

namespace {

constexpr int settleTime = 150; ///< milliseconds without a change of size after which a resize has ended

/// An item shows its choice in the language of the window; its data are the choice itself.
void fill(QComboBox& popUp, const QStringList& choices)
{
    popUp.clear();
    for (const QString& choice : choices)
        popUp.addItem(shownChoice(choice), choice);
    popUp.setCurrentIndex(0);
}

/// In the language of the window where it has one, and else in English.
QString helpDocument()
{
    const QString help = QCoreApplication::applicationDirPath() + QStringLiteral("/../share/lumora/help");
    const QString translated = QStringLiteral("%1_%2.pdf").arg(help, usedLanguage());
    return QFileInfo::exists(translated) ? translated : help + QStringLiteral(".pdf");
}

} // namespace

MainWindowController::MainWindowController(std::unique_ptr<PhotoReader> reader)
    : m_ui(std::make_unique<Ui::MainWindow>())
    , m_monitorColors(new MonitorColors(this))
    , m_reader(reader ? std::move(reader) : std::make_unique<PhotoReader>())
{
    awakeFromNib();
}

MainWindowController::~MainWindowController()
{
    // The focus leaves the controls while they go, and nobody may look at them any more.
    disconnect(qApp, nullptr, this, nullptr);
}

void MainWindowController::awakeFromNib()
{
    completeNibLoading();
    loadOptions();
    connectControls();
    beginHistory();
}

void MainWindowController::completeNibLoading()
{
    keepFreedBlocks();
    std::srand(unsigned(std::time(nullptr)));
    drawVariation(unsigned(std::rand()));

    m_ui->setupUi(this);
    windowDidLoad();
    setWindowTitle(tr("Lumora by Dovrel"));
    m_ui->filtersText->setText(QStringLiteral("Original"));

    QPalette colours = palette();
    colours.setColor(QPalette::Window, QColor::fromRgbF(0.2f, 0.2f, 0.2f, 1.0f));
    setPalette(colours);

    for (LookButton* button : {m_ui->btnOriginal, m_ui->btnHelga, m_ui->btnLolo, m_ui->btnCinema, m_ui->btn1962,
             m_ui->btn1974, m_ui->btnMono, m_ui->btnFishEye, m_ui->btnInstant, m_ui->btnMagazine}) {
        button->setFilter(buttonFilters[filterButtons.numThings]);
        filterButtons.add(button);
        button->setToolTip(
            tr("%1 (%2)", "a look and its key").arg(button->text(), shownNumber(filterButtons.numThings % 10)));
    }

    m_ui->filtersBox->addLooks(furtherLooks());

    fill(*m_ui->btnBorders, borderChoices());
    fill(*m_ui->btnCropping, cropChoices());
    fill(*m_ui->btnImgSize, sizeChoices());

    m_ui->mainImageView->setDelegate(this);
    connect(m_ui->mainImageView, &DragDropImageView::draggedOut, this, &MainWindowController::dragPhotoOut);
    connect(m_monitorColors, &MonitorColors::changed, this, &MainWindowController::showScreenColors);
    connectComparing();
    qApp->installEventFilter(this);
    buildMenus();
    showStrength(CharImage::wholeStrength);
    showAppliedFilters();
    showWhatCanBeDone();
    setAcceptDrops(true);
    m_ui->mainImageView->setFocus();
}

void MainWindowController::windowDidLoad()
{
    loadWindow();
    displayRes = displayResAtLoad(largerFrameSide());

    QSizePolicy policy = m_ui->progressBar->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_ui->progressBar->setSizePolicy(policy);
    m_ui->progressBar->hide();
    policy = m_ui->btnCancel->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_ui->btnCancel->setSizePolicy(policy);
    m_ui->btnCancel->hide();
    // Names of looks are Latin, and would stand where Latin begins.
    const Qt::AlignmentFlag begin = isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft,
                            end = isRightToLeft() ? Qt::AlignLeft : Qt::AlignRight;
    m_ui->filtersText->setAlignment(begin | Qt::AlignAbsolute | Qt::AlignVCenter);
    m_ui->noteText->setAlignment(end | Qt::AlignAbsolute | Qt::AlignVCenter);
    // What turns to the left stays on the left, whatever way people read.
    m_ui->turnLayout->setDirection(isRightToLeft() ? QBoxLayout::RightToLeft : QBoxLayout::LeftToRight);
    m_resizeSettles.setSingleShot(true);
    m_resizeSettles.setInterval(settleTime);
}

void MainWindowController::connectControls()
{
    using Self = MainWindowController;
    const auto press = [this](QAbstractButton* button, void (Self::*action)()) {
        connect(button, &QAbstractButton::clicked, this, action);
    };
    connect(m_ui->btnCancel, &QAbstractButton::clicked, this, [this] { m_reader->cancel(); });
    press(m_ui->btnLoad, &Self::loadImageButtonPressed);
    press(m_ui->btnSave, &Self::saveFilteredImage);
    press(m_ui->btnLeft, &Self::rotateImageLeft);
    press(m_ui->btnRight, &Self::rotateImageRight);
    press(m_ui->btnFlatten, &Self::flattenImage);
    press(m_ui->btnReExpose, &Self::reExpose);
    // A screen reader toggles what can be checked without clicking it.
    const auto toggle = [this](QAbstractButton* button, void (Self::*action)()) {
        connect(button, &QAbstractButton::toggled, this, action);
    };
    toggle(m_ui->btnOriginal, &Self::applyOriginalFilter);
    toggle(m_ui->btnHelga, &Self::applyHelgaFilter);
    toggle(m_ui->btnLolo, &Self::applyLoloFilter);
    toggle(m_ui->btnCinema, &Self::applyCinemaFilter);
    toggle(m_ui->btn1962, &Self::apply1962Filter);
    toggle(m_ui->btn1974, &Self::apply1974Filter);
    toggle(m_ui->btnMono, &Self::applyMonoFilter);
    toggle(m_ui->btnFishEye, &Self::applyFishEyeFilter);
    toggle(m_ui->btnInstant, &Self::applyInstantFilter);
    toggle(m_ui->btnMagazine, &Self::applyMagazineFilter);
    for (LookButton* button : m_ui->filtersBox->buttons().sliced(filterButtons.numThings))
        connect(button, &QAbstractButton::toggled, this, [this, button] { pressFilterButton(button->filter()); });
    toggle(m_ui->chkMultiFilter, &Self::multiFilterToggled);
    toggle(m_ui->chkRandomness, &Self::useRandomToggled);
    connectStrength();
    const auto choose = [this](QComboBox* popUp, const QString& step) {
        connect(popUp, &QComboBox::currentIndexChanged, this, [this, step] {
            settingChanged();
            addStep(step);
        });
    };
    choose(m_ui->btnBorders, tr("Border"));
    choose(m_ui->btnCropping, tr("Crop"));
    choose(m_ui->btnImgSize, tr("Size"));
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* lost) {
        if (lost)
            m_ui->mainImageView->setComparing(false);
    });
    connect(&m_resizeSettles, &QTimer::timeout, this, &Self::resizeSettled);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &Self::applicationWillTerminate);
}

void MainWindowController::updateThumbnailImages()
{
    if (m_photo.isNull() || m_photo.thumb().isNull())
        return;
    for (LookButton* button : m_ui->filtersBox->buttons())
        button->setIcon(QPixmap::fromImage(
            onScreen(filterNSImage(m_photo.thumb(), button->filter(), true), m_monitorColors->colors())));
}

/// The pictures are the same, and are seen through other colours of the screen.
void MainWindowController::showScreenColors()
{
    if (!m_work.mayBegin())
        return QTimer::singleShot(settleTime, this, &MainWindowController::showScreenColors);
    m_ui->mainImageView->setScreenColors(m_monitorColors->colors());
    updateThumbnailImages();
}

/// Of the window with its frame, in pixels of the screen.
int MainWindowController::largerFrameSide() const
{
    const QSizeF frame = QSizeF(frameGeometry().size()) * devicePixelRatioF();
    return qRound(qMax(frame.width(), frame.height()));
}

void MainWindowController::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    m_ui->filtersBox->fit();
    // The photo is copied anew when the size has settled, so that a drag at the window's edge stays fluid.
    if (largerFrameSide() > displayRes || thumbnailsAreOutgrown())
        m_resizeSettles.start();
}

/// A point is as many pixels as the screen has for it; and more where the strip shows more than the copy's 100 points.
qreal MainWindowController::thumbDensity() const
{
    return devicePixelRatioF() * qMax(m_ui->filtersBox->side() / 100.0, 1.0);
}

bool MainWindowController::thumbnailsAreOutgrown() const
{
    return !m_photo.isNull() && thumbDensity() > m_photo.thumbDensity();
}

void MainWindowController::resizeSettled()
{
    if (!m_work.mayBegin())
        return m_resizeSettles.start();
    const bool newThumbnails = thumbnailsAreOutgrown();
    windowDidResize();
    if (thumbnailsAreOutgrown())
        m_photo.setThumbDensity(thumbDensity());
    if (newThumbnails)
        updateThumbnailImages();
}

void MainWindowController::windowDidResize()
{
    if (largerFrameSide() <= displayRes)
        return;
    const Work work = renderOfPreview();
    if (!work)
        return m_resizeSettles.start();
    displayRes = displayResAfterResize(displayRes, largerFrameSide());
    if (m_photo.isNull())
        return;
    setoriginalImage(m_photo.original());
    applyMultipleFilters();
    m_history.refresh(shownNow());
}

void MainWindowController::paintEvent(QPaintEvent* event)
{
    QMainWindow::paintEvent(event);
    // Until now the desktop had not yet put its frame round the window.
    if (!std::exchange(m_wasPainted, true))
        displayRes = qMax(displayRes, displayResAtLoad(largerFrameSide()));
    if (!m_waitingFile.isEmpty())
        QMetaObject::invokeMethod(this, &MainWindowController::openWaitingFile, Qt::QueuedConnection);
}

void MainWindowController::openWaitingFile()
{
    if (m_wasPainted && m_work.mayBegin() && !m_waitingFile.isEmpty())
        loadImageFromFile(std::exchange(m_waitingFile, {}));
}

void MainWindowController::openHelp()
{
    const QFileInfo document(helpDocument());
    if (!document.exists() || !QDesktopServices::openUrl(QUrl::fromLocalFile(document.canonicalFilePath())))
        openModalSheetWithText(
            tr("The help cannot be shown."), tr("It stands at %1.").arg(document.absoluteFilePath()));
}

void MainWindowController::openAbout()
{
    openModalSheetWithText(tr("Lumora Mac, Version 1.0"), tr("Copyright © 2026 Dovrel"));
}

void MainWindowController::applicationWillTerminate() const
{
    saveWindow();
    saveOptions();
}
