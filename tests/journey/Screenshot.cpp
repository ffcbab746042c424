// SPDX-License-Identifier: GPL-3.0-or-later
// Saves what a part of the display shows: journey_screenshot FILE X Y WIDTH HEIGHT

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <cstdio>

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 6) {
        std::fprintf(stderr, "journey_screenshot: give the file and the place and size of the part\n");
        return 2;
    }
    const QPixmap part = QGuiApplication::primaryScreen()->grabWindow(
        0, arguments[2].toInt(), arguments[3].toInt(), arguments[4].toInt(), arguments[5].toInt());
    return part.save(arguments[1]) ? 0 : 1;
}
