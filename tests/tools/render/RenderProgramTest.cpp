// SPDX-License-Identifier: GPL-3.0-or-later
#include "image/FilterNumber.h"
#include "photo/PhotoSaver.h"
#include "render/RenderPipeline.h"
#include "render/Variation.h"
#include "tests/photo/Samples.h"
#include "tests/photo/ScarceMemory.h"
#include "tests/tools/render/RenderRun.h"

#include <QRegularExpression>
#include <QTest>
#include <algorithm>
#include <csignal>
#include <memory>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace lumora;
using Names = std::set<std::string>;

/// lumora-render as scripts use it: real processes on real files.
class RenderProgramTest : public QObject {
    Q_OBJECT

    std::unique_ptr<ByteFolder> m_folder;

    QByteArray path(const QByteArray& name) { return m_folder->path(name); }
    QByteArray contents(const QByteArray& name) { return samples::readFile(path(name)); }
    void makePhoto(const QByteArray& name, unsigned seed = 1)
    {
        samples::writeFile(path(name), samples::encoded(samples::noise(40, 30, seed), "png"));
    }
    RenderRun::Ended run(const QList<QByteArray>& arguments, const QByteArray& input = {})
    {
        return runRender(path({}), arguments, input);
    }
    void verifyIsPhoto(const QByteArray& name)
    {
        QVERIFY2(QImage::fromData(contents(name), "JPEG").width() > 0, name.constData());
    }

private slots:
    void init() { m_folder = std::make_unique<ByteFolder>(); }

    void itWritesBesideItWhereItRuns()
    {
        makePhoto("over.png");
        const RenderRun::Ended ended = run({"--look", "hELGA", "--look=mono", "over.png"});
        QCOMPARE(ended.err, QByteArray());
        QCOMPARE(ended.out, QByteArray());
        QCOMPARE(ended.status, 0);
        QCOMPARE(m_folder->names(), Names({"over.png", "over Helga Mono.jpg"}));
        verifyIsPhoto("over Helga Mono.jpg");
    }

    void namesAreBytes()
    {
        const QByteArray name = "two\nlines %s \xff";
        makePhoto(name + ".png");
        QCOMPARE(run({"--look", "Mono", "--", name + ".png"}).status, 0);
        verifyIsPhoto(name + " Mono.jpg");
        makePhoto("-dash.png");
        QCOMPARE(run({"--", "-dash.png"}).status, 0);
        verifyIsPhoto("-dash.jpg");
        const RenderRun::Ended ended = run({"gone\n\x1b[2J\xff"});
        QCOMPARE(ended.status, 1);
        QCOMPARE(ended.err, QByteArray("lumora-render: gone\\x0a\\x1b[2J\\xff: The file does not exist.\n"));
    }

    void wrongArgumentsDoNothing_data()
    {
        QTest::addColumn<QList<QByteArray>>("arguments");
        QTest::addColumn<QByteArray>("words");
        const auto add = [](const char* words, const QList<QByteArray>& arguments) {
            QTest::addRow("%s", arguments.join(' ').constData()) << arguments << QByteArray(words);
        };
        add("No photo is named.", {});
        add("bogus", {"--bogus", "a.png"});
        add("--look Hega: there is none of that name. There are: Original, ", {"--look", "Hega", "a.png"});
        add("--look x\\x1b[2J:", {"--look", "x\x1b[2J", "a.png"});
        add("--look mono: a stack has each look once.", {"--look", "Mono", "--look", "mono", "a.png"});
        add("--crop 5x4: there is none", {"--crop", "5x4", "a.png"});
        add("--border Wide: there is none", {"--border", "Wide", "a.png"});
        add("--metadata some: there is none", {"--metadata", "some", "a.png"});
        add("--quality 92: there is none", {"--quality", "92", "a.png"});
        add("--strength 101: it takes a whole number from 0 to 100.", {"--strength", "101", "a.png"});
        add("--strength -1:", {"--strength=-1", "a.png"});
        add("--size 0:", {"--size", "0", "a.png"});
        add("--size 80%:", {"--size", "80%", "a.png"});
        add("--size 65501: it takes a whole number from 1 to 65500.", {"--size", "65501", "a.png"});
        add("--random 4294967296:", {"--random", "4294967296", "a.png"});
        add("--jobs 0:", {"--jobs", "0", "a.png"});
        add("--jobs 1025: it takes a whole number from 1 to 1024.", {"--jobs", "1025", "a.png"});
        add("--output out: several photos need a folder that is there.", {"--output", "out", "a.png", "b.png"});
        add("--output out/: there is no such folder.", {"--output", "out/", "a.png"});
        add("--output needs a name.", {"--output", "", "a.png"});
        add("The standard output takes one photo.", {"--output", "-", "a.png", "b.png"});
        add("not both", {"--output", "-", "--json", "a.png"});
        add("The standard input is there once.", {"--output", ".", "-", "-"});
        add("has no name", {"--output", ".", "-"});
        add("opposites", {"--skip-existing", "--replace", "a.png"});
        add("--files-from gone: the list cannot be read.", {"--files-from", "gone"});
        add("-0 is for --files-from.", {"-0", "a.png"});
    }
    void wrongArgumentsDoNothing()
    {
        QFETCH(QList<QByteArray>, arguments);
        QFETCH(QByteArray, words);
        makePhoto("a.png");
        makePhoto("b.png", 2);
        const RenderRun::Ended ended = run(arguments);
        QCOMPARE(ended.status, 2);
        QVERIFY2(ended.err.startsWith("lumora-render: ") && ended.err.contains(words), ended.err.constData());
        QCOMPARE(ended.err.count('\n'), 1);
        QCOMPARE(ended.out, QByteArray());
        QCOMPARE(m_folder->names(), Names({"a.png", "b.png"}));
    }

