// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/WorkInProgress.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

constexpr qint64 moment = 300; ///< milliseconds that nobody needs to be told about
constexpr double halfway = 2000; ///< milliseconds after which a step of unknown length is shown as half done

} // namespace

qint64 WorkInProgress::clock()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

WorkInProgress::WorkInProgress(WorkDisplay& display, Clock time)
    : m_display(display)
    , m_time(time)
{
}

bool WorkInProgress::isShown() const
{
    return m_depth > 0 && (m_isLong || m_time() - m_begun >= moment);
}

void WorkInProgress::beginStep(const QString& name)
{
    m_step = name;
    m_stepBegun = m_time();
    m_stepsDone++;
    stepGoesOn();
}

void WorkInProgress::stepGoesOn()
{
    if (!isShown())
        return;
    m_steps = std::max(m_steps, m_stepsDone);
    const double time = double(m_time() - m_stepBegun);
    const WorkWaits waits(*this);
    m_display.showStep(m_step, m_stepsDone - 1 + time / (time + halfway), m_steps);
}

bool WorkInProgress::mayClose()
{
    m_closeAsked = m_depth > 0;
    return !m_closeAsked;
}

Work::Work(WorkInProgress& progress, int steps, bool isLong)
    : m_progress(progress)
    , m_allowed(progress.m_mayBegin)
{
    if (!m_allowed || m_progress.m_depth++ > 0)
        return;
    m_progress.m_steps = steps;
    m_progress.m_stepsDone = 0;
    m_progress.m_isLong = isLong;
    m_progress.m_begun = m_progress.m_time();
}

Work::~Work()
{
    if (m_allowed && --m_progress.m_depth == 0)
        m_progress.m_display.workEnded(std::exchange(m_progress.m_closeAsked, false));
}

WorkWaits::WorkWaits(WorkInProgress& progress)
    : m_progress(progress)
    , m_before(progress.m_mayBegin)
{
    m_progress.m_mayBegin = progress.m_depth == 0;
}

WorkWaits::~WorkWaits()
{
    m_progress.m_mayBegin = m_before;
}
