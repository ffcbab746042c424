// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/MainWindowController.h"

#include <QComboBox>
#include <QFileDialog>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <functional>
#include <vector>

class QMessageBox;

// What the tests of the window share: a desk with a home folder of its own, photos to work on, and hands.

/// The folder that stands for the user's configuration; the program of a test has one of its own.
QString configFolder();
/// The preferences file of the application.
QString preferencesFile();
/// Starts with these preferences; empty: as at the very first run.
void setPreferences(const QByteArray& ini);

/// A picture with all tones and colours, upright told from turned.
QImage makePhoto(int width, int height);
/// The pixels of a picture alone, to be compared.
QImage pixelsOf(QImage image);
/// Writes a picture to a folder; gives the path.
QByteArray writePhoto(const QTemporaryDir& folder, const char* name, const QImage& photo);
QByteArray contentsOf(const QByteArray& path);

/// A window on the screen.
class Desk {
public:
    explicit Desk(const QImage& photo = {});

    MainWindowController window;
    QTemporaryDir folder;

    template <class Widget> Widget* find(const char* name)
    {
        auto* widget = window.findChild<Widget*>(QLatin1String(name));
        if (!widget)
            qFatal("there is no %s", name);
        return widget;
    }

    void click(const char* button); ///< by the mouse
    void choose(const char* popUp, const char* item); ///< by the keyboard
    QString breadcrumb();
    std::vector<int> looks() const; ///< the applied list
    /// Which of the ten look buttons are shown as pressed.
    QStringList pressedButtons();
    /// Changes whenever something was rendered.
    qint64 render() const { return window.getFiltersAppliedImage().cacheKey(); }
    /// What the preview is compared with: the photo without looks, under the crop and border of the preview.
    QImage before() const;

    /// Calls `action` and answers the file panel that it opens.
    void withPanel(const std::function<void(QFileDialog&)>& answer, const std::function<void()>& action);
    /// Saves to a name typed into the panel.
    void saveAs(const QString& name);
    /// The texts of the sheet that is shown, title and message; empty without one.
    QStringList sheet();
    /// By its OK; false without one.
    bool closeSheet();

private:
    QMessageBox* visibleSheet();
};

/// Answers the questions that are asked while this lives.
class Answers {
public:
    explicit Answers(std::function<void(QMessageBox&)> answer);
    QStringList asked; ///< their texts, each of one question

private:
    QTimer m_watch;
};
/// An answer: presses the button of that text.
std::function<void(QMessageBox&)> button(const QString& text);

/// Types a name into a panel and confirms it.
void typeName(QFileDialog& panel, const QString& name);

/// What `action` prints to standard output.
QByteArray printedBy(const std::function<void()>& action);

/// Runs a test with a configuration folder of its own.
int runTest(int argc, char** argv, const std::function<QObject*()>& makeTest);

#define DESK_MAIN(Test)                                                                                                \
    int main(int argc, char** argv)                                                                                    \
    {                                                                                                                  \
        return runTest(argc, argv, [] { return new Test; });                                                           \
    }
