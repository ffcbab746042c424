// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/DesktopContrast.h"
#include "tests/app/desktop/LeaksOfTheBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

using Settings = QMap<QString, QVariantMap>;

/// What the desktop's portal shows of its settings.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    Settings settings;
    int answers = 0;

public slots:
    Settings ReadAll(const QStringList& spaces)
    {
        answers++;
        Settings asked;
        for (const QString& space : spaces)
            if (settings.contains(space))
                asked[space] = settings[space];
        return asked;
    }
};

/// On a bus of its own, on which the test plays the desktop's part.
class DesktopContrastTest : public QObject {
    Q_OBJECT

private:
    Portal m_portal;

    static QDBusConnection desktop() { return QDBusConnection(QStringLiteral("desktop")); }

    void set(const QString& space, const QString& key, const QVariant& value)
    {
        m_portal.settings[space][key] = value;
        QDBusMessage signal = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/portal/desktop"),
            QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
        signal << space << key << QVariant::fromValue(QDBusVariant(value));
        desktop().send(signal);
    }

    const QString m_appearance = QStringLiteral("org.freedesktop.appearance"),
                  m_gnome = QStringLiteral("org.gnome.desktop.a11y.interface"), m_contrast = QStringLiteral("contrast"),
                  m_gnomeContrast = QStringLiteral("high-contrast");

private slots:
    void initTestCase()
    {
        qDBusRegisterMetaType<Settings>();
        QDBusConnection bus =
            QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("desktop"));
        QVERIFY(bus.registerObject(
            QStringLiteral("/org/freedesktop/portal/desktop"), &m_portal, QDBusConnection::ExportAllSlots));
    }

    void init()
    {
        m_portal.settings = {{m_appearance, {{QStringLiteral("color-scheme"), 1u}, {m_contrast, 0u}}}};
        QVERIFY(desktop().registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    }

    void theDesktopIsFollowed()
    {
        m_portal.settings[m_appearance][m_contrast] = 1u;
        const DesktopContrast contrast;
        QSignalSpy changes(&contrast, &DesktopContrast::changed);
        QTRY_COMPARE(changes, QList<QVariantList>({{true}}));
        set(m_appearance, m_contrast, 0u);
        QTRY_COMPARE(changes, QList<QVariantList>({{true}, {false}}));
        set(m_gnome, m_gnomeContrast, true);
        QTRY_COMPARE(changes, QList<QVariantList>({{true}, {false}, {true}}));
    }

    void nothingElseIsHighContrast()
    {
        const DesktopContrast contrast;
        QSignalSpy changes(&contrast, &DesktopContrast::changed);
        for (const QVariant& other : {QVariant(2u), QVariant(QStringLiteral("1")), QVariant(-1)}) {
            const int before = m_portal.answers;
            set(m_appearance, m_contrast, other);
            QTRY_VERIFY(m_portal.answers > before);
        }
        set(m_gnome, m_gnomeContrast, false);
        set(m_appearance, QStringLiteral("color-scheme"), 0u);
        set(m_gnome, m_gnomeContrast, true); // is heard, after all that
        QTRY_COMPARE(changes, QList<QVariantList>({{true}}));
    }

    void aDesktopWithoutAPortal()
    {
        QVERIFY(desktop().unregisterService(QStringLiteral("org.freedesktop.portal.Desktop")));
        const DesktopContrast contrast;
        QSignalSpy changes(&contrast, &DesktopContrast::changed);
        init();
        set(m_appearance, m_contrast, 1u); // it comes up later
        QTRY_COMPARE(changes, QList<QVariantList>({{true}}));
    }
};

int main(int argc, char** argv)
{
    QProcess bus;
    bus.start(QStringLiteral("dbus-daemon"),
        {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
            QStringLiteral("--print-address")});
    if (!bus.waitForReadyRead())
        qFatal("there is no bus");
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.readLine().trimmed());
    const QCoreApplication application(argc, argv);
    DesktopContrastTest test;
    const int failed = QTest::qExec(&test, argc, argv);
    bus.kill();
    bus.waitForFinished();
    return failed;
}
#include "DesktopContrastTest.moc"
