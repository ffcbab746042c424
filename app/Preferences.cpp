#include "app/Preferences.h"

#include <QSettings>
#include <QVariant>
#include <algorithm>

namespace {

QString text(const GrowString& string)
{
    return QString::fromLatin1(string.cString());
}

void store(const GrowString& key, const QVariant& value)
{
    QSettings settings(QStringLiteral("Dovrel"), QStringLiteral("Lumora"));
    // A file that is broken, or not a preferences file at all, is somebody's: it is not written over.
    if (settings.status() == QSettings::FormatError)
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
