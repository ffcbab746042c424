#pragma once

#include "app/DragDropImageView.h"
#include "core/GrowArray.h"

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>
#include <memory>

class QAction;
class QToolButton;

namespace Ui {
class MainWindow;
}

/// The one controller: owns the window and everything of the document. Its definitions are grouped by concern: Window.cpp,
/// Menus.cpp, Options.cpp, AppliedFilters.cpp, Document.cpp and Progress.cpp.
class MainWindowController : public QMainWindow, public DropDelegate {
    Q_OBJECT

public:
    MainWindowController();
    ~MainWindowController() override;

    // ---- Options ----
    int cropFilter = 14; ///< filter number whose crop is applied; 14: none
    int borderFilter = 14; ///< filter number whose border is drawn; 14: none
    int imgOutputSize = -1; ///< longest side of the exported picture in pixels; -1: the photo's own
    bool doMultiFiltering = false; ///< follows the check box at each render and at each click on it
    bool doCropping = false, doBorders = false; ///< off while the options are read, on for every render
    void loadOptions();
    void saveOptions() const;
    void updateFromSettings();

    // ---- Applied looks ----
    GrowArray<int> filterIDs; ///< distinct filter numbers in the order in which they were switched on
    void addAppliedFilter(int filter);
    void removeAppliedFilter(int filter);
    void toggleAppliedFilter(int filter);
    void removeAllFilters();
    void removeOtherFilters(int filter);
    void pressFilterButton(int filter);
    void applyMultipleFilters();
    /// Renders the applied list on the display copy (`preview`) or on the full-size photo; null without a photo.
    QImage saveMultipleFilters(bool preview);
    void updateBreadcrumb();

    // ---- Document ----
    int displayRes = 800; ///< longest side of the display copy, in pixels of the screen
    const QImage& getoriginalImage() const { return originalImage; }
    const QImage& displayCopy() const { return originalDisplay; }
    const QImage& thumbnailCopy() const { return originalThumb; }
    const QImage& getFiltersAppliedImage() const { return filtersAppliedImage; }
    void setFiltersAppliedImage(const QImage& image) { filtersAppliedImage = image; }
    void setoriginalImage(const QImage& image);
    bool loadImageFromFile(const QByteArray& path) override;
    /// A file handed over by the desktop; a sheet names the reason when it is refused.
    bool openFile(const QByteArray& path);
    static void downsizeNSImage(QImage& image, int maxSide);
    /// A copy turned by quarter turns; positive degrees turn counter-clockwise.
    static QImage rotateNSImage(const QImage& image, float degrees);

    /// One render: reads the options, then crops, fits, filters and frames. Filter -1 applies the whole list.
    QImage filterNSImage(const QImage& image, int usingFilter, bool asThumbnail);
    void updateThumbnailImages();

    // ---- Window ----
    GrowArray<QToolButton*> filterButtons; ///< the ten look buttons in their order
    void openModalSheet(const QString& text, const QString& auxText);
    void windowDidResize();

public slots:
    void applyOriginalFilter();
    void applyHelgaFilter();
    void applyLoloFilter();
    void applyCinemaFilter();
    void applyMonoFilter();
    void apply1962Filter();
    void apply1974Filter();
    void applyFishEyeFilter();
    void applyInfraredFilter();
    void applyInstantFilter();
    void applyMagazineFilter();
    void multiFilterToggled();
    void useRandomToggled();
    void reExpose();
    void settingChanged();
    void loadImageButtonPressed();
    void rotateImageRight();
    void rotateImageLeft();
    void flattenImage();
    void saveFilteredImage();
    void openHelp();
    void openAbout();
    void applicationWillTerminate() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    /// Work on the photo: shows its steps when it takes long, and keeps a second one from starting inside it.
    class Work {
    public:
        Work(MainWindowController& controller, bool isLong);
        ~Work();
        bool mayRun() const { return outermost || nested; }
        void step(const QString& name);

    private:
        MainWindowController& controller;
        bool outermost, nested;
    };

    void awakeFromNib();
    void completeNibLoading();
    void windowDidLoad();
    void connectControls();
    void buildMenus();
    void showAppliedFilters();
    int largerFrameSide() const;
    bool photoIsLarge() const;
    void showStep(const QString& name);
    bool letDialogChoose(class QFileDialog& dialog);
    void setDocumentPath(const QByteArray& path);

    std::unique_ptr<Ui::MainWindow> ui;
    QList<QAction*> lookActions; ///< the Looks menu; each carries its filter number
    QTimer resizeSettles;

    QImage originalImage; ///< the photo at full size
    QImage originalDisplay; ///< its display copy
    QImage originalThumb; ///< its thumbnail copy
    QImage filtersAppliedImage; ///< the latest render
    QByteArray currentFilePath; ///< of the last loaded file
    QByteArray currentFileName; ///< its last component, the name offered when saving
    QString refusal; ///< why the last load failed
    QString panelFolder; ///< where a panel was last left

    int workDepth = 0;
    bool workIsLong = false, workAcceptsSteps = false;
    QElapsedTimer workTime;
};
