// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/Appearance.h"
#include "app/desktop/CommandLine.h"
#include "app/desktop/DesktopContrast.h"
#include "app/desktop/Language.h"
#include "app/desktop/SessionEnd.h"
#include "app/window/MainWindowController.h"

#include <QApplication>
#include <QIcon>
#include <vector>

/// lumora [OPTION...] [--] [PHOTO...]
int main(int argc, char** argv)
{
    const CommandLine line = readCommandLine({argv + 1, argv + argc});
    if (const std::optional<int> status = answerWithoutWindow(line))
        return *status;
    // The first file is read while the window comes up.
    auto reader = std::make_unique<PhotoReader>();
    if (!line.files.isEmpty())
        reader->begin(line.files.first());

    // By its name, which is a part of WM_CLASS, desktops on X11 find the program that a window belongs to.
    QByteArrayList arguments = QByteArrayList({argv[0], "-name", LUMORA_ID}) + line.toolkit;
    std::vector<char*> words;
    for (QByteArray& argument : arguments)
        words.push_back(argument.data());
    int count = int(words.size());
    words.push_back(nullptr);
    QApplication application(count, words.data());
    QApplication::setOrganizationName(QStringLiteral("Dovrel"));
    QApplication::setApplicationName(QStringLiteral("Lumora"));
    QApplication::setApplicationVersion(QStringLiteral(LUMORA_VERSION));
    QApplication::setDesktopFileName(QStringLiteral(LUMORA_ID));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/" LUMORA_ID ".png")));
    useDarkAppearance();
    const DesktopContrast contrast;
    QObject::connect(&contrast, &DesktopContrast::changed, &application, useDarkAppearance);
    useLanguage(languageOfDesktop());

    MainWindowController controller(std::move(reader));
    const SessionEnd sessionEnd;
    controller.openFilesWhenShown(line.files);
    controller.show();
    return QApplication::exec();
}
