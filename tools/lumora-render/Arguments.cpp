// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/lumora-render/Arguments.h"

#include "image/CharImage.h"
#include "photo/EscapedText.h"
#include "render/Export.h"
#include "render/FramingChoice.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <algorithm>
#include <cstdio>
#include <optional>

using namespace lumora;

namespace {

constexpr int mostJobs = 1024, longestSide = 65500;

/// The parser takes text, and names are bytes: each byte becomes the character of its number, and back.
QString textOf(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes);
}

/// The names of all looks; the first one stands for none.
QStringList lookNames()
{
    QStringList names = {QString::fromUtf8(CharImage::getFilterName(Filter::original))};
    const GrowArray<int> looks = CharImage::getLooks();
    for (int i = 0; i < looks.numThings; i++)
        names << QString::fromUtf8(CharImage::getFilterName(looks.theArray[i]));
    return names;
}

QByteArray listText()
{
    QString text;
    const auto add = [&text](const QString& title, const QStringList& names) {
        text += title + ":\n  " + names.join("\n  ") + '\n';
    };
    add("Looks", lookNames());
    add("Crops", cropChoices());
    add("Borders", borderChoices());
    return text.toUtf8();
}

const QCommandLineOption look(
    "look", "A look; several make a stack, in their order. Capital letters do not matter.", "NAME"),
    list("list", "Print the names of looks, crops and borders."),
    strength("strength", "How much of the looks is seen, 0 to 100 per cent.", "PERCENT", "100"),
    crop("crop", "A crop; By Filter is that of the last look.", "NAME", "By Filter"),
    border("border", "A border; By Filter is that of the last look.", "NAME", "By Filter"),
    size("size", "The longer side in pixels, also when that enlarges; Original keeps the picture's own.", "PIXELS",
        "Original"),
    random("random",
        "Vary the looks; the same number gives the same bytes. Without it looks have their fixed settings.", "SEED"),
    quality("quality", "How much of the picture a JPEG holds: standard, high, best.", "LEVEL", "standard"),
    metadata("metadata", "What the photo carried that goes along: all, no-place (not where it was taken), none.",
        "KEPT", "all"),
    png("png", "Write lossless PNG files, which carry no metadata."),
    output("output", "The folder for the outputs, or the file for one; - is the standard output.", "PLACE"),
    replace("replace", "Replace files that stand where the outputs go; never a photo that is rendered."),
    skipExisting("skip-existing", "Leave out photos whose output is there already: goes on where a run has stopped."),
    filesFrom("files-from", "Take the photos from a list, one a line; - is the standard input.", "LIST"),
    null({"0", "null"}, "Names in the list end with a NUL byte, not with their line."),
    jobs("jobs", "Render so many photos at once, each in a process of its own.", "N", "1"),
    json("json", "Print a line of JSON for each photo to the standard output."),
    help({"h", "help"}, "Print this help."), version("version", "Print the version.");

/// Reads the arguments one after another; the first fault stands.
class Reading {
public:
    explicit Reading(const std::vector<QByteArray>& arguments)
    {
        m_parser.setApplicationDescription(QStringLiteral(
            "Renders photos as Lumora's window does, each into a file \"PHOTO LOOK.jpg\". A PHOTO of - is the standard "
            "input.\nStatus: 0 all went well, 1 some photo did not, 2 the arguments are wrong."));
        m_parser.addOptions({look, strength, crop, border, size, random, quality, metadata, png, output, replace,
            skipExisting, filesFrom, null, jobs, json, list, help, version});
        m_parser.addPositionalArgument(QStringLiteral("PHOTO..."), QStringLiteral("The photos."));
        QStringList texts = {QString()};
        for (const QByteArray& argument : arguments)
            texts << textOf(argument);
        if (!m_parser.parse(texts))
            refuse(m_parser.errorText());
    }

    Command command()
    {
        if (m_parser.isSet(help))
            m_command.text = m_parser.helpText().toUtf8();
        else if (m_parser.isSet(version))
            m_command.text = "lumora-render " LUMORA_VERSION "\n";
        else if (m_parser.isSet(list))
            m_command.text = listText();
        else
            readAll();
        return m_command;
    }

private:
    void refuse(const QString& fault)
    {
        if (m_command.fault.isEmpty())
            m_command.fault = escaped(fault.toLatin1());
    }

