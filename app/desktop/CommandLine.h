// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayList>
#include <QString>
#include <optional>

/// What the program's arguments ask for. It is read before there is an application, so that it needs no display.
struct CommandLine {
    QByteArrayList files; ///< paths, byte for byte as they were named; file addresses as the paths that they are
    QByteArrayList toolkit; ///< options of Qt's own, such as the style, for the constructor of QApplication
    bool help = false, version = false;
    QString fault; ///< what is wrong with the arguments, of bytes as Latin-1; empty where nothing is
};

/// `arguments` come without the program's name.
CommandLine readCommandLine(const QByteArrayList& arguments);

/// Answers what needs no window: prints the fault to the standard error, or the help or the version to the standard
/// output. Gives the program's status; nothing where the window is asked for. There is no application yet.
std::optional<int> answerWithoutWindow(const CommandLine& line);
