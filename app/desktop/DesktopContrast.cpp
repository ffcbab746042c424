// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/DesktopContrast.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <utility>

namespace {

const QString portal = QStringLiteral("org.freedesktop.portal.Desktop"),
              portalPath = QStringLiteral("/org/freedesktop/portal/desktop"),
              portalSettings = QStringLiteral("org.freedesktop.portal.Settings");

// The portal's own word for it, and that of GNOME's desktops whose portal does not have it yet.
const QString appearance = QStringLiteral("org.freedesktop.appearance"), contrast = QStringLiteral("contrast"),
              gnome = QStringLiteral("org.gnome.desktop.a11y.interface"),
              gnomeContrast = QStringLiteral("high-contrast");

bool isHigh(const QVariantMap& settings, const QString& key)
{
    const QVariant value = settings.value(key);
    switch (value.metaType().id()) {
    case QMetaType::UInt:
        return value.toUInt() == 1;
    case QMetaType::Bool:
        return value.toBool();
    default:
        return false;
    }
}

} // namespace

DesktopContrast::DesktopContrast()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(portal, portalPath, portalSettings, QStringLiteral("SettingChanged"), this, SLOT(ask())); // whichever
    ask();
}

void DesktopContrast::ask()
{
    QDBusMessage question =
        QDBusMessage::createMethodCall(portal, portalPath, portalSettings, QStringLiteral("ReadAll"));
    question << QStringList({appearance, gnome});
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusMessage answer = watcher->reply();
        if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QStringLiteral("a{sa{sv}}"))
            return;
        const auto settings = qdbus_cast<QMap<QString, QVariantMap>>(answer.arguments().first());
        const bool high = isHigh(settings.value(appearance), contrast) || isHigh(settings.value(gnome), gnomeContrast);
        if (std::exchange(m_high, high) != high)
            emit changed(high);
    });
}