    /// The one of `names` that the option names; nothing, which is a fault, where there is none.
    QString named(const QCommandLineOption& option, const QString& value, const QStringList& names)
    {
        for (const QString& name : names)
            if (name.compare(value, Qt::CaseInsensitive) == 0)
                return name;
        refuse(QStringLiteral("--%1 %2: there is none of that name. There are: %3.")
                   .arg(option.names().last(), value, names.join(QStringLiteral(", "))));
        return {};
    }

    /// The place of the option's value among `levels`; 0, which is a fault, for any other value.
    int level(const QCommandLineOption& option, const QStringList& levels)
    {
        return int(std::max<qsizetype>(levels.indexOf(named(option, m_parser.value(option), levels)), 0));
    }

    qint64 number(const QCommandLineOption& option, qint64 least, qint64 most)
    {
        bool isNumber = false;
        const qint64 value = m_parser.value(option).toLongLong(&isNumber);
        if (!isNumber || value < least || value > most)
            refuse(
                QStringLiteral("--%1 %2: it takes a whole number from %3 to %4.")
                    .arg(option.names().last(), m_parser.value(option), QString::number(least), QString::number(most)));
        return value;
    }

    void readLooks()
    {
        for (const QString& value : m_parser.values(look)) {
            const int filter = CharImage::getFilterFromName(named(look, value, lookNames()).toUtf8().constData());
            if (m_command.order.looks.find(filter) >= 0)
                refuse(QStringLiteral("--look %1: a stack has each look once.").arg(value));
            else if (filter != Filter::original)
                m_command.order.looks.add(filter);
        }
    }

    void readOrder()
    {
        Order& order = m_command.order;
        readLooks();
        order.strength = int(number(strength, 0, CharImage::wholeStrength));
        order.crop = chosenFilter(named(crop, m_parser.value(crop), cropChoices()), order.looks);
        order.border = chosenFilter(named(border, m_parser.value(border), borderChoices()), order.looks);
        if (m_parser.value(size).compare(QLatin1String("Original"), Qt::CaseInsensitive) != 0)
            order.size = int(number(size, 1, longestSide));
        if (m_parser.isSet(random))
            order.seed = unsigned(number(random, 0, 0xffffffff));
        order.kept = Kept(level(metadata, keptNames()));
        order.quality = JpegQuality(level(quality, qualityNames()));
        order.lossless = m_parser.isSet(png);
        order.mayReplace = m_parser.isSet(replace);
    }

    void readList()
    {
        const QByteArray name = m_parser.value(filesFrom).toLatin1();
        QFile file(QFile::decodeName(name));
        const bool isOpen = name == "-" ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
        if (!isOpen)
            return refuse(QStringLiteral("--files-from %1: the list cannot be read.").arg(textOf(name)));
        for (const QByteArray& photo : file.readAll().split(m_parser.isSet(null) ? '\0' : '\n'))
            if (!photo.isEmpty())
                m_command.photos.push_back(photo);
    }

    void readPhotos()
    {
        for (const QString& photo : m_parser.positionalArguments())
            m_command.photos.push_back(photo.toLatin1());
        if (m_parser.isSet(filesFrom))
            readList();
        else if (m_command.photos.empty())
            refuse(QStringLiteral("No photo is named."));
        else if (m_parser.isSet(null))
            refuse(QStringLiteral("-0 is for --files-from."));
    }

    void readStreams()
    {
        const auto inputs = std::ranges::count(m_command.photos, "-");
        m_command.output = m_parser.value(output).toLatin1();
        if (m_parser.isSet(output) && m_command.output.isEmpty())
            refuse(QStringLiteral("--output needs a name."));
        if (inputs > 0 && m_command.output.isEmpty())
            m_command.output = "-";
        if (inputs > 0 && (inputs > 1 || m_parser.value(filesFrom) == QLatin1String("-")))
            refuse(QStringLiteral("The standard input is there once."));
        if (m_command.output == "-" && m_command.photos.size() > 1)
            refuse(QStringLiteral("The standard output takes one photo."));
        if (m_command.output == "-" && m_command.json)
            refuse(QStringLiteral("The standard output takes the photo or the lines of --json, not both."));
    }

    void readAll()
    {
        m_command.jobs = int(number(jobs, 1, mostJobs));
        m_command.json = m_parser.isSet(json);
        m_command.skipExisting = m_parser.isSet(skipExisting);
        if (m_command.skipExisting && m_parser.isSet(replace))
            refuse(QStringLiteral("--skip-existing and --replace are opposites."));
        readOrder();
        readPhotos();
        readStreams();
    }

    QCommandLineParser m_parser;
    Command m_command;
};

} // namespace

Command readArguments(const std::vector<QByteArray>& arguments)
{
    return Reading(arguments).command();
}
