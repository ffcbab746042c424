// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/CommandLine.h"

#include "app/state/LocalFiles.h"
#include "photo/EscapedText.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QUrl>
#include <cstdio>

namespace {

constexpr int notPrinted = 1, wrongArguments = 2; ///< the program's status

/// Options of Qt and of its X11 platform that take a value, and those that take none. Qt itself reads them.
const char* const toolkitValues[] = {"platform", "platformpluginpath", "platformtheme", "plugin", "style", "stylesheet",
    "session", "qwindowgeometry", "geometry", "qwindowtitle", "title", "qwindowicon", "icon", "display", "name",
    "visual"};
const char* const toolkitSwitches[] = {"reverse", "widgetcount", "testability", "nograb", "dograb"};

QCommandLineOption toolkitOption(const char* name, const QString& value = {})
{
    QCommandLineOption option(QString::fromLatin1(name), {}, value);
    option.setFlags(QCommandLineOption::HiddenFromHelp);
    return option;
}

/// The parser takes text, and names are bytes: each byte becomes the character of its number, and back.
class Parser : public QCommandLineParser {
public:
    Parser()
    {
        // Qt's own options begin with one dash.
        setSingleDashWordOptionMode(ParseAsLongOptions);
        addOptions({{{"h", "help"}, QStringLiteral("Print this help.")},
            {{"v", "version"}, QStringLiteral("Print the version.")}});
        for (const char* name : toolkitValues)
            addOption(toolkitOption(name, QStringLiteral("value")));
        for (const char* name : toolkitSwitches)
            addOption(toolkitOption(name));
        setApplicationDescription(
            QStringLiteral("Gives one photo a look. Of several photos the first is opened; Page Down and Page "
                           "Up go through them.\nStatus: 2 if the arguments are wrong."));
        addPositionalArgument(QStringLiteral("PHOTO"),
            QStringLiteral("Files or file:// addresses; after -- also names that begin "
                           "with a dash."),
            QStringLiteral("[--] [PHOTO...]"));
    }
};

QByteArray pathOf(const QString& argument)
{
    const QByteArray bytes = argument.toLatin1();
    return bytes.startsWith("file://") ? localFile(QUrl::fromEncoded(bytes)) : bytes;
}

} // namespace

CommandLine readCommandLine(const QByteArrayList& arguments)
{
    Parser parser;
    QStringList texts = {QString()};
    for (const QByteArray& argument : arguments)
        texts << QString::fromLatin1(argument);
    CommandLine line;
    if (!parser.parse(texts))
        line.fault = parser.errorText();
    line.help = parser.isSet(QStringLiteral("help"));
    line.version = parser.isSet(QStringLiteral("version"));
    for (const char* name : toolkitValues)
        for (const QString& value : parser.values(QString::fromLatin1(name)))
            line.toolkit << '-' + QByteArray(name) << value.toLatin1();
    for (const char* name : toolkitSwitches)
        if (parser.isSet(QString::fromLatin1(name)))
            line.toolkit << '-' + QByteArray(name);
    for (const QString& argument : parser.positionalArguments())
        line.files << pathOf(argument);
    return line;
}

std::optional<int> answerWithoutWindow(const CommandLine& line)
{
    if (!line.fault.isEmpty()) {
        std::fprintf(stderr, "lumora: %s See lumora --help.\n", escaped(line.fault.toLatin1()).constData());
        return wrongArguments;
    }
    if (!line.help && !line.version)
        return {};
    // The parser asks it for the program's name.
    int count = 1;
    char name[] = "lumora";
    char* names[] = {name, nullptr};
    const QCoreApplication application(count, names);
    const QByteArray text = line.help ? Parser().helpText().toUtf8() : QByteArray("lumora " LUMORA_VERSION "\n");
    return std::fputs(text.constData(), stdout) < 0 || std::fflush(stdout) != 0 ? notPrinted : 0;
}
