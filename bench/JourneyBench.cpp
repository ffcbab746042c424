// SPDX-License-Identifier: GPL-3.0-or-later
// Measures what a person waits for, with a photo of 24 megapixels, on a real display: journey_bench LUMORA FOLDER
//
// LUMORA is the program, FOLDER takes the photo. Opening is measured once, everything else a few times,
// of which the shortest is shown. Times are those of a clock on the wall unless they say that they are the processor's.

#include "app/preview/SplitLine.h"
#include "app/window/MainWindowController.h"
#include "bench/Measure.h"
#include "bench/Photo.h"
#include "bench/Start.h"
#include "image/CharImage.h"
#include "photo/PhotoLoader.h"
#include "photo/PhotoSaver.h"
#include "render/RenderPipeline.h"

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QColorSpace>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QLoggingCategory>
#include <QSlider>
#include <QTest>
#include <QThread>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>

using namespace lumora;

namespace {

constexpr int width = 6000, height = 4000, previewSide = 1200;
constexpr int rounds = 3, pressRounds = 30;

double leastOf(int times, const std::function<double()>& measure)
{
    double least = measure();
    for (int i = 1; i < times; i++)
        least = std::min(least, measure());
    return least;
}

bool writePhoto(const QString& path)
{
    const Picture photo = benchPhoto(width, height);
    return QImage(photo.pixels.data(), width, height, qsizetype(width) * 4, QImage::Format_RGBX8888)
        .save(path, "jpeg", 90);
}

void say(const QString& what, double value, const char* unit)
{
    std::printf("%-52s %9.1f %s\n", qPrintable(what), value, unit);
    std::fflush(stdout);
}

void add(Start& best, const Start& start)
{
    best.firstPaint = std::min(best.firstPaint, start.firstPaint);
    best.photo = std::min(best.photo, start.photo);
    best.peakMemory = std::max(best.peakMemory, start.peakMemory);
}

void measureStart(const QString& program, const QString& photo)
{
    constexpr double never = std::numeric_limits<double>::infinity();
    Start first{never, never, 0}, second = first;
    for (int i = 0; i < rounds; i++)
        add(first, watchStart(program, photo, [&] {
            QThread::sleep(1); // until the first window has made its thumbnails, too
            add(second, watchStart(program, photo));
        }));
    say("start to the window's first paint", first.firstPaint * 1e3, "ms");
    say("start to the photo on the screen", first.photo * 1e3, "ms");
    say("peak memory of the program with the photo open", first.peakMemory, "MiB");
    say("a second window's first paint", second.firstPaint * 1e3, "ms");
    say("its photo on the screen", second.photo * 1e3, "ms");
}

/// Paints what has changed, as the event loop would, and waits until the display has it.
void paint()
{
    QApplication::sendPostedEvents();
    QGuiApplication::sync();
}

/// A drag of the line across the whole photo, as fast as a screen can follow: the slowest of its steps.
void measureSplit(DragDropImageView& view, const QString& what)
{
    constexpr int steps = 120; // of two seconds
    view.setSplit(true);
    paint();
    const double slowest = leastOf(rounds, [&view] {
        double most = 0;
        for (int i = 0; i <= steps; i++)
            most = std::max(most, secondsOf([&view, i] {
                view.splitLine()->setValue(SplitLine::whole * i / steps);
                paint();
            }));
        return most;
    });
    view.setSplit(false);
    paint();
    say(what + QStringLiteral(", slowest step"), slowest * 1e3, "ms");
}

/// What a screen with a profile of its own adds to each new picture, and what the profile takes once.
void measureScreenColors(DragDropImageView& view)
{
    const QByteArray icc = QColorSpace(QColorSpace::DisplayP3).iccProfile();
    std::shared_ptr<const ScreenColors> colors;
    say(QStringLiteral("reading the profile of a screen"),
        1e3 * leastOf(rounds, [&] { return secondsOf([&] { colors = ScreenColors::of(icc); }); }), "ms");
    const QImage picture = view.image(), other = picture.mirrored();
    const auto newPicture = [&] {
        return leastOf(pressRounds, [&] {
            view.setImage(other);
            paint();
            return secondsOf([&] {
                view.setImage(picture);
                paint();
            });
        });
    };
    const double plain = newPicture();
    view.setScreenColors(colors);
    const double converted = newPicture();
    view.setScreenColors(nullptr);
    const QSize shown = (view.imageRect().size() * view.devicePixelRatioF()).toSize();
    say(QStringLiteral("the screen's colours of a press, %1 x %2").arg(shown.width()).arg(shown.height()),
        (converted - plain) * 1e3, "ms");
    const QImage whole = picture.convertToFormat(QImage::Format_RGB32);
    say(QStringLiteral("the same of all its pixels, %1 x %2").arg(whole.width()).arg(whole.height()),
        1e3 * leastOf(pressRounds, [&] { return secondsOf([&] { colors->shown(whole); }); }), "ms");
}

void measureWindow(const QByteArray& photo)
{
    MainWindowController window;
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) // nothing is painted before
        qFatal("the window does not appear");
    window.displayRes = previewSide;
    const double open = secondsOf([&] {
        if (!window.loadImageFromFile(photo))
            qFatal("the photo cannot be opened");
        paint();
    });
    const QSize size = window.getoriginalDisplay().size();
    say(QStringLiteral("open, to the painted window"), open * 1e3, "ms");