    void whatItPrintsInPlaceOfWork()
    {
        const RenderRun::Ended list = run({"--list"});
        QCOMPARE(list.status, 0);
        QCOMPARE(list.err, QByteArray());
        QVERIFY(list.out.startsWith("Looks:\n  Original\n"));
        for (const char* name : {"\n  Helga\n", "\n  Blowout\n", "\nCrops:\n  By Filter\n  Square\n", "\n  7x6\n",
                 "\nBorders:\n  By Filter\n  Thin\n", "\n  None\n"})
            QVERIFY2(list.out.contains(name), name);
        QVERIFY(!list.out.contains("Custom") && !list.out.contains("Test"));
        const RenderRun::Ended version = run({"--version"});
        QCOMPARE(version.status, 0);
        QVERIFY(QRegularExpression("^lumora-render [0-9.]+\n$").match(version.out).hasMatch());
        QVERIFY(run({"--help"}).out.startsWith("Usage: lumora-render [options] PHOTO...\n"));
    }

    void theRestIsDoneAllTheSame()
    {
        makePhoto("a.png");
        samples::writeFile(path("broken.png"), "\x89PNG\r\n\x1a\nbroken");
        makePhoto("c.png", 3);
        const RenderRun::Ended ended = run({"--json", "a.png", "broken.png", "gone.png", "c.png"});
        QCOMPARE(ended.status, 1);
        QCOMPARE(m_folder->names(), Names({"a.png", "a.jpg", "broken.png", "c.png", "c.jpg"}));
        const QList<QJsonObject> lines = jsonLines(ended.out);
        QCOMPARE(lines.size(), 4);
        for (int i = 0; i < 4; i++)
            QCOMPARE(lines[i]["number"].toInt(), i + 1);
        QCOMPARE(lines[0]["file"].toString(), QString("a.png"));
        QCOMPARE(lines[0]["output"].toString(), QString("a.jpg"));
        QCOMPARE(lines[0]["size"].toInt(), contents("a.jpg").size());
        QCOMPARE(lines[0]["width"].toInt(), 40);
        QCOMPARE(lines[0]["height"].toInt(), 30);
        QVERIFY(lines[0]["milliseconds"].isDouble() && !lines[0].contains("reason"));
        QCOMPARE(lines[2]["reason"].toString(), QString("The file does not exist."));
        QVERIFY(!lines[1]["reason"].toString().isEmpty() && !lines[1].contains("size"));
        QCOMPARE(ended.err,
            "lumora-render: broken.png: " + lines[1]["reason"].toString().toUtf8()
                + "\nlumora-render: gone.png: The file does not exist.\n");
    }

