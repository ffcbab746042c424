#include "app/desktop/Appearance.h"
#include "app/desktop/SessionEnd.h"
#include "app/window/MainWindowController.h"

#include <QApplication>
#include <QIcon>
#include <cstring>
#include <utility>

/// lumora [--] [FILE]
int main(int argc, char** argv)
{
    // The bytes of the name as they are: it need not be text. The file is read while the window comes up.
    const int file = argc > 1 && std::strcmp(argv[1], "--") == 0 ? 2 : 1;
    auto reader = std::make_unique<PhotoReader>();
    if (argc > file)
        reader->begin(argv[file]);

    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Dovrel"));
    QApplication::setApplicationName(QStringLiteral("Lumora"));
    QApplication::setApplicationVersion(QStringLiteral("1.0"));
    QApplication::setDesktopFileName(QStringLiteral("dovrel.lumora"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/dovrel.lumora.png")));
    useDarkAppearance();

    MainWindowController controller(std::move(reader));
    const SessionEnd sessionEnd;
    if (argc > file)
        controller.openFileWhenShown(argv[file]);
    controller.show();
    return QApplication::exec();
}
