// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/Samples.h"
#include "tests/tools/render/RenderRun.h"

#include <QImage>
#include <QTest>
#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

using Names = std::set<std::string>;

/// A run over many photos, some broken, that is interrupted, killed, and taken up again. How many may be set for a
/// longer trial.
class StoppedRunTest : public QObject {
    Q_OBJECT

    static int count()
    {
        return qEnvironmentVariableIsSet("LUMORA_PHOTOS") ? qEnvironmentVariableIntValue("LUMORA_PHOTOS") : 200;
    }
    static bool isBroken(int photo) { return photo % 9 == 4; }
    static QByteArray name(int photo) { return QByteArray::number(photo).rightJustified(5, '0'); }

    /// Makes the photos and a list of them.
    static void prepare(const ByteFolder& folder)
    {
        QVERIFY(mkdir(folder.path("out").constData(), 0700) == 0);
        QByteArray list;
        for (int i = 0; i < count(); i++) {
            const QByteArray whole = samples::encoded(samples::noise(24, 16, unsigned(i + 1)), "png");
            samples::writeFile(folder.path(name(i) + ".png"), isBroken(i) ? whole.left(30) : whole);
            list += name(i) + ".png\n";
        }
        samples::writeFile(folder.path("list"), list);
    }

    static QList<QByteArray> arguments()
    {
        return {
            "--json", "--skip-existing", "--jobs", "2", "--look", "Mono", "--output", "out", "--files-from", "list"};
    }

    /// Whatever stands among the outputs is a whole picture.
    static void verifyWhole(const ByteFolder& folder)
    {
        for (const std::string& output : folder.names("out")) {
            const QByteArray jpeg = samples::readFile(folder.path("out/" + QByteArray::fromStdString(output)));
            QVERIFY2(jpeg.startsWith("\xff\xd8") && jpeg.endsWith("\xff\xd9"), output.c_str());
            QCOMPARE(QImage::fromData(jpeg, "JPEG").size(), QSize(24, 16));
        }
    }

    /// Begins a run, and sends the signal once it has told of so many photos.
    static RenderRun::Ended stoppedRun(const ByteFolder& folder, int signal, int after, QList<QJsonObject>* told)
    {
        RenderRun run(folder.path(), arguments());
        QByteArray out;
        for (int done = 0; done < after;) {
            const QByteArray line = run.readLine();
            if (line.isEmpty())
                qFatal("it ended too soon");
            done += !line.contains("\"skipped\"");
            out += line + '\n';
        }
        run.send(signal);
        const RenderRun::Ended ended = run.wait();
        *told = jsonLines(out + ended.out);
        return ended;
    }

    /// The processes of its photos.
    static QList<QByteArray> children(const RenderRun& run)
    {
        const QByteArray process = QByteArray::number(run.process());
        const QByteArray listed = samples::readFile("/proc/" + process + "/task/" + process + "/children").trimmed();
        return listed.isEmpty() ? QList<QByteArray>() : listed.split(' ');
    }

private slots:
    void goesOnWhereItStopped()
    {
        const ByteFolder folder;
        prepare(folder);
        QList<QJsonObject> told;
        const int part = count() / 5;

        // Interrupted, it has told of each output that is there, and of no other. Photos that it was about are no
        // failures.
        for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
            QCOMPARE(stoppedRun(folder, signal, part, &told).status, 128 + signal);
            Names outputs;
            for (const QJsonObject& line : told)
                if (line.contains("reason"))
                    QVERIFY(isBroken(line["number"].toInt() - 1));
                else
                    QVERIFY(outputs.insert(line["output"].toString().mid(4).toStdString()).second);
            QCOMPARE(outputs, folder.names("out"));
            QVERIFY(outputs.size() < std::size_t(count() - count() / 9));
            verifyWhole(folder);
        }

