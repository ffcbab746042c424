// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/History.h"

#include <utility>

/// The picture of a replaced photo is kept once: the former one while the step is done, the later one while it is
/// undone.
class History::Step : public QUndoCommand {
public:
    Step(const QString& name, History& history, const Shown& after, const PhotoChange& change)
        : QUndoCommand(name)
        , m_history(history)
        , m_before(history.m_now)
        , m_after(after)
        , m_quarterTurns(change.quarterTurns)
        , m_picture(change.former.isNull() ? nullptr : std::make_shared<QImage>(change.former))
    {
    }

    /// Null where the step replaced no picture.
    const std::shared_ptr<QImage>& picture() const { return m_picture; }
    /// Whether its picture had to be dropped.
    bool isLost() const { return m_picture && m_picture->isNull(); }

    void undo() override { take(m_before, -m_quarterTurns); }
    void redo() override
    {
        // The first time is when the step is added to the history: it has been taken already.
        if (std::exchange(m_isDone, true))
            take(m_after, m_quarterTurns);
        else
            m_history.m_now = m_after;
    }

private:
    void take(const Shown& shown, int quarterTurns)
    {
        if (quarterTurns != 0 && !m_history.m_target.turnPhoto(quarterTurns))
            return setObsolete(true); // the photo stays as it is, and the other steps hold for it as well
        if (m_picture)
            *m_picture = m_history.m_target.exchangePhoto(*m_picture);
        m_history.m_target.setShown(shown);
        m_history.m_now = shown;
    }

    History& m_history;
    const Shown m_before, m_after;
    const int m_quarterTurns;
    const std::shared_ptr<QImage> m_picture;
    bool m_isDone = false;
};

History::History(HistoryTarget& target, std::function<qint64()> room)
    : m_target(target)
    , m_room(std::move(room))
{
}

void History::begin(const Shown& now)
{
    m_stack.clear();
    m_formerPictures.clear();
    m_now = now;
}

void History::add(const QString& name, const Shown& now, const PhotoChange& change)
{
    if (now.choices == m_now.choices && change.quarterTurns == 0 && change.former.isNull())
        return refresh(now);
    auto* step = new Step(name, *this, now, change); // owned by the stack
    if (step->picture())
        m_formerPictures.push_back(step->picture());
    m_stack.push(step);
    dropOldPictures();
}

void History::dropOldPictures()
{
    std::erase_if(m_formerPictures, [](const auto& picture) { return picture.expired(); });
    qint64 bytes = 0;
    for (const auto& picture : m_formerPictures)
        bytes += picture.lock()->sizeInBytes();
    const qint64 room = bytes > 0 ? m_room() : 0;
    for (auto oldest = m_formerPictures.begin(); bytes > room; ++oldest) {
        const std::shared_ptr<QImage> picture = oldest->lock();
        bytes -= picture->sizeInBytes();
        *picture = {};
    }
}

const History::Step* History::stepAt(int index) const
{
    return index >= 0 && index < m_stack.count() ? static_cast<const Step*>(m_stack.command(index)) : nullptr;
}

bool History::canUndo() const
{
    const Step* step = stepAt(m_stack.index() - 1);
    return step && !step->isLost();
}

bool History::canRedo() const
{
    const Step* step = stepAt(m_stack.index());
    return step && !step->isLost();
}

void History::undo()
{
    if (canUndo())
        m_stack.undo();
}

void History::redo()
{
    if (canRedo())
        m_stack.redo();
}