    double logs = 0;
    const GrowArray<int> looks = CharImage::getLooks();
    for (int i = 0; i < looks.numThings; i++) {
        const int look = looks.theArray[i];
        const double press = leastOf(pressRounds, [&] {
            window.applyOriginalFilter();
            paint();
            return secondsOf([&] {
                window.pressFilterButton(look);
                paint();
            });
        });
        logs += std::log(press);
        say(QStringLiteral("press to the painted preview, %1 x %2: %3")
                .arg(size.width())
                .arg(size.height())
                .arg(QLatin1String(CharImage::getFilterName(look))),
            press * 1e3, "ms");
    }
    say(QStringLiteral("geometric mean of the looks"), std::exp(logs / looks.numThings) * 1e3, "ms");
    const double undo = leastOf(pressRounds, [&] {
        window.applyOriginalFilter();
        window.pressFilterButton(CharImage::getFilterFromName("Helga"));
        window.pressFilterButton(CharImage::getFilterFromName("Mono"));
        paint();
        return secondsOf([&] {
            window.undo();
            paint();
        });
    });
    say(QStringLiteral("undo to the painted preview: Helga"), undo * 1e3, "ms");
    auto* strength = window.findChild<QSlider*>(QStringLiteral("sldStrength"));
    window.applyOriginalFilter();
    window.pressFilterButton(CharImage::getFilterFromName("Helga"));
    strength->setSliderDown(true);
    const double drag = leastOf(pressRounds, [&] {
        strength->setSliderPosition(strength->sliderPosition() == 40 ? 41 : 40);
        return secondsOf([&] {
            strength->setSliderPosition(60);
            paint();
        });
    });
    strength->setSliderDown(false);
    say(QStringLiteral("drag of the strength to the painted preview: Helga"), drag * 1e3, "ms");
    measureSplit(*window.findChild<DragDropImageView*>(), QStringLiteral("drag of the split to the painted preview"));
    measureScreenColors(*window.findChild<DragDropImageView*>());
    say(QStringLiteral("sixteen thumbnails, painted"),
        1e3
            * leastOf(pressRounds,
                [&] {
                    return secondsOf([&] {
                        window.updateThumbnailImages();
                        paint();
                    });
                }),
        "ms");
}