    void whatBreaksOffIsRenderedAndTold()
    {
        const QByteArray whole = samples::encoded(samples::noise(400, 300), "jpeg");
        samples::writeFile(path("half.jpg"), whole.left(whole.size() / 2));
        const RenderRun::Ended ended = run({"--json", "--look", "Mono", "half.jpg"});
        QCOMPARE(ended.status, 0);
        QCOMPARE(ended.err, QByteArray("lumora-render: half.jpg: The rest of the file is missing.\n"));
        QCOMPARE(jsonLines(ended.out).value(0)["warning"].toString(), QString("The rest of the file is missing."));
        verifyIsPhoto("half Mono.jpg");
    }

    void whatStandsThereIsReplacedOnlyIfAsked()
    {
        makePhoto("a.png");
        samples::writeFile(path("a Mono.jpg"), "another's");
        QVERIFY(symlink("nowhere", path("out.jpg").constData()) == 0);
        const RenderRun::Ended kept = run({"--look", "Mono", "a.png"});
        QCOMPARE(kept.status, 1);
        QCOMPARE(kept.err, QByteArray("lumora-render: a.png: There is a file of that name already.\n"));
        QCOMPARE(contents("a Mono.jpg"), QByteArray("another's"));
        QCOMPARE(run({"--output", "out.jpg", "a.png"}).status, 1);
        QCOMPARE(m_folder->names(), Names({"a.png", "a Mono.jpg", "out.jpg"}));
        QCOMPARE(run({"--look", "Mono", "--replace", "a.png"}).status, 0);
        verifyIsPhoto("a Mono.jpg");
    }

