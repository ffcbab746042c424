// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/panels/SaveManyPanel.h"

#include "app/state/PhotoNames.h"
#include "app/state/Rules.h"
#include "photo/FreeMemory.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QGridLayout>
#include <QImageReader>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <algorithm>
#include <unistd.h>

namespace {

constexpr int pictureSide = 160; ///< points
constexpr qint64 memoryOfJob =
    600'000'000; ///< bytes: a photo of 24 megapixels that a look makes square, and its reader
constexpr int pictureTime = 300; ///< milliseconds that each small picture is shown at least

QString& chosenProgram()
{
    static QString program;
    return program;
}

QString renderProgram()
{
    return chosenProgram().isEmpty() ? QCoreApplication::applicationDirPath() + "/lumora-render" : chosenProgram();
}

/// As many as there are processors, and as the memory has room for large photos.
int jobsAtOnce()
{
    return int(std::clamp<qint64>(freeMemory() / memoryOfJob, 1, std::max(sysconf(_SC_NPROCESSORS_ONLN), 1L)));
}

QLabel* plainLabel(const QString& text = {})
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText); // names of files are no rich text
    label->setWordWrap(true);
    return label;
}

/// The picture of a file in a size of at most `side` pixels. A JPEG is decoded in a part of its size.
QImage smallPicture(const QString& path, int side)
{
    QImageReader reader(path, "jpeg");
    reader.setScaledSize(reader.size().scaled(side, side, Qt::KeepAspectRatio));
    return reader.read();
}

/// Minutes and seconds.
QString timeText(qint64 milliseconds)
{
    const qint64 seconds = (milliseconds + 999) / 1000;
    return QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

} // namespace

SaveManyPanel::SaveManyPanel(QWidget* parent, const ManyChoices& choices, const QString& words, Ask ask)
    : QDialog(parent)
    , m_choices(choices)
    , m_ask(std::move(ask))
    , m_photosText(plainLabel())
    , m_folderText(plainLabel(tr("No folder chosen")))
    , m_picture(new QLabel)
    , m_countText(plainLabel())
    , m_leftText(plainLabel())
    , m_photosButton(new QPushButton(tr("Choose &Photos…")))
    , m_folderOfPhotosButton(new QPushButton(tr("Choose a &Folder…")))
    , m_folderButton(new QPushButton(tr("Save &Into…")))
    , m_start(new QPushButton(tr("&Save Them")))
    , m_close(new QPushButton(tr("Cancel")))
    , m_bar(new QProgressBar)
    , m_remarks(new QListWidget)
{
    setWindowTitle(tr("Save Many"));
    setModal(true);
    m_picture->setFixedSize(pictureSide, pictureSide);
    m_picture->setAlignment(Qt::AlignCenter);
    m_picture->setAccessibleName(tr("The photo saved last"));
    m_picture->setAutoFillBackground(true);
    m_picture->setBackgroundRole(QPalette::Base);
    m_bar->setTextVisible(false);
    m_bar->setAccessibleName(tr("Photos done"));
    m_remarks->setAccessibleName(tr("Photos that were not saved, or are damaged"));
    m_remarks->setWordWrap(true);
    m_remarks->hide();

    auto* rows = new QGridLayout(this);
    rows->addWidget(new QLabel(tr("Photos")), 0, 0);
    rows->addWidget(m_photosText, 0, 1);
    rows->addWidget(m_photosButton, 0, 2);
    rows->addWidget(m_folderOfPhotosButton, 0, 3);
    rows->addWidget(new QLabel(tr("Choices")), 1, 0);
    rows->addWidget(plainLabel(words), 1, 1, 1, 3);
    rows->addWidget(new QLabel(tr("Into")), 2, 0);
    rows->addWidget(m_folderText, 2, 1, 1, 2);
    rows->addWidget(m_folderButton, 2, 3);
    auto* going = new QGridLayout;
    going->addWidget(m_picture, 0, 0, 4, 1);
    going->setRowStretch(0, 1);
    going->addWidget(m_countText, 1, 1);
    going->addWidget(m_bar, 2, 1);
    going->addWidget(m_leftText, 3, 1, Qt::AlignTop);
    going->setRowStretch(3, 1);
    going->setColumnStretch(1, 1);
    rows->addLayout(going, 3, 0, 1, 4);
    rows->addWidget(m_remarks, 4, 0, 1, 4);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_start);
    buttons->addWidget(m_close);
    rows->addLayout(buttons, 5, 0, 1, 4);
    rows->setColumnStretch(1, 1);
    setMinimumWidth(660); // the choices in one line, mostly

    m_start->setDefault(true);
    connect(m_photosButton, &QPushButton::clicked, this, [this] { choosePhotos(Asked::Photos); });
    connect(m_folderOfPhotosButton, &QPushButton::clicked, this, [this] { choosePhotos(Asked::FolderOfPhotos); });
    connect(m_folderButton, &QPushButton::clicked, this, &SaveManyPanel::chooseFolder);
    connect(m_start, &QPushButton::clicked, this, &SaveManyPanel::start);
    connect(m_close, &QPushButton::clicked, this, &SaveManyPanel::reject);
    m_pictureWaits.setSingleShot(true);
    connect(&m_pictureWaits, &QTimer::timeout, this, &SaveManyPanel::showNewest);
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &SaveManyPanel::showProgress);
    connect(&m_process, &QProcess::finished, this, &SaveManyPanel::showEnd);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            showEnd();
    });
    m_process.setStandardErrorFile(QProcess::nullDevice()); // the lines tell the same
    showPhotos();
}

