// SPDX-License-Identifier: GPL-2.0-or-later
#include "LoopWatch.h"

#include <QAbstractEventDispatcher>

#include <algorithm>

namespace LumetraBenchmark {

LoopWatch::LoopWatch()
{
    auto* const loop = QAbstractEventDispatcher::instance();
    connect(loop, &QAbstractEventDispatcher::awake, this, &LoopWatch::Begin);
    connect(loop, &QAbstractEventDispatcher::aboutToBlock, this, &LoopWatch::End);
}

void LoopWatch::Restart()
{
    m_stretches.clear();
    m_isAwake = false;
}

void LoopWatch::Begin()
{
    // The loop may say so several times before it waits again.
    if (m_isAwake)
        return;
    m_isAwake = true;
    m_timer.start();
}

void LoopWatch::End()
{
    if (!m_isAwake)
        return;
    m_isAwake = false;
    m_stretches.push_back(static_cast<double>(m_timer.nsecsElapsed()) / 1e6);
}

double LoopWatch::GetStretch(double share) const
{
    if (m_stretches.empty())
        return 0;
    std::vector<double> sorted = m_stretches;
    std::sort(sorted.begin(), sorted.end());
    return sorted[static_cast<std::size_t>(share * static_cast<double>(sorted.size() - 1))];
}

} // namespace LumetraBenchmark
