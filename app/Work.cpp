#include "app/MainWindowController.h"
#include "ui_MainWindow.h"

#include <QCloseEvent>
#include <QCoreApplication>

// Everything runs on the one thread: between two steps of long work the window paints itself, and nothing else begins.

namespace {

constexpr qint64 moment = 300; ///< milliseconds that nobody needs to be told about
constexpr qint64 largePhoto = 4'000'000; ///< pixels

} // namespace

MainWindowController::Work::Work(MainWindowController& owner, int steps, bool isLong)
    : controller(owner)
    , allowed(owner.mayBeEntered)
{
    if (!allowed || controller.workDepth++ > 0)
        return;
    controller.workTime.start();
    controller.workIsLong = isLong;
    controller.stepsDone = 0;
    controller.ui->progressBar->setMaximum(steps);
}

MainWindowController::Work::Work(MainWindowController& owner)
    : Work(owner, owner.stepsOfRender(), takesLong(owner.originalDisplay))
{
}

MainWindowController::Work::~Work()
{
    if (!allowed || --controller.workDepth > 0)
        return;
    controller.ui->progressBar->hide();
    if (std::exchange(controller.closeAfterWork, false))
        QMetaObject::invokeMethod(&controller, &QWidget::close, Qt::QueuedConnection);
}

bool MainWindowController::takesLong(const QImage& image)
{
    return qint64(image.width()) * image.height() > largePhoto;
}

int MainWindowController::stepsOfRender() const
{
    return filterIDs.numThings + 2; // fit, the looks, border
}

void MainWindowController::showStep(const QString& name)
{
    stepsDone++;
    if (workDepth == 0 || !isVisible() || (!workIsLong && workTime.elapsed() < moment))
        return;
    mayBeEntered = false; // the bar may paint at once
    ui->progressBar->setFormat(name);
    ui->progressBar->setMaximum(qMax(ui->progressBar->maximum(), stepsDone));
    ui->progressBar->setValue(stepsDone - 1);
    ui->progressBar->show();
    ui->progressBar->repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    mayBeEntered = true;
}

void MainWindowController::closeEvent(QCloseEvent* event)
{
    // Closed in the middle of work: it is finished first.
    closeAfterWork = workDepth > 0;
    event->setAccepted(!closeAfterWork);
}