SaveManyPanel::~SaveManyPanel()
{
    m_process.disconnect(this);
    m_process.kill();
    m_process.waitForFinished();
}

void SaveManyPanel::setProgram(const QString& path)
{
    chosenProgram() = path;
}

void SaveManyPanel::choosePhotos(Asked asked)
{
    const QStringList chosen = m_ask(*this, asked);
    if (chosen.isEmpty())
        return;
    m_photos.clear();
    if (asked == Asked::FolderOfPhotos)
        m_photos = photosIn(QFile::encodeName(chosen.first()));
    else
        for (const QString& photo : chosen)
            m_photos << QFile::encodeName(photo);
    showPhotos();
}

void SaveManyPanel::chooseFolder()
{
    const QStringList chosen = m_ask(*this, Asked::FolderToWrite);
    if (chosen.isEmpty())
        return;
    m_folder = chosen.first();
    m_folderText->setText(m_folder);
    showPhotos();
}

/// What has been chosen.
void SaveManyPanel::showPhotos()
{
    const int count = int(m_photos.size());
    m_photosText->setText(count == 0 ? tr("No photos chosen")
            : count == 1
            ? shownName(fileNameOf(m_photos.front()))
            : tr("%1 and others: %Ln photos", nullptr, count).arg(shownName(fileNameOf(m_photos.front()))));
    m_start->setEnabled(count > 0 && !m_folder.isEmpty());
}

void SaveManyPanel::letChoose(bool may)
{
    for (QPushButton* button : {m_photosButton, m_folderOfPhotosButton, m_folderButton, m_start})
        button->setEnabled(may);
}

void SaveManyPanel::start()
{
    m_run = ManyPhotos(int(m_photos.size()));
    m_isCancelled = false;
    m_remarks->clear();
    m_remarks->hide();
    m_bar->setRange(0, m_run.count());
    m_clock.start();
    letChoose(false);
    m_close->setText(tr("Cancel"));
    m_close->setFocus();
    m_process.start(renderProgram(), renderArguments(m_choices, m_folder, jobsAtOnce()));
    for (const QByteArray& photo : m_photos)
        m_process.write(photo + '\0');
    m_process.closeWriteChannel();
    showProgress();
}

void SaveManyPanel::showProgress()
{
    m_run.add(m_process.readAllStandardOutput());
    m_bar->setValue(m_run.done());
    m_countText->setText(tr("%1 of %2").arg(QLocale().toString(m_run.done()), QLocale().toString(m_run.count())));
    const qint64 left = m_run.timeLeft(m_clock.elapsed());
    m_leftText->setText(left < 0 ? QString() : tr("Time left: %1").arg(timeText(left)));
    for (qsizetype i = m_remarks->count(); i < m_run.remarks().size(); i++) {
        const ManyPhotos::Remark& remark = m_run.remarks()[i];
        m_remarks->addItem(tr("%1: %2").arg(shownName(fileNameOf(remark.file.toUtf8())), remark.words));
        m_remarks->show();
    }
    if (!m_pictureWaits.isActive())
        showNewest();
}

/// The picture that was written last; not each one, where they come faster than people see.
void SaveManyPanel::showNewest()
{
    if (m_run.newest() == m_shown)
        return;
    m_shown = m_run.newest();
    const qreal density = devicePixelRatioF();
    QImage picture = smallPicture(m_shown, int(pictureSide * density));
    picture.setDevicePixelRatio(density);
    m_picture->setPixmap(QPixmap::fromImage(picture));
    m_pictureWaits.start(pictureTime);
}

void SaveManyPanel::showEnd()
{
    showProgress();
    QStringList lines;
    if (m_process.error() == QProcess::FailedToStart)
        lines << tr("The program that renders photos cannot be started. Lumora is not completely installed.");
    else if (m_isCancelled)
        lines << tr("Cancelled. What was saved stays.");
    else if (m_run.done() < m_run.count())
        lines << tr("It ended before all photos were done.");
    lines << tr("Saved: %1").arg(QLocale().toString(m_run.saved()));
    if (m_run.there() > 0)
        lines << tr("Already there: %1").arg(QLocale().toString(m_run.there()));
    if (m_run.failed() > 0)
        lines << tr("Not saved: %1").arg(QLocale().toString(m_run.failed()));
    m_countText->setText(lines.join(u'\n'));
    m_leftText->clear();
    letChoose(true);
    m_close->setEnabled(true);
    m_close->setText(tr("Close"));
    m_close->setFocus();
}

void SaveManyPanel::reject()
{
    if (!isGoingOn())
        return QDialog::reject();
    m_isCancelled = true;
    m_close->setEnabled(false);
    m_process.terminate(); // it finishes what it is writing
}