    void aPhotoIsNeverReplaced_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::newRow("itself") << QByteArray("a.jpg");
        QTest::newRow("by another way") << QByteArray("./folder/../a.jpg");
        QTest::newRow("a link") << QByteArray("link.jpg");
        QTest::newRow("another name") << QByteArray("hard.jpg");
    }
    void aPhotoIsNeverReplaced()
    {
        QFETCH(QByteArray, output);
        const QByteArray photo = samples::encoded(samples::noise(40, 30), "jpeg");
        samples::writeFile(path("a.jpg"), photo);
        QVERIFY(mkdir(path("folder").constData(), 0700) == 0);
        QVERIFY(symlink("a.jpg", path("link.jpg").constData()) == 0);
        QVERIFY(link(path("a.jpg").constData(), path("hard.jpg").constData()) == 0);
        const Names before = m_folder->names();
        for (const char* option : {"--replace", "--skip-existing", "--json"}) {
            const RenderRun::Ended ended = run({option, "--output", output, "a.jpg"});
            QCOMPARE(ended.status, 1);
            QCOMPARE(ended.err,
                QByteArray("lumora-render: a.jpg: The output would replace a photo that is to be rendered.\n"));
        }
        QCOMPARE(contents("a.jpg"), photo);
        QCOMPARE(contents("hard.jpg"), photo);
        QCOMPARE(m_folder->names(), before);
    }

    void norIsAnotherPhotoOfTheRun()
    {
        const QByteArray photo = samples::encoded(samples::noise(40, 30), "jpeg");
        samples::writeFile(path("a.jpg"), photo);
        samples::writeFile(path("a Mono.jpg"), photo);
        QCOMPARE(run({"--replace", "--look", "Mono", "a.jpg", "a Mono.jpg"}).status, 1);
        QCOMPARE(contents("a Mono.jpg"), photo);
        verifyIsPhoto("a Mono Mono.jpg");
    }

    void twoPhotosNeverShareAnOutput()
    {
        for (const char* folder : {"one", "two"})
            QVERIFY(mkdir(path(folder).constData(), 0700) == 0);
        makePhoto("one/a.png");
        makePhoto("two/a.png", 2);
        QCOMPARE(run({"--output", "one.jpg", "one/a.png"}).status, 0);
        for (const char* option : {"--replace", "--json", "--skip-existing"}) {
            const RenderRun::Ended ended = run({option, "one/a.png", "two/a.png"});
            QCOMPARE(ended.status, 1);
            QVERIFY(ended.err.contains("lumora-render: two/a.png: Another photo of this run has the same output.\n"));
            QCOMPARE(contents("a.jpg"), contents("one.jpg"));
        }
    }

    void streamsInAndOut()
    {
        makePhoto("a.png");
        QCOMPARE(run({"--look", "Lolo", "a.png"}).status, 0);
        const QByteArray wanted = contents("a Lolo.jpg");
        const RenderRun::Ended ended = run({"--look", "Lolo", "-"}, contents("a.png"));
        QCOMPARE(ended.status, 0);
        QCOMPARE(ended.err, QByteArray());
        QVERIFY(ended.out == wanted);
        QVERIFY(run({"--look", "Lolo", "--output", "-", "a.png"}).out == wanted);
        QCOMPARE(run({"--look", "Lolo", "--output", "out.jpg", "-"}, contents("a.png")).status, 0);
        QVERIFY(contents("out.jpg") == wanted);
        const RenderRun::Ended empty = run({"-"});
        QCOMPARE(empty.status, 1);
        QCOMPARE(empty.err, QByteArray("lumora-render: -: The file is empty.\n"));
        // Delicious prints what it smooths with; that is no part of the picture.
        QVERIFY(run({"--look", "Delicious", "-"}, contents("a.png")).out.startsWith("\xff\xd8"));
    }

    void listsNamePhotos()
    {
        makePhoto("a b.png");
        makePhoto("c\nd.png", 2);
        makePhoto("e.png", 3);
        QCOMPARE(run({"--files-from", "-", "--look", "Mono", "e.png"}, "a b.png\n\n").status, 0);
        QCOMPARE(m_folder->names(), Names({"a b.png", "a b Mono.jpg", "c\nd.png", "e.png", "e Mono.jpg"}));
        samples::writeFile(path("list"), QByteArray("c\nd.png\0e.png", 13));
        QCOMPARE(run({"-0", "--files-from", "list", "--look", "Lolo"}).status, 0);
        verifyIsPhoto("c\nd Lolo.jpg");
        verifyIsPhoto("e Lolo.jpg");
        QCOMPARE(run({"--files-from", "-"}).status, 0); // nothing is to be done
    }

    void aSecondRunGoesOnWhereTheFirstStopped()
    {
        makePhoto("a.png");
        makePhoto("b.png", 2);
        samples::writeFile(path("a Mono.jpg"), "done");
        const RenderRun::Ended ended = run({"--json", "--skip-existing", "--look", "Mono", "a.png", "b.png"});
        QCOMPARE(ended.status, 0);
        QCOMPARE(contents("a Mono.jpg"), QByteArray("done"));
        verifyIsPhoto("b Mono.jpg");
        const QList<QJsonObject> lines = jsonLines(ended.out);
        QCOMPARE(lines.size(), 2);
        QVERIFY(lines[0]["skipped"].toBool() && lines[0]["number"].toInt() == 1);
        QVERIFY(!lines[1].contains("skipped") && lines[1]["number"].toInt() == 2);
    }

    void whatKilledRunsHaveLeftBehindGoes()
    {
        makePhoto("a.png");
        QVERIFY(mkdir(path("out").constData(), 0700) == 0);
        const pid_t killed = fork();
        if (killed == 0)
            _exit(0);
        QCOMPARE(waitpid(killed, nullptr, 0), killed);
        samples::writeFile(path("out/.lumora-" + QByteArray::number(killed) + "-0"), "half");
        QCOMPARE(run({"--output", "out", "a.png"}).status, 0);
        QCOMPARE(m_folder->names("out"), Names({"a.jpg"}));
    }

    void oneSeedOnePicture()
    {
        makePhoto("a.png");
        makePhoto("b.png", 2);
        for (const char* folder : {"fixed", "again", "seven", "seven again", "eight", "greatest"})
            QVERIFY(mkdir(path(folder).constData(), 0700) == 0);
        const auto render = [this](const QByteArray& folder, const QList<QByteArray>& options) {
            const QList<QByteArray> looks = {"--look", "Mono", "--look", "Lightleak", "--output", folder};
            QCOMPARE(run(looks + options).status, 0);
        };
        render("fixed", {"a.png", "b.png"});
        render("again", {"b.png"});
        render("seven", {"--random", "7", "a.png", "b.png"});
        render("seven again", {"--random", "7", "--jobs", "2", "b.png", "a.png"});
        render("eight", {"--random", "8", "b.png"});
        render("greatest", {"--random", "4294967295", "b.png"});
        const auto picture = [this](const QByteArray& folder) { return contents(folder + "/b Mono Lightleak.jpg"); };
        QVERIFY(picture("fixed").size() > 100);
        QVERIFY(picture("again") == picture("fixed"));
        QVERIFY(picture("seven") != picture("fixed"));
        QVERIFY(picture("seven again") == picture("seven"));
        QVERIFY(picture("eight") != picture("seven"));
    }

