// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/WorkInProgress.h"

#include <QtTest>
#include <functional>

class WorkInProgressTest : public QObject {
    Q_OBJECT

private:
    /// Writes down what people would see.
    class Notes : public WorkDisplay {
    public:
        QStringList notes;
        std::function<void()> meanwhile = [] {};

        void showStep(const QString& name, double done, int steps) override
        {
            notes << QStringLiteral("%1 %2/%3").arg(name).arg(done).arg(steps);
            meanwhile();
        }
        void workEnded(bool closeAsked) override { notes << (closeAsked ? "closes" : "ended"); }
    };

    /// A clock that stands until it is set.
    static inline qint64 now = 0;
    static qint64 time() { return now; }

    Notes m_shown;

private slots:
    void init()
    {
        now = 1000;
        m_shown = Notes();
    }

    void longWorkShowsEveryStep()
    {
        WorkInProgress progress(m_shown, time);
        {
            const Work work(progress, 3, true);
            QVERIFY(work && progress.isGoingOn());
            progress.beginStep("Fit");
            progress.beginStep("Mono");
            progress.beginStep("Border");
        }
        QCOMPARE(m_shown.notes, QStringList({"Fit 0/3", "Mono 1/3", "Border 2/3", "ended"}));
        QVERIFY(!progress.isGoingOn());
    }

    void otherWorkIsShownFromTheStepThatBeginsAfterAMoment()
    {
        WorkInProgress progress(m_shown, time);
        {
            const Work work(progress, 3, false);
            now += 299;
            progress.beginStep("Fit");
            QCOMPARE(m_shown.notes, QStringList());
            now += 1;
            progress.beginStep("Mono");
        }
        QCOMPARE(m_shown.notes, QStringList({"Mono 1/3", "ended"}));
        // The next piece of work has a moment of its own.
        const Work work(progress, 3, false);
        m_shown.notes.clear();
        progress.beginStep("Fit");
        QCOMPARE(m_shown.notes, QStringList());
    }

    void aStepThatWaitsMovesOnAndNeverEnds()
    {
        WorkInProgress progress(m_shown, time);
        const Work work(progress, 3, false);
        progress.beginStep("Decode");
        now += 299;
        progress.stepGoesOn();
        QCOMPARE(m_shown.notes, QStringList());
        for (const int more : {1701, 4000, 1000000000}) {
            now += more;
            progress.stepGoesOn();
        }
        QCOMPARE(m_shown.notes, QStringList({"Decode 0.5/3", "Decode 0.75/3", "Decode 0.999998/3"}));
        progress.beginStep("Fit");
        QCOMPARE(m_shown.notes.last(), QString("Fit 1/3"));
    }

    void workThatIsBegunByWorkIsAPartOfIt()
    {
        WorkInProgress progress(m_shown, time);
        {
            const Work work(progress, 4, true);
            progress.beginStep("Decode");
            {
                const Work part(progress, 2, false);
                QVERIFY(part);
                progress.beginStep("Fit");
            }
            QCOMPARE(m_shown.notes, QStringList({"Decode 0/4", "Fit 1/4"}));
        }
        QCOMPARE(m_shown.notes.last(), QString("ended"));
    }

    void moreStepsThanWereTold()
    {
        WorkInProgress progress(m_shown, time);
        const Work work(progress, 1, true);
        progress.beginStep("Fit");
        progress.beginStep("Border");
        QCOMPARE(m_shown.notes, QStringList({"Fit 0/1", "Border 1/2"}));
    }

    void aStepWithoutWorkIsNotShown()
    {
        WorkInProgress progress(m_shown, time);
        progress.beginStep("Fit");
        QCOMPARE(m_shown.notes, QStringList());
    }

    void nothingElseBeginsWhileAStepIsShown()
    {
        WorkInProgress progress(m_shown, time);
        int tried = 0;
        m_shown.meanwhile = [&] {
            tried++;
            QVERIFY(!progress.mayBegin());
            const Work other(progress, 9, true);
            QVERIFY(!other);
        };
        {
            const Work work(progress, 2, true);
            progress.beginStep("Fit");
            QVERIFY(progress.mayBegin() && progress.isGoingOn());
            const Work part(progress, 1, false);
            QVERIFY(part);
            progress.beginStep("Border");
        }
        QCOMPARE(tried, 2);
        // The refused ones neither ended the work nor changed its steps.
        QCOMPARE(m_shown.notes, QStringList({"Fit 0/2", "Border 1/2", "ended"}));
    }

    void nothingElseBeginsWhileWorkWaits()
    {
        WorkInProgress progress(m_shown, time);
        const Work work(progress, 1, false);
        {
            const WorkWaits waits(progress);
            {
                const WorkWaits also(progress);
            }
            const Work other(progress, 1, false);
            QVERIFY(!other && !progress.mayBegin());
        }
        QVERIFY(progress.mayBegin());
    }

    void whereNothingIsGoingOnNothingWaits()
    {
        WorkInProgress progress(m_shown, time);
        const WorkWaits waits(progress);
        QVERIFY(progress.mayBegin());
        const Work work(progress, 1, false);
        QVERIFY(work);
    }

    void closingWaitsForTheEndOfTheWork()
    {
        WorkInProgress progress(m_shown, time);
        QVERIFY(progress.mayClose());
        {
            const Work work(progress, 1, false);
            const Work part(progress, 1, false);
            QVERIFY(!progress.mayClose());
        }
        QCOMPARE(m_shown.notes, QStringList("closes"));
        {
            const Work work(progress, 1, false);
        }
        QCOMPARE(m_shown.notes, QStringList({"closes", "ended"}));
        QVERIFY(progress.mayClose());
    }
};

QTEST_APPLESS_MAIN(WorkInProgressTest)
#include "WorkInProgressTest.moc"
