#include "app/Preferences.h"

#include <QSettings>
#include <QVariant>

namespace {

void store(const GrowString& key, const QVariant& value)
{
    QSettings(QStringLiteral("Dovrel"), QStringLiteral("Lumora")).setValue(QString::fromLatin1(key.cString()), value);
}

QVariant stored(const GrowString& key)
{
    return QSettings(QStringLiteral("Dovrel"), QStringLiteral("Lumora")).value(QString::fromLatin1(key.cString()));
}

} // namespace

void setPreferenceString(const GrowString& key, const GrowString& value)
{
    store(key, QString::fromLatin1(value.cString()));
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
    return stored(key).toString().toLatin1().constData();
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
