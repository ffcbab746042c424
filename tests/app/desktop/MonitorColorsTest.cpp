// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/MonitorColors.h"
#include "tests/app/Desk.h"
#include "tests/app/desktop/LeaksOfTheBus.h"

#include <QColorSpace>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QProcess>
#include <QScreen>
#include <QSignalSpy>
#include <QWindow>
#include <sys/stat.h>

namespace {

const char* const screenDevice = "/org/freedesktop/ColorManager/devices/screen";
const char* const measuredScreen = "DP-1";
const char* const otherScreen = "HDMI-1";
const char* const measured = "/org/freedesktop/ColorManager/profiles/measured";

} // namespace

/// What colord shows of itself on the bus, as far as it is asked.
class Manager : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ColorManager")

public slots:
    QDBusObjectPath FindDeviceByProperty(const QString& key, const QString& value)
    {
        const bool known = key == QStringLiteral("XRANDR_name") && value == QLatin1String(measuredScreen);
        return QDBusObjectPath(known ? screenDevice : "/nothing");
    }
};

class Device : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ColorManager.Device")
    Q_PROPERTY(QList<QDBusObjectPath> Profiles MEMBER profiles)

public:
    QList<QDBusObjectPath> profiles;
};

class Profile : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ColorManager.Profile")
    Q_PROPERTY(QString Filename MEMBER name)

public:
    QString name;
};

/// On a bus of its own, on which the test plays the desktop's part.
class MonitorColorsTest : public QObject {
    Q_OBJECT

private:
    QProcess m_bus;
    QTemporaryDir m_folder;
    Manager m_manager;
    Device m_device;
    Profile m_profile;
    QString m_exchanging; ///< the file of a screen whose red and blue are exchanged

    static QDBusConnection desktop() { return QDBusConnection(QStringLiteral("desktop")); }

    QString written(const char* name, const QByteArray& bytes)
    {
        QFile file(m_folder.filePath(QLatin1String(name)));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("the profile cannot be written");
        return file.fileName();
    }

    static void tell(const char* change)
    {
        QDBusMessage signal = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/ColorManager"),
            QStringLiteral("org.freedesktop.ColorManager"), QLatin1String(change));
        signal << QVariant::fromValue(QDBusObjectPath(screenDevice));
        desktop().send(signal);
    }

    void use(const QString& profile)
    {
        m_profile.name = profile;
        tell("DeviceChanged");
    }

    static QImage shown(Desk& desk)
    {
        auto* view = desk.find<DragDropImageView>("mainImageView");
        const QImage window = pixelsOf(view->screen()->grabWindow(desk.window.winId()).toImage());
        QRect photo = view->imageRect().toAlignedRect() & view->rect();
        photo.moveTopLeft(view->mapTo(&desk.window, photo.topLeft()));
        return window.copy(photo);
    }

    static QImage thumbnail(Desk& desk)
    {
        return pixelsOf(desk.find<QToolButton>("btnOriginal")->icon().pixmap(60).toImage());
    }

    static bool isExchanged(const QImage& one, const QImage& other)
    {
        if (one.size() != other.size() || one.isNull())
            return false;
        for (int y = 0; y < one.height(); y++)
            for (int x = 0; x < one.width(); x++) {
                const QRgb a = one.pixel(x, y), b = other.pixel(x, y);
                if (qAbs(qRed(a) - qBlue(b)) > 2 || qAbs(qGreen(a) - qGreen(b)) > 2 || qAbs(qBlue(a) - qRed(b)) > 2)
                    return false;
            }
        return true;
    }

    static bool hasColours(const QImage& picture) { return !isExchanged(picture, picture); }

