// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/PhotoReader.h"
#include "tests/app/Desk.h"

#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <unistd.h>

class ReadingTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QByteArray write(const QByteArray& data) const { return writeTo(m_folder.filePath("harm"), data); }
    static QByteArray writeTo(const QString& name, const QByteArray& data)
    {
        const QByteArray path = QFile::encodeName(name);
        QFile file(QFile::decodeName(path));
        if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size())
            qFatal("cannot write the file");
        return path;
    }

    /// A window with a photo under a look, whose reader does harm to the files that ask for it.
    class HarmedDesk : public Desk {
    public:
        HarmedDesk()
            : Desk(makePhoto(60, 40))
        {
            click("btnHelga");
            m_original = window.getoriginalImage();
            m_render = render();
        }

        /// Nothing has changed but what a sheet says.
        bool isUntouched()
        {
            return window.getoriginalImage() == m_original && render() == m_render
                && window.windowTitle() == "Lumora - photo.png" && looks() == std::vector<int>{1};
        }

    private:
        QImage m_original;
        qint64 m_render = 0;
    };

    /// Calls `action` once the window shows that it reads.
    static void whileItReads(Desk& desk, const std::function<void()>& action)
    {
        auto* cancel = desk.find<QToolButton>("btnCancel");
        auto* watch = new QTimer(cancel);
        QObject::connect(watch, &QTimer::timeout, cancel, [=] {
            if (!cancel->isVisible())
                return;
            watch->stop();
            action();
        });
        watch->start(10);
    }

