// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/Preferences.h"

#include <QFile>
#include <QLockFile>
#include <QSaveFile>
#include <QSettings>
#include <QStandardPaths>
#include <QVariant>
#include <algorithm>
#include <cstring>
#include <memory>
#include <sys/stat.h>

using namespace lumora;

namespace {

QString text(const GrowString& string)
{
    return QString::fromLatin1(string.cString());
}

// The described choices are keys without a group, which is "[General]" in the file. What is remembered beside them has
// groups of its own, which no version counts.
constexpr char describedSection[] = "[General]\n";
constexpr const char* ownSections[] = {
    "[General]", "[Recent]", "[Saving]", "[Window]"}; ///< those that a file may begin with
constexpr off_t longestFile = 1'000'000; ///< bytes; a store has some hundred

/// The file of the store. The platform opens it as soon as it is asked for its name.
QByteArray fileName()
{
    return QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/Dovrel/Lumora.conf"));
}

/// False for a pipe, a device or a folder, which may keep whoever opens them waiting, or never end.
bool canBeOpened(const QByteArray& path)
{
    struct stat status = {};
    if (stat(path.constData(), &status) != 0)
        return true; // there is none yet
    return S_ISREG(status.st_mode) && status.st_size <= longestFile;
}

/// Whether the store writes names of keys and sections as they are: others would come out changed.
bool isPlain(const QByteArray& name)
{
    return !name.isEmpty() && std::ranges::all_of(name, [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || std::strchr("_-.%\\", c);
    });
}

bool isSection(const QByteArray& line)
{
    return line.startsWith('[') && line.endsWith(']') && isPlain(line.mid(1, line.size() - 2));
}

/// True for a file that is somebody else's: one that does not begin with a section of ours, or with a line that
/// is no section, no comment and no "key=value" in the store's own words. The last line may have been cut off.
bool isForeign(const QByteArray& path)
{
    QFile file(QFile::decodeName(path));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = file.readAll();
    QByteArrayList lines = bytes.split('\n');
    lines.removeLast(); // empty, or cut off
    const auto isOurs = [](const QByteArray& line) {
        const QByteArray words = line.trimmed();
        const qsizetype equals = words.indexOf('=');
        return words.isEmpty() || words.front() == ';' || isSection(words)
            || (equals > 0 && isPlain(words.left(equals)));
    };
    const QByteArray text = bytes.trimmed();
    const bool beginsAsOurs =
        std::ranges::any_of(ownSections, [&](const char* section) { return text.startsWith(section); });
    return !text.isEmpty() && (!beginsAsOurs || !std::ranges::all_of(lines, isOurs));
}

/// Older programs know the file by the described section at its beginning. The platform leaves it out until the first
/// of its keys is saved.
void beginAsDescribed(const QByteArray& path)
{
    QLockFile lock(QFile::decodeName(path + ".lock")); // the platform's own, against another window that writes
    QFile file(QFile::decodeName(path));
    if (!lock.tryLock() || !file.open(QIODevice::ReadOnly))
        return; // the next choice that is saved does it
    const QByteArray bytes = file.readAll();
    if (bytes.startsWith(describedSection))
        return;
    QSaveFile changed(file.fileName());
    if (changed.open(QIODevice::WriteOnly) && changed.write(describedSection + ('\n' + bytes)) > 0)
        changed.commit();
}

/// The store; none where something else stands in the place of its file, or of the one that it looks into besides.
std::unique_ptr<QSettings> openStore()
{
    const QByteArray path = fileName(), besides = path.left(path.lastIndexOf('/')) + ".conf";
    if (!canBeOpened(path) || !canBeOpened(besides))
        return nullptr;
    return std::make_unique<QSettings>(QStringLiteral("Dovrel"), QStringLiteral("Lumora"));
}

void store(const GrowString& key, const QVariant& value)
{
    const auto settings = openStore();
    // A file that is not a preferences file at all is somebody's: it is not written over.
    if (!settings || isForeign(fileName()))
        return qWarning("%s is not a preferences file: choices are not saved", fileName().constData());
    settings->setValue(text(key), value);
    settings->sync();
    beginAsDescribed(fileName());
}

QVariant stored(const GrowString& key)
{
    const auto settings = openStore();
    return settings ? settings->value(text(key)) : QVariant();
}

} // namespace

void setPreferenceString(const GrowString& key, const GrowString& value)
{
    store(key, text(value));
}

void setPreferenceInt(const GrowString& key, int value)
{
    store(key, value);
}

void setPreferenceBool(const GrowString& key, bool value)
{
    store(key, value);
}

GrowString getPreferenceString(const GrowString& key)
{
    const QString value = stored(key).toString();
    const bool ascii = std::ranges::all_of(value, [](QChar c) { return c.unicode() < 128; });
    return ascii ? value.toLatin1().constData() : "";
}

int getPreferenceInt(const GrowString& key)
{
    return stored(key).toInt();
}

bool getPreferenceBool(const GrowString& key)
{
    const QString text = stored(key).toString();
    return text == QLatin1String("true") || text.toInt() != 0;
}