/// With a 24-megapixel photo: the full-size picture on the screen, beside its render alone.
void measureActualSize(const QByteArray& photo)
{
    forgetPeakMemory();
    MainWindowController window;
    window.show();
    if (!QTest::qWaitForWindowExposed(&window) || !window.loadImageFromFile(photo))
        qFatal("the photo cannot be opened");
    window.pressFilterButton(CharImage::getFilterFromName("Helga"));
    QAction* actualSize = nullptr;
    for (QAction* action : window.findChildren<QAction*>())
        if (action->shortcut() == QKeySequence(Qt::Key_Z))
            actualSize = action;
    if (!actualSize)
        qFatal("there is no such entry");
    const double shown = leastOf(rounds, [&] {
        const double seconds = secondsOf([&] {
            actualSize->trigger();
            paint();
        });
        actualSize->trigger(); // fitted again
        return seconds;
    });
    const double render = leastOf(rounds, [&] { return secondsOf([&] { window.saveMultipleFilters(false); }); });
    say(QStringLiteral("actual size to the painted window: Helga"), shown * 1e3, "ms");
    say(QStringLiteral("the same beyond its render alone"), (shown - render) * 1e3, "ms");

    window.applyMultipleFilters(); // which lets the full-size render go
    actualSize->trigger();
    auto* strength = window.findChild<QSlider*>(QStringLiteral("sldStrength"));
    window.flattenImage();
    window.undo();
    paint();
    say(QStringLiteral("peak memory: actual size, one flatten undone"), peakMemory(), "MiB");
    strength->setSliderDown(true);
    strength->setSliderPosition(60);
    const double drag = leastOf(rounds, [&] {
        strength->setSliderPosition(strength->sliderPosition() == 40 ? 41 : 40);
        return secondsOf([&] {
            strength->setSliderPosition(60);
            paint();
        });
    });
    say(QStringLiteral("drag of the strength at actual size: Helga"), drag * 1e3, "ms");
    say(QStringLiteral("peak memory with that"), peakMemory(), "MiB");
    strength->setSliderDown(false);
    measureSplit(*window.findChild<DragDropImageView*>(), QStringLiteral("drag of the split at actual size"));
    say(QStringLiteral("peak memory with all that"), peakMemory(), "MiB");
}

/// From file to file through the program's own steps, and through the codec alone.
void measureSaving(const QByteArray& photo)
{
    const QByteArray saved = photo + ".saved.jpg";
    double decode = 1e9, render = 1e9, encode = 1e9, total = 1e9;
    for (int i = 0; i < rounds; i++) {
        LoadedPhoto loaded;
        QImage picture;
        const double decoding = processorSecondsOf([&] { loaded = loadPhoto(photo); });
        const double rendering = processorSecondsOf(
            [&] { picture = renderPhoto(loaded.image, {.filter = CharImage::getFilterFromName("Helga")}); });
        const double encoding = processorSecondsOf([&] {
            QString reason;
            if (!writeFileAtomically(saved, encodeJpeg(picture, loaded.metadata), &reason))
                qFatal("%s", qPrintable(reason));
        });
        decode = std::min(decode, decoding);
        render = std::min(render, rendering);
        encode = std::min(encode, encoding);
        total = std::min(total, decoding + rendering + encoding);
    }
    say(QStringLiteral("load, processor time"), decode * 1e3, "ms");
    say(QStringLiteral("render with Helga, processor time"), render * 1e3, "ms");
    say(QStringLiteral("encode and write, processor time"), encode * 1e3, "ms");
    say(QStringLiteral("load, render, save: processor time"), total * 1e3, "ms");
    say(QStringLiteral("peak memory of all this"), peakMemory(), "MiB");

    const double codec = leastOf(rounds, [&] {
        return processorSecondsOf([&] {
            const QImage picture = QImageReader(QFile::decodeName(photo)).read();
            QBuffer buffer;
            buffer.open(QIODevice::WriteOnly);
            if (picture.isNull() || !QImageWriter(&buffer, "jpeg").write(picture))
                qFatal("the codec fails");
        });
    });
    say(QStringLiteral("decode and encode alone, processor time"), codec * 1e3, "ms");
    say(QStringLiteral("load, render, save to decode and encode alone"), total / codec, "times");
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 3) {
        std::fprintf(stderr, "journey_bench: give the program and a folder\n");
        return 2;
    }
    QLoggingCategory::setFilterRules(QStringLiteral("default.info=false"));
    const QString photo = arguments[2] + QStringLiteral("/photo.jpg");
    if (!writePhoto(photo)) {
        std::fprintf(stderr, "journey_bench: cannot write %s\n", qPrintable(photo));
        return 1;
    }
    measureStart(arguments[1], photo);
    stayOnOneCore();
    forgetPeakMemory();
    measureWindow(QFile::encodeName(photo));
    measureActualSize(QFile::encodeName(photo));
    measureSaving(QFile::encodeName(photo));
}