private slots:
    void init()
    {
        setPreferences({});
        PhotoReader::setProgram(HARMFUL_READER);
    }

    void harmIsARefusedFile_data()
    {
        QTest::addColumn<QByteArray>("file");
        for (const char* harm : {"HARM break", "HARM loop", "HARM memory", "HARM file", "HARM socket"})
            QTest::newRow(harm) << QByteArray(harm);
    }
    void harmIsARefusedFile()
    {
        QFETCH(QByteArray, file);
        HarmedDesk desk;
        QVERIFY(!desk.window.loadImageFromFile(write(file)));
        QCOMPARE(desk.sheet().value(0), QString("“harm” cannot be opened."));
        const QString reason = desk.sheet().value(1);
        QVERIFY(!reason.isEmpty() && !m_reasons.contains(reason));
        m_reasons << reason;
        QVERIFY(desk.isUntouched());
        QVERIFY(desk.closeSheet());
        desk.click("btnMono"); // the window is alive
        QCOMPARE(desk.looks(), std::vector<int>{5});
        QVERIFY(desk.window.loadImageFromFile(write("HARM none")));
        QCOMPARE(desk.window.getoriginalImage().size(), QSize(2, 2));
    }

    void readingIsCancelledByTheButton()
    {
        HarmedDesk desk;
        whileItReads(desk, [&] { QTest::mouseClick(desk.find<QToolButton>("btnCancel"), Qt::LeftButton); });
        QVERIFY(!desk.window.loadImageFromFile(write("HARM loop")));
        QCOMPARE(desk.sheet(), QStringList()); // whoever cancels knows why
        QVERIFY(desk.isUntouched());
        QVERIFY(!desk.find<QToolButton>("btnCancel")->isVisible());
        QVERIFY(!desk.find<QProgressBar>("progressBar")->isVisible());
        QVERIFY(desk.window.loadImageFromFile(write("HARM none")));
    }

    void readingIsCancelledByEsc()
    {
        HarmedDesk desk;
        whileItReads(desk, [&] { QTest::keyClick(desk.window.windowHandle(), Qt::Key_Escape); });
        QVERIFY(!desk.window.loadImageFromFile(write("HARM loop")));
        QCOMPARE(desk.sheet(), QStringList());
        QVERIFY(desk.isUntouched());
    }

    void cancellingEndsTheWayToTheNextPhoto()
    {
        HarmedDesk desk;
        writeTo(desk.folder.filePath("q.png"), "HARM loop");
        writePhoto(desk.folder, "r.png", makePhoto(40, 60));
        whileItReads(desk, [&] { QTest::keyClick(desk.window.windowHandle(), Qt::Key_Escape); });
        QTest::keyClick(&desk.window, Qt::Key_PageDown);
        QVERIFY(desk.isUntouched());
        QCOMPARE(desk.find<QLabel>("noteText")->text(), QString()); // which would say that it was the last one
    }

    void closingTheWindowCancelsReading()
    {
        HarmedDesk desk;
        whileItReads(desk, [&] { desk.window.close(); });
        QVERIFY(!desk.window.loadImageFromFile(write("HARM loop")));
        QVERIFY(desk.isUntouched());
        QTRY_VERIFY(!desk.window.isVisible());
    }

    void theWindowLivesWhileItReads()
    {
        HarmedDesk desk;
        auto* bar = desk.find<QProgressBar>("progressBar");
        auto* view = desk.find<DragDropImageView>("mainImageView");
        int first = -1, painted = 0;
        class Paints : public QObject {
        public:
            explicit Paints(int& count)
                : m_count(count)
            {
            }
            bool eventFilter(QObject*, QEvent* event) override
            {
                m_count += event->type() == QEvent::Paint;
                return false;
            }

        private:
            int& m_count;
        } paints(painted);
        view->installEventFilter(&paints);
        QTimer progress;
        connect(&progress, &QTimer::timeout, [&] {
            if (!bar->isVisible())
                return;
            if (first < 0) {
                first = bar->value();
                QCOMPARE(bar->format(), QString("Decode"));
                painted = 0;
                view->update();
            } else if (bar->value() > first && painted > 0) {
                progress.stop();
                QTest::keyClick(desk.window.windowHandle(), Qt::Key_Escape);
            }
        });
        progress.start(10);
        QVERIFY(!desk.window.loadImageFromFile(write("HARM loop")));
        QVERIFY(painted > 0);
        QCOMPARE(desk.sheet(), QStringList()); // it was the key that ended it
    }

    void nothingElseBeginsWhileItReads()
    {
        HarmedDesk desk;
        whileItReads(desk, [&] {
            desk.click("btnMono");
            desk.click("chkMultiFilter");
            desk.click("btnRight");
            desk.click("btnSave");
            QTest::keyClick(desk.window.windowHandle(), Qt::Key_O, Qt::ControlModifier);
            QTest::keyClick(desk.window.windowHandle(), Qt::Key_3);
            QTest::keyClick(desk.find<QComboBox>("btnBorders"), Qt::Key_Down);
            QTest::mouseClick(desk.find<DragDropImageView>("mainImageView"), Qt::LeftButton);
            QVERIFY(!desk.window.loadImageFromFile(write("HARM none")));
            QVERIFY(desk.isUntouched());
            QTest::keyClick(desk.window.windowHandle(), Qt::Key_Escape);
        });
        QVERIFY(!desk.window.loadImageFromFile(write("HARM loop")));
        QVERIFY(desk.isUntouched());
        QCOMPARE(desk.sheet(), QStringList());
        QCOMPARE(desk.find<QComboBox>("btnBorders")->currentIndex(), 0);
        QVERIFY(!desk.find<QAbstractButton>("chkMultiFilter")->isChecked());
        desk.click("btnMono"); // and afterwards it does
        QCOMPARE(desk.looks(), std::vector<int>{5});
    }

    void aFirstPhotoThatWasBegunBeforeTheWindowIsShown()
    {
        const QByteArray path = write("HARM none");
        auto reader = std::make_unique<PhotoReader>();
        reader->begin(path);
        QVERIFY(reader->isDone(60'000));
        QCOMPARE(unlink(path.constData()), 0); // it is not read again
        MainWindowController window(std::move(reader));
        window.openFileWhenShown(path);
        window.show();
        QTRY_COMPARE(window.getoriginalImage().size(), QSize(2, 2));
    }

private:
    QStringList m_reasons;
};

DESK_MAIN(ReadingTest)
#include "ReadingTest.moc"
