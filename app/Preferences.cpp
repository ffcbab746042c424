#include "app/Preferences.h"

#include <QFile>
#include <QSettings>
#include <QVariant>
#include <algorithm>

using namespace lumora;

namespace {

QString text(const GrowString& string)
{
    return QString::fromLatin1(string.cString());
}

bool isSection(const QByteArray& line)
{
    return line.startsWith('[') && line.endsWith(']');
}

/// True for a file that cannot be the store: it does not begin with a section, as a store does even when its end was
/// lost, and one of its lines is no section, no comment and no "key=value". The store itself tells that only to the
/// first who opens it.
bool isForeign(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArrayList lines = file.readAll().trimmed().split('\n');
    return !isSection(lines.front().trimmed()) && std::ranges::any_of(lines, [](const QByteArray& line) {
        const QByteArray words = line.trimmed();
        return !words.isEmpty() && !isSection(words) && words.front() != ';' && !words.contains('=');
    });
}

void store(const GrowString& key, const QVariant& value)
{
    QSettings settings(QStringLiteral("Dovrel"), QStringLiteral("Lumora"));
    // A file that is not a preferences file at all is somebody's: it is not written over.
    if (isForeign(settings.fileName()))
        qWarning("%s is not a preferences file: choices are not saved", qUtf8Printable(settings.fileName()));
    else
        settings.setValue(text(key), value);
}

QVariant stored(const GrowString& key)
{
    return QSettings(QStringLiteral("Dovrel"), QStringLiteral("Lumora")).value(text(key));
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