private slots:
    void initTestCase()
    {
        m_bus.start(QStringLiteral("dbus-daemon"), {"--session", "--nofork", "--nopidfile", "--print-address"});
        QVERIFY(m_bus.waitForReadyRead());
        const QByteArray address = m_bus.readLine().trimmed();
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);

        const QColorSpace exchanging(QPointF(0.3127, 0.3290), QPointF(0.15, 0.06), QPointF(0.30, 0.60),
            QPointF(0.64, 0.33), QColorSpace::TransferFunction::SRgb);
        m_exchanging = written("exchanging.icc", exchanging.iccProfile());
        m_device.profiles = {QDBusObjectPath(measured), QDBusObjectPath("/another")};

        QDBusConnection bus = QDBusConnection::connectToBus(QString::fromLatin1(address), QStringLiteral("desktop"));
        const auto everything = QDBusConnection::ExportAllContents;
        QVERIFY(bus.registerObject(QLatin1String("/org/freedesktop/ColorManager"), &m_manager, everything));
        QVERIFY(bus.registerObject(QLatin1String(screenDevice), &m_device, everything));
        QVERIFY(bus.registerObject(QLatin1String(measured), &m_profile, everything));
    }

    void init()
    {
        m_profile.name = m_exchanging;
        QVERIFY(desktop().registerService(QStringLiteral("org.freedesktop.ColorManager")));
    }

    void cleanup() { desktop().unregisterService(QStringLiteral("org.freedesktop.ColorManager")); }

    void cleanupTestCase()
    {
        m_bus.kill();
        m_bus.waitForFinished();
    }

    void thePhotoIsSeenThroughTheProfileOfTheScreen()
    {
        cleanup(); // a desktop that knows of no colours, as yet
        Desk desk(makePhoto(1200, 800));
        QTRY_VERIFY(hasColours(shown(desk)));
        const QImage plain = shown(desk), plainThumbnail = thumbnail(desk),
                     photo = desk.window.getFiltersAppliedImage();
        QVERIFY(hasColours(plainThumbnail));

        init();
        tell("DeviceAdded");
        QTRY_VERIFY(isExchanged(shown(desk), plain));
        QVERIFY(isExchanged(thumbnail(desk), plainThumbnail));
        QCOMPARE(desk.window.getFiltersAppliedImage(), photo);

        use(QString()); // the desktop gives it up
        QTRY_COMPARE(shown(desk), plain);
        QCOMPARE(thumbnail(desk), plainThumbnail);
    }

    void beforeAndActualSizeAreSeenThroughItToo()
    {
        use(QString());
        Desk desk(makePhoto(1200, 800));
        auto* view = desk.find<DragDropImageView>("mainImageView");
        // Painted now, as it would be on the screen; the middle, where no label stands.
        const auto seen = [view] {
            const QImage all = pixelsOf(view->grab().toImage());
            return all.copy(0, all.height() / 4, all.width(), all.height() / 2);
        };
        view->setComparing(true);
        const QImage before = seen();
        QVERIFY(hasColours(before));
        use(m_exchanging);
        QTRY_VERIFY(isExchanged(seen(), before));

        emit view->actualSizeAsked(QRectF(view->rect()).center());
        QVERIFY(view->closeup().isOn());
        const QImage close = seen();
        QVERIFY(!isExchanged(close, before));
        use(QString());
        QTRY_VERIFY(isExchanged(seen(), close));
    }

    void whatIsNoProfileIsPassedOver_data()
    {
        QTest::addColumn<QString>("name");
        const QString queue = m_folder.filePath(QStringLiteral("queue"));
        mkfifo(qPrintable(queue), 0600);
        QTest::newRow("garbage") << written("garbage", QByteArray(3000, 'g'));
        QTest::newRow("nothing") << written("nothing", {});
        QTest::newRow("a file that is not there") << m_folder.filePath(QStringLiteral("none"));
        QTest::newRow("a folder") << m_folder.path();
        QTest::newRow("a pipe without an end") << queue;
    }

    void whatIsNoProfileIsPassedOver()
    {
        QFETCH(QString, name);
        QWidget window;
        const MonitorColors monitor(&window);
        QVERIFY(!monitor.colors());
        window.show();
        QTRY_VERIFY(monitor.colors());
        use(name);
        QTRY_VERIFY(!monitor.colors());
    }

    void itFollowsTheWindowFromScreenToScreen()
    {
        QWidget window;
        const MonitorColors monitor(&window);
        window.show();
        QTRY_VERIFY(monitor.colors());
        window.windowHandle()->setScreen(QGuiApplication::screens()[1]);
        QCOMPARE(window.screen()->name(), QLatin1String(otherScreen));
        QTRY_VERIFY(!monitor.colors());
        window.windowHandle()->setScreen(QGuiApplication::screens()[0]);
        QTRY_VERIFY(monitor.colors());
    }

    void withoutAnswersNothingIsKnown()
    {
        m_device.profiles.clear();
        QWidget window;
        MonitorColors monitor(&window);
        const QSignalSpy changes(&monitor, &MonitorColors::changed);
        ColordProfile other;
        const QSignalSpy found(&other, &ColordProfile::found);
        window.show();
        other.lookFor(QStringLiteral("a screen that nobody knows"));
        QTRY_COMPARE(found.size(), 1);
        other.lookFor(QLatin1String(measuredScreen));
        QTRY_COMPARE(found.size(), 2); // asked later than the window did
        QCOMPARE(found, QList<QVariantList>({{QByteArray()}, {QByteArray()}}));
        QVERIFY(changes.isEmpty());
        m_device.profiles = {QDBusObjectPath(measured), QDBusObjectPath("/another")};
    }

    void whatWasStoppedTellsNothing()
    {
        ColordProfile one, other;
        const QSignalSpy first(&one, &ColordProfile::found), second(&other, &ColordProfile::found);
        one.lookFor(QLatin1String(measuredScreen));
        one.stop();
        other.lookFor(QLatin1String(measuredScreen));
        QTRY_COMPARE(second.size(), 1);
        QVERIFY(!second[0][0].toByteArray().isEmpty());
        use(QString());
        QTRY_COMPARE(second.size(), 2);
        QVERIFY(first.isEmpty());
    }
};

/// On two screens, which have names.
int main(int argc, char** argv)
{
    const QTemporaryDir folder;
    QFile screens(folder.filePath(QStringLiteral("screens")));
    if (!screens.open(QIODevice::WriteOnly))
        qFatal("the screens cannot be described");
    const QString described =
        QStringLiteral(R"({"screens": [{"name": "%1", "x": 0, "y": 0, "width": 1600, "height": 1200,
        "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}, {"name": "%2", "x": 1600, "y": 0, "width": 1600,
        "height": 1200, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    screens.write(described.arg(QLatin1String(measuredScreen), QLatin1String(otherScreen)).toUtf8());
    screens.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(screens.fileName()));
    return runTest(argc, argv, [] { return new MonitorColorsTest; });
}
#include "MonitorColorsTest.moc"
