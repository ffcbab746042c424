// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/ColordProfile.h"

#include "photo/ScreenColors.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>
#include <QFileInfo>

namespace {

const QString service = QStringLiteral("org.freedesktop.ColorManager"),
              manager = QStringLiteral("/org/freedesktop/ColorManager");

QDBusMessage askFor(const QString& path, const QString& interface, const QString& name)
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        service, path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << service + QLatin1Char('.') + interface << name;
    return question;
}

/// The best one comes first.
QString firstPath(const QVariant& answer)
{
    const auto value = answer.value<QDBusVariant>().variant();
    if (!value.canConvert<QDBusArgument>())
        return {};
    const auto paths = qdbus_cast<QList<QDBusObjectPath>>(value.value<QDBusArgument>());
    return paths.isEmpty() ? QString() : paths.first().path();
}

QByteArray contents(const QString& name)
{
    QFile file(name);
    if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return file.read(ScreenColors::largestProfile + 1);
}

} // namespace

void ColordProfile::lookFor(const QString& connector)
{
    stop();
    QDBusConnection bus = QDBusConnection::systemBus();
    if (connector.isEmpty() || !bus.isConnected())
        return emit found({});
    m_connector = connector;
    if (!m_listens)
        for (const char* change : {"DeviceAdded", "DeviceChanged", "DeviceRemoved"})
            m_listens = bus.connect(service, manager, service, QLatin1String(change), this, SLOT(ask()));
    ask();
}

void ColordProfile::stop()
{
    m_search++;
    m_connector.clear();
}

void ColordProfile::ask()
{
    m_search++;
    if (m_connector.isEmpty())
        return;
    QDBusMessage question =
        QDBusMessage::createMethodCall(service, manager, service, QStringLiteral("FindDeviceByProperty"));
    question << QStringLiteral("XRANDR_name") << m_connector; // also without X11
    question.setAutoStartService(false); // a desktop that manages colours has started it
    ask(question, [this](const QVariant& device) {
        ask(askFor(device.value<QDBusObjectPath>().path(), QStringLiteral("Device"), QStringLiteral("Profiles")),
            [this](const QVariant& profiles) {
                ask(askFor(firstPath(profiles), QStringLiteral("Profile"), QStringLiteral("Filename")),
                    [this](const QVariant& name) {
                        emit found(contents(name.value<QDBusVariant>().variant().toString()));
                    });
            });
    });
}

/// Tells that there is none where the question has no answer.
void ColordProfile::ask(const QDBusMessage& question, const std::function<void(const QVariant&)>& next)
{
    if (question.path().isEmpty())
        return emit found({});
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::systemBus().asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, next, search = m_search, watcher] {
        watcher->deleteLater();
        const QDBusMessage answer = watcher->reply();
        if (search != m_search)
            return;
        if (answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty())
            next(answer.arguments().first());
        else
            emit found({});
    });
}
