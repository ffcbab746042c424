// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/panels/CancelOnly.h"
#include "app/window/MainWindowController.h"
#include "ui_MainWindow.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>

namespace {

constexpr qint64 largePhoto = 4'000'000; ///< pixels
constexpr int progressInterval = 100; ///< milliseconds
constexpr int partsOfStep = 100; ///< on the progress bar

} // namespace

bool MainWindowController::takesLong(const QImage& image)
{
    return qint64(image.width()) * image.height() > largePhoto;
}

int MainWindowController::stepsOfRender() const
{
    return filterIDs.numThings + 2; // fit, the looks, border
}

Work MainWindowController::renderOfPreview(int moreLooks)
{
    const bool alsoFullSize = m_ui->mainImageView->closeup().isOn();
    const int steps = stepsOfRender() + moreLooks;
    return Work(
        m_work, alsoFullSize ? 2 * steps : steps, takesLong(alsoFullSize ? m_photo.original() : m_photo.display()));
}

void MainWindowController::showStep(const QString& name, double done, int steps)
{
    if (!isVisible())
        return;
    m_ui->btnCancel->setVisible(m_reader->descriptor() >= 0);
    m_ui->progressBar->setFormat(name);
    m_ui->progressBar->setMaximum(steps * partsOfStep);
    m_ui->progressBar->setValue(int(done * partsOfStep));
    m_ui->progressBar->show();
    m_ui->progressBar->repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void MainWindowController::workEnded(bool closeAsked)
{
    m_ui->progressBar->hide();
    m_ui->btnCancel->hide();
    if (closeAsked)
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
    else if (!m_waitingFile.isEmpty())
        QMetaObject::invokeMethod(this, &MainWindowController::openWaitingFile, Qt::QueuedConnection);
}

/// Reads the photo of that path, unless the reader has begun with it already. Meanwhile the window lives.
LoadedPhoto MainWindowController::readPhoto(const QByteArray& path)
{
    if (path.isEmpty() || m_reader->path() != path) // which is empty where nothing was begun
        m_reader->begin(path);
    m_work.beginStep(tr("Decode"));
    if (m_reader->isDone())
        return m_reader->take();
    const WorkWaits waits(m_work);
    const CancelOnly cancelOnly(*m_ui->btnCancel, [this] { m_reader->cancel(); });
    const QSocketNotifier answer(m_reader->descriptor(), QSocketNotifier::Read); // ends a wait for events
    QTimer progress;
    connect(&progress, &QTimer::timeout, this, [this] { m_work.stepGoesOn(); });
    progress.start(progressInterval);
    while (!m_reader->isDone())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    return m_reader->take();
}

void MainWindowController::closeEvent(QCloseEvent* event)
{
    // Closed in the middle of work: it is finished first. A photo that nobody will see is not waited for.
    m_reader->cancel();
    event->setAccepted(m_work.mayClose());
}
