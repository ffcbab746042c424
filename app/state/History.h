// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/state/Choices.h"

#include <QImage>
#include <QString>
#include <QUndoStack>
#include <functional>
#include <memory>
#include <vector>

/// What is shown: the choices, and the seed of the random numbers that the render drew while it was made. Some looks
/// draw anew in every render, so that only the seed brings back the same picture.
struct Shown {
    Choices choices;
    unsigned seed = 0;
};

/// What the steps of a history change, wherever it is kept. Nothing of it renders.
class HistoryTarget {
public:
    virtual void setShown(const Shown& shown) = 0;
    /// Turns the photo by quarter turns, counter-clockwise where positive. False where there is no memory for it.
    virtual bool turnPhoto(int quarterTurns) = 0;
    /// Replaces the photo's picture and gives the one before.
    virtual QImage exchangePhoto(const QImage& picture) = 0;

protected:
    ~HistoryTarget() = default;
};

/// What a step did to the photo, if anything.
struct PhotoChange {
    int quarterTurns = 0; ///< counter-clockwise where positive
    QImage former; ///< the picture that another one replaced; null when none did
};

/// The steps that can be taken back, since the photo was opened. A step keeps what was shown before and after it; a
/// turned photo is kept as its turn, and a replaced one as the picture that it was.
class History {
public:
    /// The target is not owned. `room` tells how many bytes the former pictures may take together; where they need
    /// more, the oldest are dropped, and the history then ends there.
    History(HistoryTarget& target, std::function<qint64()> room);

    /// Forgets all steps.
    void begin(const Shown& now);
    /// What is shown has changed without a step: it was rendered anew.
    void refresh(const Shown& now) { m_now = now; }
    /// A step has been taken. One that changed neither the choices nor the photo is no step.
    void add(const QString& name, const Shown& now, const PhotoChange& change = {});

    bool canUndo() const;
    bool canRedo() const;
    QString undoName() const { return m_stack.undoText(); }
    QString redoName() const { return m_stack.redoText(); }
    /// Brings back what the target was before the last step, or after the next one. Without such a step, or without the
    /// memory for it, nothing changes.
    void undo();
    void redo();

private:
    class Step;

    const Step* stepAt(int index) const; ///< null where there is none
    void dropOldPictures();

    HistoryTarget& m_target;
    std::function<qint64()> m_room;
    Shown m_now;
    QUndoStack m_stack;
    std::vector<std::weak_ptr<QImage>> m_formerPictures; ///< of the steps, the oldest first
};