#ifndef LUMORA_SANITIZE // whose programs end where they find no memory
    void whatCannotBeEnlargedIsRefused()
    {
        makePhoto("a.png");
        const ScarceMemory memory(500 << 20); // the program has the limit, too
        const RenderRun::Ended ended = run({"--size", "20000", "a.png"});
        QCOMPARE(ended.status, 1);
        QCOMPARE(ended.err,
            QByteArray("lumora-render: a.png: "
                       "There is not enough free memory for a picture of 20000 x 15000 pixels.\n"));
        QCOMPARE(m_folder->names(), Names({"a.png"}));
    }
#endif

    void pngLosesNothing()
    {
        const QImage photo = samples::noise(40, 30);
        makePhoto("a.png");
        QCOMPARE(run({"--png", "--look", "Cinema", "a.png"}).status, 0);
        RenderSettings settings;
        settings.filter = settings.cropFilter = settings.borderFilter = Filter::cinema;
        useFixedSettings();
        const QImage wanted = renderPhoto(photo, settings);
        const QByteArray png = contents("a Cinema.png");
        QVERIFY(png.startsWith("\x89PNG"));
        const QImage read = QImage::fromData(png, "PNG").convertToFormat(wanted.format());
        QCOMPARE(samples::largestDifference(read, wanted), 0);
    }

    void qualityHasThreeLevels()
    {
        makePhoto("a.png");
        const QByteArray levels[] = {"standard", "High", "best"};
        for (const QByteArray& level : levels)
            QCOMPARE(run({"--quality", level, "--output", level + ".jpg", "a.png"}).status, 0);
        for (int i = 0; i < 3; i++)
            QVERIFY(contents(levels[i] + ".jpg")
                == encodeJpeg(samples::noise(40, 30), {}, Kept::Everything, JpegQuality(i)));
        QCOMPARE(run({"a.png"}).status, 0);
        QVERIFY(contents("a.jpg") == contents("standard.jpg"));
    }

    void itIsNoProgramOfTheWindow()
    {
        RenderRun run(path({}), {"-"}, RenderRun::Input::Open);
        // It waits for its photo in the process of the task, which is there once this is.
        const QByteArray task =
            "/proc/" + QByteArray::number(run.process()) + "/task/" + QByteArray::number(run.process());
        QByteArray child;
        QTRY_VERIFY(!(child = samples::readFile(task + "/children").trimmed()).isEmpty());
        for (const QByteArray& process : {QByteArray::number(run.process()), child}) {
            const QByteArray maps = samples::readFile("/proc/" + process + "/maps");
            QVERIFY(maps.contains("libQt6Gui"));
            for (const char* name : {"libQt6Widgets", "libQt6XcbQpa", "libQt6Wayland", "libwayland", "/platforms/",
                     "libxcb-", "libxkbcommon-x11", "libX11-xcb"})
                QVERIFY2(!maps.contains(name), name);
#ifdef LUMORA_READER_PROCESS
            // The reader alone decodes: what its libraries do at their start takes longer than the rest of this one's.
            for (const char* name : {"libheif", "libde265", "libdav1d", "libjxl", "libraw"})
                QVERIFY2(!maps.contains(name), name);
#endif
        }
    }

    void aTaskThatBreaksDownHarmsNoOther()
    {
        makePhoto("a.png");
        RenderRun waits(path({}), {"--output", "out.jpg", "-"}, RenderRun::Input::Open);
        const QByteArray task =
            "/proc/" + QByteArray::number(waits.process()) + "/task/" + QByteArray::number(waits.process());
        QByteArray child;
        QTRY_VERIFY(!(child = samples::readFile(task + "/children").trimmed()).isEmpty());
        QVERIFY(kill(child.toInt(), SIGABRT) == 0);
        const RenderRun::Ended ended = waits.wait();
        QCOMPARE(ended.status, 1);
        QCOMPARE(ended.err, QByteArray("lumora-render: -: Rendering it failed: the program broke down.\n"));
        QCOMPARE(m_folder->names(), Names({"a.png"}));
    }
};

QTEST_GUILESS_MAIN(RenderProgramTest)
#include "RenderProgramTest.moc"
