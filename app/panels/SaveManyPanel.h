// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/state/ManyPhotos.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QProcess>
#include <QTimer>
#include <functional>

class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;

/// Saves many photos by the same choices: asks for the photos and for a folder, shows how far it is, and what came of
/// it. The work is lumora-render's, in processes of its own, so that this one never waits and no photo can harm it.
/// Nothing that stands in the folder is replaced.
class SaveManyPanel : public QDialog {
    Q_OBJECT

public:
    /// What a file panel is for.
    enum class Asked { Photos, FolderOfPhotos, FolderToWrite };
    /// Asks for them; empty where nothing is chosen.
    using Ask = std::function<QStringList(QWidget& parent, Asked asked)>;

    /// `words` tells people the choices in a line.
    SaveManyPanel(QWidget* parent, const ManyChoices& choices, const QString& words, Ask ask);
    /// Ends what is going on; what is written stays.
    ~SaveManyPanel() override;

    bool isGoingOn() const { return m_process.state() != QProcess::NotRunning; }
    /// Cancels what is going on, and closes the panel where nothing is.
    void reject() override;

    /// The program that renders, in place of the one that belongs to this program; for tests.
    static void setProgram(const QString& path);

private:
    void choosePhotos(Asked asked);
    void chooseFolder();
    void start();
    void showPhotos();
    void letChoose(bool may);
    void showProgress();
    void showNewest();
    void showEnd();

    const ManyChoices m_choices;
    const Ask m_ask;
    QByteArrayList m_photos; ///< their paths
    QString m_folder;
    ManyPhotos m_run;
    QElapsedTimer m_clock; ///< since the run began
    QTimer m_pictureWaits; ///< runs while the next picture is not shown yet
    QString m_shown; ///< the picture that is
    bool m_isCancelled = false;
    QProcess m_process;

    // Owned by the panel.
    QLabel *m_photosText, *m_folderText, *m_picture, *m_countText, *m_leftText;
    QPushButton *m_photosButton, *m_folderOfPhotosButton, *m_folderButton, *m_start, *m_close;
    QProgressBar* m_bar;
    QListWidget* m_remarks;
};
