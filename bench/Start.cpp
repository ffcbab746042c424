// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/Start.h"

#include "bench/Measure.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QThread>
#include <algorithm>

namespace {

constexpr int patience = 60'000; ///< milliseconds

QImage middleOfScreen()
{
    QScreen* screen = QGuiApplication::primaryScreen();
    const QPoint middle = screen->geometry().center();
    return screen->grabWindow(0, middle.x() - 32, middle.y() - 32, 64, 64).toImage();
}

/// The window is grey; only a photo brings colours.
bool isColourful(const QImage& picture)
{
    int colourful = 0;
    for (int y = 0; y < picture.height(); y++)
        for (int x = 0; x < picture.width(); x++) {
            const QRgb pixel = picture.pixel(x, y);
            const int channels[] = {qRed(pixel), qGreen(pixel), qBlue(pixel)};
            const auto [least, most] = std::minmax_element(std::begin(channels), std::end(channels));
            colourful += *most - *least > 15;
        }
    return colourful > picture.width() * picture.height() / 2;
}

double secondsUntil(const QElapsedTimer& clock, const char* what, const std::function<bool(const QImage&)>& isThere)
{
    while (!isThere(middleOfScreen())) {
        if (clock.elapsed() > patience)
            qFatal("waited in vain for %s", what);
        QThread::usleep(500);
    }
    return double(clock.nsecsElapsed()) * 1e-9;
}

} // namespace

Start watchStart(const QString& program, const QString& photo, const std::function<void()>& meanwhile)
{
    const QImage before = middleOfScreen();
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    QElapsedTimer clock;
    clock.start();
    process.start(program, {photo});
    Start start{};
    start.firstPaint = secondsUntil(clock, "the window", [&](const QImage& now) { return now != before; });
    start.photo = secondsUntil(clock, "the photo", isColourful);
    start.peakMemory = peakMemory(process.processId());
    if (meanwhile)
        meanwhile();
    process.terminate();
    process.waitForFinished();
    secondsUntil(clock, "the window to go", [&](const QImage& now) { return now == before; });
    return start;
}
