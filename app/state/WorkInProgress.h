// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Shows the work in progress to people.
class WorkDisplay {
public:
    /// A step has begun or goes on, and `done` of `steps` are behind: a fraction tells how far this one is. The window
    /// may paint itself before this returns.
    virtual void showStep(const QString& name, double done, int steps) = 0;
    /// All work has ended. `closeAsked`: somebody wanted to close the window meanwhile.
    virtual void workEnded(bool closeAsked) = 0;

protected:
    ~WorkDisplay() = default;
};

/// The work on the photo that is going on. Everything runs on one thread: between two steps of long work the window
/// paints itself, and nothing else may begin until the work goes on.
class WorkInProgress {
public:
    using Clock = qint64 (*)();
    /// Milliseconds that only ever grow.
    static qint64 clock();

    /// The display is not owned.
    explicit WorkInProgress(WorkDisplay& display, Clock time = clock);

    bool isGoingOn() const { return m_depth > 0; }
    /// False while the work that is going on waits.
    bool mayBegin() const { return m_mayBegin; }
    /// Counts a step of the work, and shows it where the work takes long enough to be read about.
    void beginStep(const QString& name);
    /// Shows that the step goes on; for one that waits for something else. It moves on ever more slowly and never gets
    /// to its end, as nobody knows how long it will be.
    void stepGoesOn();
    /// Asks whether the window may close: true when nothing is going on. Otherwise the display hears of it at the end.
    bool mayClose();

private:
    friend class Work;
    friend class WorkWaits;

    bool isShown() const;

    WorkDisplay& m_display;
    Clock m_time;
    int m_depth = 0; ///< of work begun by work
    int m_steps = 0;
    int m_stepsDone = 0; ///< with the one that goes on
    QString m_step; ///< the name of that one
    bool m_isLong = false;
    qint64 m_begun = 0; ///< by the clock
    qint64 m_stepBegun = 0;
    bool m_mayBegin = true;
    bool m_closeAsked = false;
};

/// A piece of work, for as long as this lives. It is false where no work may begin; whoever made it must then leave
/// everything as it is. Work that is begun by work is a part of it and counts its steps there.
class Work {
public:
    /// `steps`: how many it has; `isLong`: known to take more than a moment.
    Work(WorkInProgress& progress, int steps, bool isLong);
    ~Work();
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;
    explicit operator bool() const { return m_allowed; }

private:
    WorkInProgress& m_progress;
    bool m_allowed;
};

/// For as long as this lives, the work that is going on waits for the window or for people, and no other may begin.
/// Without any work it does nothing.
class WorkWaits {
public:
    explicit WorkWaits(WorkInProgress& progress);
    ~WorkWaits();
    WorkWaits(const WorkWaits&) = delete;
    WorkWaits& operator=(const WorkWaits&) = delete;

private:
    WorkInProgress& m_progress;
    bool m_before;
};
