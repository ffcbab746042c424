// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/CommandLine.h"

#include <QProcess>
#include <QTest>

/// What is read of arguments, and the program itself where it opens no window.
class CommandLineTest : public QObject {
    Q_OBJECT

    struct Run {
        int status;
        QByteArray out, err;
    };

    /// Of the program, where there is no display to be had.
    static Run run(const QStringList& arguments)
    {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(name);
        program.setProcessEnvironment(environment);
        program.start(LUMORA_PROGRAM, arguments);
        program.waitForFinished(-1);
        return {program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1, program.readAllStandardOutput(),
            program.readAllStandardError()};
    }

private slots:
    void filesAreBytes()
    {
        const QByteArray name = "a %1 \xff\xc3\xa9\n.jpg";
        const CommandLine line = readCommandLine({name, "-", "b.jpg", ""});
        QCOMPARE(line.files, QByteArrayList({name, "-", "b.jpg", ""}));
        QCOMPARE(line.fault, QString());
        QCOMPARE(line.toolkit, QByteArrayList());
    }

    void afterTwoDashesNothingIsAnOption()
    {
        const CommandLine line = readCommandLine({"--", "--help", "-platform", "--", "a.jpg"});
        QCOMPARE(line.files, QByteArrayList({"--help", "-platform", "--", "a.jpg"}));
        QVERIFY(!line.help && line.fault.isEmpty() && line.toolkit.isEmpty());
    }

    void fileAddressesArePaths()
    {
        const CommandLine line = readCommandLine({"file:///over%20%231/%FF%25.jpg", "file://localhost/b.jpg",
            "file:c.jpg", "http://example.org/d.jpg", "--", "file:///-e.jpg"});
        QCOMPARE(line.files,
            QByteArrayList({"/over #1/\xff%.jpg", "/b.jpg", "file:c.jpg", "http://example.org/d.jpg", "/-e.jpg"}));
    }

    void optionsOfTheToolkitAreItsOwn()
    {
        const CommandLine line = readCommandLine({"-style=fusion", "a.jpg", "-reverse", "--platform", "offscreen",
            "-session", "7_8", "-qwindowgeometry", "900x480"});
        QCOMPARE(line.fault, QString());
        QCOMPARE(line.files, QByteArrayList({"a.jpg"}));
        QCOMPARE(line.toolkit,
            QByteArrayList({"-platform", "offscreen", "-style", "fusion", "-session", "7_8", "-qwindowgeometry",
                "900x480", "-reverse"}));
    }

    void helpAndVersionAreAllThatIsPrinted()
    {
        for (const QString argument : {"--help", "-h"}) {
            const Run help = run({argument});
            QCOMPARE(help.status, 0);
            QVERIFY2(help.out.startsWith("Usage: lumora [options] [--] [PHOTO...]\n"), help.out);
            QVERIFY2(help.out.contains("--version") && !help.out.contains("platform"), help.out);
            QCOMPARE(help.err, QByteArray());
        }
        for (const QString argument : {"--version", "-v"}) {
            const Run version = run({"a.jpg", argument});
            QCOMPARE(version.status, 0);
            QCOMPARE(version.out, QByteArray("lumora " LUMORA_VERSION "\n"));
            QCOMPARE(version.err, QByteArray());
        }
    }

    void whatCannotBePrintedIsAFailure()
    {
        QProcess program;
        program.setStandardOutputFile(QStringLiteral("/dev/full"));
        program.start(LUMORA_PROGRAM, {QStringLiteral("--help")});
        program.waitForFinished(-1);
        QCOMPARE(program.exitCode(), 1);
    }

    void wrongArgumentsAreRefused_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("fault");
        QTest::newRow("long") << QStringList({"a.jpg", "--frob\x1b"}) << QByteArray("Unknown option 'frob\\x1b'.");
        QTest::newRow("short") << QStringList({"-x"}) << QByteArray("Unknown option 'x'.");
        QTest::newRow("two") << QStringList({"-xy", "-z"}) << QByteArray("Unknown options: xy, z.");
        QTest::newRow("beside the help") << QStringList({"--help", "--frob"}) << QByteArray("Unknown option 'frob'.");
        QTest::newRow("no value") << QStringList({"-platform"}) << QByteArray("Missing value after '-platform'.");
    }

    void wrongArgumentsAreRefused()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, fault);
        const Run refused = run(arguments);
        QCOMPARE(refused.err, "lumora: " + fault + " See lumora --help.\n");
        QCOMPARE(refused.out, QByteArray());
        QCOMPARE(refused.status, 2);
    }
};

QTEST_GUILESS_MAIN(CommandLineTest)
#include "CommandLineTest.moc"
