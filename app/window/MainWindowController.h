// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/controls/KeyRepeat.h"
#include "app/desktop/PrivateFolder.h"
#include "app/preview/DragDropImageView.h"
#include "app/preview/FramedOriginal.h"
#include "app/state/DocumentSlots.h"
#include "app/state/History.h"
#include "app/state/LookList.h"
#include "app/state/Photo.h"
#include "app/state/PhotoWalk.h"
#include "app/state/WorkInProgress.h"
#include "core/GrowArray.h"
#include "image/FilterNumber.h"
#include "photo/PhotoReader.h"
#include "render/RenderPipeline.h"

#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <memory>
#include <optional>

class ChoiceMenu;
class MonitorColors;
class QAction;
class QContextMenuEvent;
class QFileDialog;
class QKeyEvent;
class QMenu;
class QToolButton;

namespace Ui {
class MainWindow;
}

/// The one controller: owns the window, the photo, the list of looks and the work in progress, and brings them
/// together. Its definitions are grouped by concern: Window.cpp, Menus.cpp, Options.cpp, AppliedFilters.cpp,
/// Strength.cpp, ActualSize.cpp, Comparing.cpp, FullScreen.cpp, Document.cpp, Undo.cpp, Panels.cpp, Keys.cpp and
/// Work.cpp. What needs no window stands in app/state.
class MainWindowController : public QMainWindow,
                             public DropDelegate,
                             public DocumentSlots,
                             private WorkDisplay,
                             private HistoryTarget {
    Q_OBJECT

public:
    /// With a reader that may have begun with the first photo.
    explicit MainWindowController(std::unique_ptr<PhotoReader> reader = nullptr);
    ~MainWindowController() override;

    // ---- Options ----
    int cropFilter = lumora::Filter::original; ///< filter number whose crop is applied
    int borderFilter = lumora::Filter::original; ///< filter number whose border is drawn
    bool doCropping = true; ///< off only between updateFromSettings and the render that it begins
    bool doBorders = true; ///< the same
    int strength = lumora::CharImage::wholeStrength; ///< of the looks together; every new list begins with the whole
    float currentCropRatio = 0; ///< for callers: nothing in the program reads or writes it
    int currentBorder = 0; ///< the same
    int imgOutputSize = -1; ///< longest side of the exported picture in pixels; -1: the photo's own
    bool doMultiFiltering = false; ///< follows the check box at each render and at each click on it
    void loadOptions();
    void saveOptions() const;
    /// Reads the options from their controls; every render begins with it.
    void updateFromSettings();

    // ---- Applied looks ----
    LookList filterIDs;
    void addAppliedFilter(int filter);
    void removeAppliedFilter(int filter);
    void toggleAppliedFilter(int filter);
    void removeAllFilters();
    void removeOtherFilters(int filter);
    /// One look in single mode, a stack of looks in multi mode; renders the preview.
    void pressFilterButton(int filter);
    void applyMultipleFilters();
    /// Renders the applied list on the display copy (`preview`) or on the full-size photo; null without a photo, and
    /// null with a `reason` where there is no memory for it.
    QImage saveMultipleFilters(bool preview, QString* reason = nullptr);
    void updateBreadcrumb();
    /// One render: reads the options, then crops, fits, filters and frames. Filter -1 applies the whole list.
    QImage filterNSImage(const QImage& image, int usingFilter, bool asThumbnail, QString* reason = nullptr);

    // ---- Document ----
    int displayRes = 800; ///< longest side of the display copy, in pixels of the screen
    const QImage& getoriginalImage() const { return m_photo.original(); }
    const QImage& getoriginalDisplay() const { return m_photo.display(); }
    const QImage& getoriginalThumb() const { return m_photo.thumb(); }
    const QImage& getFiltersAppliedImage() const { return m_filtersAppliedImage; }
    void setFiltersAppliedImage(const QImage& image) { m_filtersAppliedImage = image; }
    void setoriginalImage(const QImage& image);
    const QByteArray& currentFilePath() const { return m_photo.filePath; } ///< of the last loaded file, any bytes
    QByteArray currentFileName() const { return m_photo.fileName(); } ///< its last component
    /// True when the file of that path (any bytes) was taken as the new photo. Otherwise nothing changes, and a sheet
    /// says why where it was not cancelled. Returns when the file has been read; meanwhile the window lives, and of
    /// what people do only Esc, "Cancel" and closing the window count.
    bool loadImageFromFile(const QByteArray& path) override;
    /// The same as soon as the window has been painted and nothing is worked on; of several the last.
    void openFileWhenShown(const QByteArray& path) { m_waitingFile = path; }
    /// The first of them; from photo to photo one goes through them in their order.
    void openFilesWhenShown(const QByteArrayList& paths);
    /// Scales to the longer side `maxSide`, also upwards; gives the exact size before it was rounded to pixels.
    static QSizeF downsizeNSImage(QImage& image, int maxSide);
    /// A copy whose width is the picture's height and the other way round, with the picture turned about its middle;
    /// positive degrees turn counter-clockwise. It is meant for quarter turns: at other angles corners are cut off, and
    /// what the picture does not cover is white. Null where there is no memory for it.
    static QImage rotateNSImage(const QImage& image, float degrees);

    // ---- Window ----
    lumora::GrowArray<QToolButton*> filterButtons; ///< the ten look buttons in their order
    void updateThumbnailImages();
    void windowDidResize();
    /// A sheet with a title, a text and "OK". Both are plain text. There is one sheet at most: a new one replaces it.
    void openModalSheetWithText(const QString& text, const QString& auxText);

public slots:
    void applyOriginalFilter();
    void applyHelgaFilter() { pressFilterButton(lumora::Filter::helga); }
    void applyLoloFilter() { pressFilterButton(lumora::Filter::lolo); }
    void applyCinemaFilter() { pressFilterButton(lumora::Filter::cinema); }
    void applyMonoFilter() { pressFilterButton(lumora::Filter::mono); }
    void apply1962Filter() { pressFilterButton(lumora::Filter::look1962); }
    void apply1974Filter() { pressFilterButton(lumora::Filter::look1974); }
    /// The cross-process look, on purpose: the button kept its name when its look changed.
    void applyFishEyeFilter() { pressFilterButton(lumora::Filter::colorcross); }
    void applyInfraredFilter() { pressFilterButton(lumora::Filter::infrared); }
    void applyInstantFilter() { pressFilterButton(lumora::Filter::instant); }
    void applyMagazineFilter() { pressFilterButton(lumora::Filter::magazine); }
    void multiFilterToggled();
    void useRandomToggled();
    void reExpose();
    void settingChanged();
    void loadImageButtonPressed();
    void rotateImageRight() { rotateImage(-1); }
    void rotateImageLeft() { rotateImage(1); }
    void flattenImage();
    void saveFilteredImage();
    void saveManyPhotos(); ///< asks which and where to
    void copyPhoto(); ///< to the clipboard
    void paste();
    void undo(); ///< takes the last step back
    void redo();
    void openHelp();
    void openAbout();
    void applicationWillTerminate() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void awakeFromNib();
    void completeNibLoading();
    void windowDidLoad();
    void connectControls();
    void buildMenus();
    void buildEditMenu();
    void loadWindow();
    void saveWindow() const;
    /// The photo's own work, or the display copy's: small pictures are done before a progress bar could be read.
    static bool takesLong(const QImage& image);
    int stepsOfRender() const;
    /// Of the applied list, with the full-size picture of a close look. `moreLooks`: how many the list may get first.
    Work renderOfPreview(int moreLooks = 0);
    void showStep(const QString& name, double done, int steps) override;
    void workEnded(bool closeAsked) override;
    bool takesDrag(QEvent* event); ///< true: it was one
    bool takesKeyPress(QWidget* widget, const QKeyEvent& press); ///< true: `widget` must not see it
    bool takesEscape(); ///< false: there was nothing to end
    bool takesContextMenu(const QWidget* widget, const QContextMenuEvent& event); ///< true: it was answered
    bool takesKeyRelease(const QKeyEvent& release);
    void showAppliedFilters();
    RenderSettings renderSettings(); ///< of the applied list, after updateFromSettings()
    RenderProgress shownProgress();
    void connectComparing();
    void buildSplitEntry(QMenu& photo);
    void buildStrengthEntries(QMenu& looks);
    void connectStrength();
    void strengthChanged();
    void showStrength(int percent); ///< without a render
    void showMixed();
    /// What is written to a file.
    struct SavedPicture {
        QImage picture;
        QSizeF size; ///< before it was rounded to pixels
        int strength = lumora::CharImage::wholeStrength; ///< of its looks
    };
    QImage renderFullSize(QString* reason);
    SavedPicture inOutputSize(QImage render, QString* reason);
    SavedPicture savedPicture(QString* reason); ///< null with a reason where there is no memory for it
    QByteArray encoded(const QImage& picture) const; ///< as a JPEG with all that it keeps; empty where none holds it
    void letSavedPictureGo();
    bool showSavedPicture(const SavedPicture& saved, const QString& reason);
    bool renderActualSize();
    const QImage& fullSizeBefore();
    bool takeWholeLooks();
    void mixActualSize();
    void endMixing();
    void showFitted();
    void showZoom();
    void toggleActualSize(const QPointF& at); ///< in the coordinates of the preview
    void zoom(int steps, const QPointF& at); ///< larger where positive
    void buildZoomEntries(QMenu& menu);
    QPointF pointLookedAt() const;
    void buildFullScreenEntry(QMenu& menu);
    void showWhetherAlone();
    void buildPhotoMenu(const QList<QAction*>& entries); ///< null: a line between two groups
    void openPhotoMenu(const std::optional<QPoint>& at); ///< of the screen; none: in the middle of the photo
    void showWhatCanBeDone();
    void showSheet(const QString& text, const QString& auxText, Qt::WindowModality modality);
    void openWaitingFile();
    /// Renders the preview with the random numbers of the render before.
    void renderPreview();
    static qint64 roomForFormerPhotos(); ///< in bytes
    Shown shownNow() const;
    void setShown(const Shown& shown) override;
    bool turnPhoto(int quarterTurns) override;
    QImage exchangePhoto(const QImage& picture) override;
    /// An action that can be taken back ends with this.
    void addStep(const QString& name, const PhotoChange& change = {});
    void beginHistory();
    void drawVariation(unsigned seed);
    void travel(void (History::*step)());
    void showHistory();
    void showNote(const QString& line); ///< empty: nothing
    void setCurrentFile(const QByteArray& path);
    /// As loadImageFromFile, without a sheet: false with a `reason`, which stays empty where there is nothing to tell.
    bool openPhoto(const QByteArray& path, QString* reason);
    void takePhoto(const LoadedPhoto& photo, const QByteArray& path); ///< the looks stay on; no path: as Photo::name
    QString proposedName() const; ///< of a file of the photo
    void buildClipboardEntries(QMenu& edit);
    void showWhatCanBePasted();
    void takePastedPicture(QImage picture);
    QImage renderForDrag();
    QString fileForDrag(const QImage& picture); ///< its path; empty where there is none
    void dragPhotoOut();
    void buildRecentMenu(QMenu& file);
    void buildWalkEntries(QMenu& photo);
    void goFromPhoto(PhotoWalk::Direction direction);
    void rotateImage(int quarterTurns); ///< counter-clockwise where positive
    int largerFrameSide() const;
    /// In pixels to the point of the thumbnail copy, whose shorter side is 100 points.
    qreal thumbDensity() const;
    bool thumbnailsAreOutgrown() const; ///< they stand larger than their copy is
    void resizeSettled();
    void showScreenColors();
    LoadedPhoto readPhoto(const QByteArray& path);
    bool runPanel(QFileDialog& panel);
    QByteArray askWhereToSave(qint64 bytes);

    std::unique_ptr<Ui::MainWindow> m_ui;
    Choices m_choicesAtStart; ///< as the preferences had them
    ChoiceMenu* m_kept = nullptr; ///< in the order of Kept; owned by the menu
    ChoiceMenu* m_quality = nullptr; ///< in the order of JpegQuality; owned by the menu
    MonitorColors* m_monitorColors; ///< of the screen that the window stands on; owned by the window
    QList<QAction*> m_lookActions; ///< the Looks menu; each carries its filter number
    QList<QAction*> m_strengthActions; ///< of no use without a look
    QList<QAction*> m_photoActions; ///< the entries that are of no use without a photo
    QPointer<QWidget> m_sheet; ///< the one that is shown
    QAction *m_splitAction = nullptr, *m_actualSizeAction = nullptr,
            *m_fullScreenAction = nullptr; ///< owned by the menu
    QMenu* m_photoMenu = nullptr; ///< opens on the photo
    std::optional<QPointF> m_menuAt; ///< where it was opened by the mouse, in the preview; none while it is closed
    QMargins m_marginsOfPhoto; ///< of the window, when it is not on the whole screen
    QAction *m_undoAction = nullptr, *m_redoAction = nullptr, *m_copyAction = nullptr,
            *m_pasteAction = nullptr; ///< owned by the menu
    quint64 m_spacePressed = 0; ///< when the space bar went down, in the milliseconds of key events
    QTimer m_resizeSettles; ///< runs while the window is being resized beyond the display copy

    KeyRepeat m_keyRepeat;
    WorkInProgress m_work{*this};
    std::unique_ptr<PhotoReader> m_reader;
    Photo m_photo;
    PhotoWalk m_walk;
    PrivateFolder m_draggedFiles;
    FramedOriginal m_framedOriginal; ///< what the preview is compared with
    FramedOriginal m_framedFullSize; ///< the same for a close look
    History m_history{*this, &MainWindowController::roomForFormerPhotos};
    unsigned m_variation = 0; ///< the seed of the table that looks vary with
    unsigned m_renderSeed = 0; ///< of the random numbers that the preview drew while it was rendered
    QImage m_filtersAppliedImage; ///< the latest render
    std::unique_ptr<RenderedLooks> m_renderedLooks; ///< of the preview, once its strength was changed; else null
    SavedPicture m_shownSaved; ///< that of the close look; null without one
    QImage m_wholeLooks; ///< the same in whole strength, while the slider is dragged; else null
    QByteArray m_waitingFile; ///< to be opened when there is room for it; empty for none
    bool m_wasPainted = false;
    QString m_panelFolder; ///< of the photo, or where a panel was left since; also of a former run
};
