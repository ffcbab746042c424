#include "app/MainWindowController.h"
#include "ui_MainWindow.h"

#include <QCloseEvent>
#include <QCoreApplication>

namespace {

constexpr qint64 largePhoto = 4'000'000; ///< pixels

} // namespace

bool MainWindowController::takesLong(const QImage& image)
{
    return qint64(image.width()) * image.height() > largePhoto;
}

int MainWindowController::stepsOfRender() const
{
    return filterIDs.numThings + 2; // fit, the looks, border
}

Work MainWindowController::renderOfPreview()
{
    return Work(m_work, stepsOfRender(), takesLong(m_photo.display()));
}

void MainWindowController::showStep(const QString& name, int done, int steps)
{
    if (!isVisible())
        return;
    m_ui->progressBar->setFormat(name);
    m_ui->progressBar->setMaximum(steps);
    m_ui->progressBar->setValue(done);
    m_ui->progressBar->show();
    m_ui->progressBar->repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void MainWindowController::workEnded(bool closeAsked)
{
    m_ui->progressBar->hide();
    if (closeAsked)
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
    else if (!m_waitingFile.isEmpty())
        QMetaObject::invokeMethod(this, &MainWindowController::openWaitingFile, Qt::QueuedConnection);
}

void MainWindowController::closeEvent(QCloseEvent* event)
{
    // Closed in the middle of work: it is finished first.
    event->setAccepted(m_work.mayClose());
}
