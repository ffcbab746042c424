// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/Appearance.h"
#include "app/desktop/SessionEnd.h"
#include "app/window/MainWindowController.h"

#include <QApplication>
#include <QIcon>
#include <algorithm>
#include <cstring>
#include <utility>

/// lumora [--] [FILE...]
int main(int argc, char** argv)
{
    // The bytes of the names as they are: they need not be text. The first file is read while the window comes up.
    const int first = argc > 1 && std::strcmp(argv[1], "--") == 0 ? 2 : 1;
    const QByteArrayList files(argv + std::min(first, argc), argv + argc);
    auto reader = std::make_unique<PhotoReader>();
    if (!files.isEmpty())
        reader->begin(files.first());

    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Dovrel"));
    QApplication::setApplicationName(QStringLiteral("Lumora"));
    QApplication::setApplicationVersion(QStringLiteral("1.0"));
    QApplication::setDesktopFileName(QStringLiteral("dovrel.lumora"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/dovrel.lumora.png")));
    useDarkAppearance();

    MainWindowController controller(std::move(reader));
    const SessionEnd sessionEnd;
    controller.openFilesWhenShown(files);
    controller.show();
    return QApplication::exec();
}