        // Killed with all its processes, it leaves whole files only. The runner alone takes its processes along.
        QCOMPARE(stoppedRun(folder, SIGKILL, part, &told).status, -SIGKILL);
        verifyWhole(folder);

        RenderRun last(folder.path(), arguments());
        const RenderRun::Ended ended = last.wait();
        QCOMPARE(ended.status, 1);
        verifyWhole(folder);
        Names wanted;
        const QList<QJsonObject> lines = jsonLines(ended.out);
        QCOMPARE(lines.size(), count());
        std::set<int> numbers;
        for (const QJsonObject& line : lines) {
            const int photo = line["number"].toInt() - 1;
            QVERIFY(numbers.insert(photo).second);
            QCOMPARE(line.contains("reason"), isBroken(photo));
            QCOMPARE(ended.err.count("lumora-render: " + name(photo) + ".png: "), isBroken(photo) ? 1 : 0);
            if (!isBroken(photo))
                wanted.insert((name(photo) + " Mono.jpg").toStdString());
        }
        QCOMPARE(folder.names("out"), wanted);
    }

    void whatItIsToIgnoreDoesNotStopIt()
    {
        const ByteFolder folder;
        prepare(folder);
        const auto before = std::signal(SIGHUP, SIG_IGN); // as under nohup
        RenderRun run(folder.path(), arguments());
        std::signal(SIGHUP, before);
        int told = 0;
        for (; !run.readLine().isEmpty(); told++)
            run.send(SIGHUP);
        QCOMPARE(told, count());
        QCOMPARE(run.wait().status, 1);
        verifyWhole(folder);
    }

    void interruptedAtItsLastPhotoItSaysSo()
    {
        for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
            const ByteFolder folder;
            RenderRun run(folder.path(), {"--output", "out.jpg", "-"}, RenderRun::Input::Open);
            QTRY_VERIFY(!children(run).isEmpty()); // it waits for its photo
            run.send(signal);
            QCOMPARE(run.wait().status, 128 + signal);
            QCOMPARE(folder.names(), Names());
        }
    }

    void oneThatTakesLongHoldsUpNoOther()
    {
        const ByteFolder folder;
        QVERIFY(mkdir(folder.path("out").constData(), 0700) == 0);
        samples::writeFile(folder.path("a.png"), samples::encoded(samples::noise(3000, 2000), "png"));
        for (const char* name : {"b.png", "c.png"})
            samples::writeFile(folder.path(name), samples::encoded(samples::noise(24, 16), "png"));
        RenderRun run(folder.path(), {"--jobs", "2", "--output", "out/", "a.png", "b.png", "c.png"});
        QTRY_VERIFY(!children(run).isEmpty());
        const int first = children(run).first().toInt();
        QVERIFY(kill(first, SIGSTOP) == 0);
        const Names others = {"b.jpg", "c.jpg"};
        const bool areDone = QTest::qWaitFor([&] { return folder.names("out") == others; }, 30000);
        QVERIFY(kill(first, SIGCONT) == 0);
        QVERIFY(areDone);
        QCOMPARE(run.wait().status, 0);
        QCOMPARE(folder.names("out"), Names({"a.jpg", "b.jpg", "c.jpg"}));
    }

    void noProcessOutlivesTheRun()
    {
        const ByteFolder folder;
        RenderRun run(folder.path(), {"--output", "out.jpg", "-"}, RenderRun::Input::Open);
        QTRY_VERIFY(!children(run).isEmpty());
        const QByteArray child = children(run).first();
        QVERIFY(kill(run.process(), SIGKILL) == 0); // it alone
        QTRY_VERIFY(samples::readFile("/proc/" + child + "/stat").isEmpty()
            || samples::readFile("/proc/" + child + "/stat").contains(") Z "));
        QCOMPARE(run.wait().status, -SIGKILL);
    }
};

QTEST_GUILESS_MAIN(StoppedRunTest)
#include "StoppedRunTest.moc"
