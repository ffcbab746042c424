// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/controls/ChoiceMenu.h"
#include "app/panels/PlainText.h"
#include "app/panels/SaveManyPanel.h"
#include "app/panels/SavePanel.h"
#include "app/state/PhotoNames.h"
#include "app/state/Rules.h"
#include "app/window/MainWindowController.h"
#include "ui_MainWindow.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QSettings>
#include <QStandardPaths>
#include <optional>

namespace {

/// While this lives, settings are written nowhere, or to the user's configuration; afterwards the other way round. The
/// platform's own panel would write its history there when it goes. While it is up, the program may be quit, which
/// saves the choices.
class SettingsAreWritten {
public:
    explicit SettingsAreWritten(bool written)
        : m_written(written)
    {
        set(m_written);
    }
    ~SettingsAreWritten() { set(!m_written); }
    SettingsAreWritten(const SettingsAreWritten&) = delete;
    SettingsAreWritten& operator=(const SettingsAreWritten&) = delete;

private:
    static void set(bool written)
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
            written ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
                    : QStringLiteral("/dev/null"));
    }
    const bool m_written;
};

/// Whatever opens, by the names that such files have.
QString allPhotos()
{
    return MainWindowController::tr("All photos (%1)")
        .arg(QStringLiteral("*.") + photoEndings().join(QStringLiteral(" *.")));
}

/// What both panels share: the six types, and the folder where the last one was left.
void prepare(QFileDialog& panel, const QString& folder)
{
    panel.setNameFilter(
        MainWindowController::tr("Photos (%1)").arg(QStringLiteral("*.jpg *.jpeg *.gif *.png *.psd *.tga")));
    if (!folder.isEmpty() && QFileInfo(folder).isDir())
        panel.setDirectory(folder);
}

} // namespace

/// Runs a file panel; true when it was confirmed.
bool MainWindowController::runPanel(QFileDialog& panel)
{
    m_ui->progressBar->hide(); // nothing is worked on while the panel waits
    const WorkWaits waits(m_work);
    const SettingsAreWritten meanwhile(true);
    const bool confirmed = panel.exec() == QDialog::Accepted && !panel.selectedFiles().isEmpty();
    activateWindow(); // where a question went with the panel, some desktops give the keys to nobody
    const QFileInfo chosen(confirmed ? panel.selectedFiles().first() : QString());
    if (confirmed)
        m_panelFolder = chosen.isDir() ? chosen.absoluteFilePath() : chosen.absolutePath();
    return confirmed;
}

void MainWindowController::loadImageButtonPressed()
{
    if (!m_work.mayBegin())
        return;
    QStringList chosen;
    {
        const SettingsAreWritten noHistory(false);
        QFileDialog panel(this, tr("Select a file to open"));
        panel.setFileMode(QFileDialog::ExistingFile);
        panel.setWindowOpacity(0.95);
        prepare(panel, m_panelFolder);
        panel.setNameFilters(panel.nameFilters() << allPhotos());
        if (runPanel(panel))
            chosen = panel.selectedFiles();
    }
    for (const QString& file : chosen)
        loadImageFromFile(QFile::encodeName(file));
}

/// The panel takes quotation marks for those round each of several names. What it shows is what is written, as that is
/// what it asks about: a name that cannot be shown is not taken back.
QString MainWindowController::proposedName() const
{
    return shownName(m_photo.fileName()).replace(u'"', u'\'');
}

/// Asks for the path of a JPEG of so many bytes; empty when the panel was cancelled.
QByteArray MainWindowController::askWhereToSave(qint64 bytes)
{
    const SettingsAreWritten noHistory(false);
    SavePanel panel(this, bytes, m_photo.filePath, filterIDs);
    prepare(panel, m_panelFolder);
    panel.selectFile(proposedName()); // after the types, which would change the name's extension to theirs
    return runPanel(panel) ? QFile::encodeName(panel.path()) : QByteArray();
}

void MainWindowController::saveManyPhotos()
{
    const Work work(m_work, 1, false);
    if (!work)
        return;
    const RenderSettings settings = renderSettings();
    const bool isVaried = m_ui->chkRandomness->isChecked();
    const ManyChoices choices = {filterIDs, settings.strength, m_ui->btnCropping->currentData().toString(),
        m_ui->btnBorders->currentData().toString(), m_ui->btnImgSize->currentData().toString(),
        isVaried ? std::optional(m_variation) : std::nullopt, Kept(m_kept->chosen()), JpegQuality(m_quality->chosen())};
    const auto ask = [this](QWidget& parent, SaveManyPanel::Asked asked) {
        using Asked = SaveManyPanel::Asked;
        const SettingsAreWritten noHistory(false);
        QFileDialog panel(&parent,
            asked == Asked::Photos               ? tr("Select the photos")
                : asked == Asked::FolderOfPhotos ? tr("Select a folder with photos")
                                                 : tr("Select the folder to save into"));
        panel.setFileMode(asked == Asked::Photos ? QFileDialog::ExistingFiles : QFileDialog::Directory);
        prepare(panel, m_panelFolder);
        panel.setNameFilter(allPhotos());
        const QStringList chosen = runPanel(panel) ? panel.selectedFiles() : QStringList();
        parent.activateWindow();
        return chosen;
    };
    const QString words =
        tr("%1 · Strength: %2 % · Crop: %3 · Border: %4 · Size: %5 · Quality: %6")
            .arg(breadcrumb(filterIDs, false), shownNumber(choices.strength), m_ui->btnCropping->currentText(),
                m_ui->btnBorders->currentText(), m_ui->btnImgSize->currentText(), m_quality->chosenText());
    SaveManyPanel panel(this, choices, words, ask);
    const WorkWaits waits(m_work);
    panel.exec();
    activateWindow();
}

void MainWindowController::openModalSheetWithText(const QString& text, const QString& auxText)
{
    showSheet(text, auxText, Qt::WindowModal);
}

void MainWindowController::showSheet(const QString& text, const QString& auxText, Qt::WindowModality modality)
{
    if (m_sheet)
        m_sheet->close();
    auto* sheet = new QMessageBox(QMessageBox::NoIcon, QStringLiteral("Lumora"), text, QMessageBox::Ok, this);
    sheet->setInformativeText(auxText);
    showPlainText(*sheet);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->setWindowModality(modality);
    sheet->setAcceptDrops(true);
    sheet->show();
    m_sheet = sheet;
}
